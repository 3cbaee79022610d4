#pragma once
// Powx, single: Pow with one exponent.
#include "powers/pow_s.hpp"

namespace ork {

template <Level level>
struct PowxS : Core<float> {
  static constexpr char name[] = "vsPowx";
  static constexpr int vectors = 1;
  float b;
  __attribute__((always_inline)) explicit PowxS(float exponent) : b(exponent) {}
  const float* second(const float*, int index) const { return array_with(&b, index); }
  __attribute__((always_inline)) f32x4 eval(f32x4 a, u32x4& rare) const {
    return pow_main<level>(a, splat(b), rare);
  }
  int special(const float* a, float* r) const { return pow_rare(a, &b, r); }
};

}  // namespace ork
