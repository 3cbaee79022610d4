// Blocked adaptive computationally efficient outlier nominators (BACON).
#pragma once
#include "rua_kernel/ss/service/data.hpp"

namespace ork::ss {

struct BaconSettings {
  bool medians;      // the start: the observations nearest to the medians, or to the mean
  double alpha;      // upper tail of the chi-square distribution that is an outlier's
  double tolerance;  // of the subset's relative change, at which it counts as settled
};

// The outliers among n >= 5 p observations: weights[i] becomes 0 for these, and the observation's
// own weight for the others.
template <class R>
int32_t bacon(const Data<R>& data, const BaconSettings& settings, R* weights,
              const ork_threader* threader);

}  // namespace ork::ss
