#pragma once
// Growth and the change of unemployment without the quarters that lie apart: robust mean and
// covariance by a statistics task.
#include <vector>

#include "series.hpp"

namespace demo {

// Mean, covariance and correlation of two series.
struct Pair {
  double mean[2], covariance[4], correlation;

  // Squared Mahalanobis distance.
  double distance(double x, double y) const;
  // The boundary at a squared distance.
  void ellipse(double distance, std::vector<double>& x, std::vector<double>& y) const;
};

struct Robust {
  bool found;  // false: nearly all quarters are alike, and no robust scale is to be had
  Pair classical, robust;
  double limit;               // squared distance that 1 in 40 Gaussian quarters passes
  std::vector<size_t> apart;  // quarters beyond it, by the robust estimate, the farthest first
};

Robust compare_robust(const Quarters& quarters);

}  // namespace demo
