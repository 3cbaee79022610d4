#pragma once
#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/quarters.hpp"
#include "trig/scalar.hpp"
#include "trig/single.hpp"

namespace ork::trig {

#include "trig/sine_fits.inc"

// Sine and cosine, single, HA, in double: x = n pi/2 + r, |r| <= pi/4,
//   sin r = r (1 + s_1 r^2 + ... + s_4 r^8), relative error 5.1e-12 (fit)
//   cos r = 1 + r^2 (c_0 + ... + c_3 r^6), relative error 1.2e-10
// n modulo 4 swaps the two and gives the signs. Fast range |x| < 10000. special: the scalar
// routine, any argument. Bound 0.55 ulp.
struct SinCosHaS : Core<float, 1, 2> {
  static constexpr char name[] = "sSinCos_HA";
  static constexpr unsigned x87 = x87_double;

  ORK_INLINE void half(f64x2 x, f64x2 n, f64x2& s, f64x2& c) {
    const f64x2 r = x - n * splat(1.5707963267923333) - n * splat(2.5633441515945189e-12),
                z = r * r;
    // A zero keeps its sign through the product.
    const f64x2 z2 = z * z;  // in pairs of terms: the loop waits for its chains
    s = r * ((1.0 + z * quarter_s1) + z2 * ((quarter_s2 + z * quarter_s3) + z2 * quarter_s4));
    c = (1.0 + z * -0.5) +
        z2 * ((0.041666645682975567 + z * -0.0013887316254360454) + z2 * 2.4433157058349041e-05);
  }
  ORK_INLINE f32x4 eval(f32x4 x, f32x4& cosine, u32x4& rare) {
    rare |= reaches<limit_10000>(abs(x));
    // A product in single: |r| may pass pi/4 by 0.06 percent, where the fits still hold.
    const __m128i n = _mm_cvtps_epi32(x * splat(0.636619747f));
    const Widened w = widen(x);
    f64x2 s0, s1, c0, c1;
    half(w.low, _mm_cvtepi32_pd(n), s0, c0);
    half(w.high, _mm_cvtepi32_pd(_mm_shuffle_epi32(n, 0xEE)), s1, c1);
    const Both both = turn_quarters(narrow(s0, s1), narrow(c0, c1), as<u32x4>(n));
    cosine = both.cosine;
    return both.sine;
  }
  static int special(const float* x, float* r, float* r2) { return scalar_sincos(x, r, r2); }
};

}  // namespace ork::trig
