// Probabilities near a mode, as multiples of the mode's own.
#pragma once
#include <stdint.h>

#include "base/vec.hpp"

namespace ork::rua {

// 1/x to about 2^-23 by the processor's estimate and a Newton step.
inline float inverse(float x) {
  const float y = rcp_est(splat(x))[0];
  return y * (2.0f - x * y);
}

// f(mode + k) / f(mode) for k from -kWidth to kWidth.
template <int kWidth>
struct Ratios {
  float around[2 * kWidth + 1];
  float none;  // -1: below any height

  // up(k) and down(k), k from 1 to kWidth, are f(mode + k) and f(mode - k) over their neighbour
  // towards the mode. A neighbour that is as probable as the mode may round above it; no height
  // that is tested is above 1, so 1 is as good.
  template <class Up, class Down>
  void set(Up up, Down down) {
    around[kWidth] = 1;
    none = -1;
    float high = 1, low = 1;
    for (int k = 1; k <= kWidth; ++k) {
      high *= up(k);
      low *= down(k);
      around[kWidth + k] = high < 1 ? high : 1;
      around[kWidth - k] = low < 1 ? low : 1;
    }
  }
  float at(int32_t k) const { return around[kWidth + k]; }
  // The ratio at k if |k| <= near, else a height below all; without a branch.
  float within(int32_t k, int32_t near) const {
    const bool in = uint32_t(k + near) <= uint32_t(2 * near);
    return around[in ? kWidth + k : 2 * kWidth + 1];
  }
};

}  // namespace ork::rua
