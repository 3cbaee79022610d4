#pragma once
#include "arithmetic/inv/inv.hpp"
#include "arithmetic/reciprocal.hpp"

namespace ork {

// Single reciprocal at LA and EP. LA within 3 ulp, EP within 2^-11.
template <Level level>
struct InvFast : Core<float> {
  static constexpr char name[] = "vsInv";
  static f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= out_of_reach(x);
    return reciprocal<level>(x);
  }
  static int special(const float* x, float* r) {
    constexpr float one = 1;
    divide_single(&one, x, r);
    return magnitude(x) == 0 ? ZEM_STATUS_SINGULARITY : ZEM_STATUS_NONE;
  }
};

}  // namespace ork
