#pragma once
// The tangent of singles in double: x = n pi + r, |r| <= pi/2, pi in two parts;
//   tan r = r P(r^2) / (pi^2/4 - r^2): the pole is in the quotient, n needs no parity
// Fast range |x| < 128000. special: the scalar routine, any argument. A zero keeps its sign
// through the product.
#include "frame/kernel.hpp"
#include "trig/scalar.hpp"
#include "trig/single.hpp"

namespace ork::trig {

#include "trig/tan/tangent_fits.inc"

constexpr uint32_t limit_128000_single = 0x47FA0000;

// p[0] is pi^2/4.
template <int degree>
ORK_INLINE f64x2 tangent_half(f64x2 x, f64x2 n, const double (&p)[degree + 1]) {
  const f64x2 r = x - n * splat(3.1415926535846666) - n * splat(5.1266883031890378e-12), z = r * r;
  f64x2 sum = splat(p[degree]);
#pragma GCC unroll 8
  for (int k = degree - 1; k >= 0; --k) sum = sum * z + splat(p[k]);
  return r * sum / (splat(p[0]) - z);
}

// n comes from a product in single: |r| may pass pi/2 by 0.7 percent, which the fits allow for.
template <int degree>
ORK_INLINE f32x4 tangent_single(f32x4 x, u32x4& rare, const double (&p)[degree + 1]) {
  rare |= reaches<limit_128000_single>(abs(x));
  const __m128i n = _mm_cvtps_epi32(x * splat(0.318309873f));
  const Widened w = widen(x);
  return narrow(tangent_half<degree>(w.low, _mm_cvtepi32_pd(n), p),
                tangent_half<degree>(w.high, _mm_cvtepi32_pd(_mm_shuffle_epi32(n, 0xEE)), p));
}

}  // namespace ork::trig
