#pragma once
// Asinh, single. HA: ln(a + sqrt(a^2 + 1)) in double, a = |x|; below 2^-12 a - a^3/6.
// LA, EP: ln(1 + u), u = a + a^2/(1 + sqrt(1 + a^2)). The sign of x.
#include "areas/ln_s.hpp"

namespace ork {

// Rare: infinities and NaNs.
struct AsinhHaS : Core<float> {
  static constexpr char name[] = "vsAsinh";
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    const f32x4 magnitude = abs(x);
    rare |= 0x7F7FFFFF - as<u32x4>(magnitude);
    const f32x4 y = in_double(
        magnitude, [](f64x2 a) __attribute__((always_inline)) {
          const f64x2 square = a * a, small = a - a * (square * (1.0 / 6));
          return select((f64x2)_mm_cmplt_pd(a, splat(0x1p-12)), small,
                        ln_short(a + sqrt(square + 1.0)));
        });
    return or_bits(y, as<u32x4>(x) & sign_f32x4);
  }
  static int special(const float* x, float* r) {
    *r = *x + *x;
    return 0;
  }
};

// Rare: |x| >= 2^62, whose square would overflow; infinities and NaNs.
template <bool ep>
struct AsinhShortS : Core<float> {
  static constexpr char name[] = "vsAsinh";
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    const f32x4 a = abs(x), square = a * a;
    rare |= 0x5E7FFFFF - as<u32x4>(a);
    const f32x4 u = a + square / (1.0f + sqrt(1.0f + square));
    return or_bits(log1p_s<ep>(u), as<u32x4>(x) & sign_f32x4);
  }
  static int special(const float* x, float* r) {
    const double a = __builtin_fabs((double)*x);
    *r = a <= __FLT_MAX__ ? (float)__builtin_copysign(ln_short(splat(a + a))[0], (double)*x)
                          : *x + *x;
    return 0;
  }
};

}  // namespace ork
