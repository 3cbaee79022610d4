#include "robust.hpp"

#include <algorithm>
#include <cmath>

#include "fail.hpp"
#include "ork/front.h"

namespace demo {

double Pair::distance(double x, double y) const {
  const double a = covariance[0], b = covariance[1], c = covariance[3], u = x - mean[0],
               v = y - mean[1];
  return (c * u * u - 2 * b * u * v + a * v * v) / (a * c - b * b);
}

// By the Cholesky factor of the covariance.
void Pair::ellipse(double distance, std::vector<double>& x, std::vector<double>& y) const {
  constexpr int corners = 120;
  const double u = std::sqrt(covariance[0]), v = covariance[1] / u,
               w = std::sqrt(covariance[3] - v * v), radius = std::sqrt(distance);
  for (int i = 0; i <= corners; ++i) {
    const double angle = 2 * M_PI * i / corners, c = radius * std::cos(angle),
                 s = radius * std::sin(angle);
    x.push_back(mean[0] + u * c);
    y.push_back(mean[1] + v * c + w * s);
  }
}

Robust compare_robust(const Quarters& quarters) {
  const auto &growth = quarters.series[gdp_growth].values,
             &change = quarters.series[unemployment_change].values;
  const int32_t p = 2, n = int32_t(growth.size()), rows = ORK_SS_ROWS, full = ORK_SS_FULL;
  std::vector<double> data = growth;
  data.insert(data.end(), change.begin(), change.end());

  Robust r;
  ork_ss_task* task = nullptr;
  require(__ruadSSNewTask(&task, &p, &n, &rows, data.data(), nullptr, nullptr, 0),
          "a statistics task");
  __ruadSSEditTask(task, ORK_SS_EDIT_MEAN, r.classical.mean);
  __ruadSSEditCovCor(task, nullptr, r.classical.covariance, &full, nullptr, nullptr);
  __ruadSSEditRCov(task, &full, nullptr, nullptr, r.robust.mean, r.robust.covariance);
  require(ork_ss_compute(task, ORK_SS_MEAN | ORK_SS_COV, ORK_SS_ONE_PASS, nullptr),
          "computing a covariance");
  r.found = ork_ss_compute(task, ORK_SS_ROBUST_COV, ORK_SS_TBS, nullptr) == ORK_SS_OK;
  __ruaSSDeleteTask(&task);
  for (Pair* pair : {&r.classical, &r.robust})
    pair->correlation = pair->covariance[1] / std::sqrt(pair->covariance[0] * pair->covariance[3]);
  r.found =
      r.found && std::fabs(r.robust.correlation) < 1 && std::fabs(r.classical.correlation) < 1;

  r.limit = -2 * std::log(0.025);  // chi-square with two degrees of freedom
  if (!r.found) return r;
  for (size_t i = 0; i < growth.size(); ++i)
    if (r.robust.distance(growth[i], change[i]) > r.limit) r.apart.push_back(i);
  const auto far = [&](size_t i) { return r.robust.distance(growth[i], change[i]); };
  std::sort(r.apart.begin(), r.apart.end(), [&](size_t i, size_t j) { return far(i) > far(j); });
  return r;
}

}  // namespace demo
