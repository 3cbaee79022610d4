#pragma once
// Log1p, double: s + e = 1 + x, s of 43 bits unless x is small; v = s c - 1 + e c with a
// short c; ln(1 + x) = K ln 2 - ln c + ln(1 + v), a level doing the last sum.
// Rare: x <= -1, x above 8.78e304 (where the scale of e would be denormal), NaN.
#include "common/log_short_d.hpp"
#include "frame/chunk.hpp"
#include "logarithms/log_rare.hpp"
#include "ork/zem_kernels.h"

namespace ork {

// The polynomials of the levels, frozen: ln(1 + v) for |v| < 2^-9.5, to 2^-61.7 by degree 5, to
// 2^-39.9 by degree 3.
ORK_INLINE f64x2 log1p_degree5(f64x2 v) {  // v^2 (...): ln(1 + v) - v
  const f64x2 v2 = v * v;
  return v2 * ((-0.49999999999988803 + 0.33333333333308374 * v) +
               v2 * (-0.2500003054940248 + 0.20000036659494241 * v));
}
ORK_INLINE f64x2 log1p_degree3(f64x2 v) {
  return v * v * (-0.49999999999988803 + 0.33333333333308374 * v);
}

alignas(16) inline constexpr double log1p_rows_d_la[] = {
#include "common/log1p_rows_d_la.inc"
};

inline int log1p_rare(const double* a, double* out) { return ln_rare(*a + 1.0, out); }

template <class Level>
struct Log1pD : Core<double> {
  static constexpr char name[] = "vdLog1p";
  static f64x2 eval(f64x2 x, u32x4& rare) {
    rare |= as<u32x4>((f64x2)_mm_cmplt_pd(x, splat(-0.99999999999999989))) |
            as<u32x4>((f64x2)_mm_cmpnle_pd(x, as<f64x2>(splat_u64(0x7F3FFFFFFFFFF000))));
    const f64x2 sum = x + 1.0;
    const u64x2 near = (u64x2)(abs(x) < 0.0009765625);  // s whole, c a power of two
    const f64x2 s = and_bits(sum, near | splat_u64(0xFFFFFFFFFFFFFC00));
    const f64x2 e = ((f64x2)_mm_max_pd(x, splat(1.0)) - s) + (f64x2)_mm_min_pd(x, splat(1.0));
    const ShortD f(s, near);
    // m = s * scale
    const f64x2 scale = as<f64x2>(as<u32x4>(splat_u64(0x7F40000000000000)) -
                                  (as<u32x4>(s) & as<u32x4>(splat_u64(0x7FF0000000000000))));
    const f64x2 y = Level::sum(f, s, f.m * f.c - 1.0, e * (scale * f.c));
    return or_bits(y, as<u64x2>(x) & sign_f64x2);  // the sign of a zero
  }
  static int special(const double* a, double* out) { return log1p_rare(a, out); }
};

}  // namespace ork
