#pragma once
#include "frame/level.hpp"
#include "ork/zem_kernels.h"
#include "roots/sqrt_scalar.hpp"

namespace ork {

// Single square root from the hardware's 12-bit estimate y of 1 / sqrt(x); s = x y.
// HA: a Goldschmidt step for s1 and h1 = 1 / (2 s1), then s1 - h1 (s1^2 - x), the residual formed
// from pieces of s1 whose leading square is exact; within 0.51 ulp. LA: one Newton step, within
// 3.2 ulp. EP: s, within 2^-11. Zeros pass, with y = 0. Rare: s is infinite or a NaN; at HA also
// x below 2^-96, where pieces of the residual would be denormal; at EP 4, whose root is exact at
// all levels.
template <Level level>
struct SqrtS : Core<float> {
  static constexpr char name[] = "vsSqrt";
  static constexpr int vectors = level == Level::la ? 4 : 2;

  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    const u32x4 nonzero = as<u32x4>(x != splat(0.0f));
    const f32x4 y = and_bits(rsqrt_est(x), nonzero);
    const f32x4 s = x * y;
    rare |= as<u32x4>(abs(s)) + splat_u32(0x00800000);  // carries into the sign
    if constexpr (level == Level::ep) {
      rare |= as<u32x4>(x == splat(4.0f));
      return s;
    } else if constexpr (level == Level::la) {
      return (s * y - splat(3.0f)) * (splat(-0.5f) * s);
    } else {
      rare |= as<u32x4>(as<i32x4>(x) < as<i32x4>(splat(0x1p-96f))) & nonzero;
      const f32x4 h = splat(0.5f) * y;
      const f32x4 e = splat(0.5f) - h * s;
      const f32x4 s1 = s + s * e, h1 = h + h * e;
      const f32x4 hi = and_bits(s1, splat_u32(0xFFFF0000)), lo = s1 - hi;
      const f32x4 d = (hi * hi - x) + hi * lo + lo * s1;
      return s1 - h1 * d;
    }
  }
  static int special(const float* x, float* r) { return sqrt_scalar<SqrtS, level>(x, r); }
};

}  // namespace ork
