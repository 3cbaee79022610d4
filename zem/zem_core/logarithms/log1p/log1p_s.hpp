#pragma once
// What the single kernels of Log1p share: s + e = 1 + x, rare lanes, their routine.
#include "frame/chunk.hpp"
#include "logarithms/log_rare.hpp"
#include "ork/zem_kernels.h"

namespace ork {

// x + 1 is exact in double wherever the routine is called: x <= -1, or x beyond 2^118.
inline int log1p_rare(const float* a, float* out) {
  return in_double(ln_rare, (double)*a + 1.0, out);
}

struct Log1pS : Core<float> {
  static constexpr char name[] = "vsLog1p";
  static void test(f32x4 x, u32x4& rare) {
    rare |= as<u32x4>((f32x4)_mm_cmplt_ps(x, splat(-0.99999994f))) |
            as<u32x4>((f32x4)_mm_cmpnle_ps(x, splat(3.32306999e+35f)));
  }
  // 1 + x - s
  static f32x4 rest(f32x4 x, f32x4 s) {
    return ((f32x4)_mm_max_ps(x, splat(1.0f)) - s) + (f32x4)_mm_min_ps(x, splat(1.0f));
  }
  static f32x4 with_sign_of(f32x4 x, f32x4 y) { return or_bits(y, as<u32x4>(x) & sign_f32x4); }
  static int special(const float* a, float* out) { return log1p_rare(a, out); }
};

}  // namespace ork
