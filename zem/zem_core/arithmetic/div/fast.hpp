#pragma once
#include "arithmetic/div.hpp"
#include "arithmetic/reciprocal.hpp"

namespace ork {

// Single division at LA and EP: the reciprocal of b, times a. LA within 4 ulp, EP within 2^-11.
template <Level level>
struct DivFast : Core<float, 2> {
  static constexpr char name[] = "vsDiv";
  static f32x4 eval(f32x4 a, f32x4 b, u32x4& rare) {
    rare |= out_of_reach(b);
    return reciprocal<level>(b) * a;
  }
  static int special(const float* a, const float* b, float* r) {
    divide_single(a, b, r);
    return division_status(a, b);
  }
};

}  // namespace ork
