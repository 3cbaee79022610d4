#pragma once
// The tangent of singles in double: x = n pi + r, |r| <= pi/2 with r in two parts;
//   tan r = r P(r^2) / (pi^2/4 - r^2): the pole is in the quotient, n needs no parity
// Fast range |x| < 128000. special: the scalar routine, any argument. A zero keeps its sign
// through the product.
#include "frame/kernel.hpp"
#include "trig/scalar.hpp"
#include "trig/single.hpp"

namespace ork::trig {

#include "tan/tangent_fits.inc"

constexpr uint32_t limit_128000_single = 0x47FA0000;

// p[0] is pi^2/4.
template <int degree> ORK_INLINE f64x2 tangent_half(f64x2 x, const double (&p)[degree + 1]) {
  const f64x2 shifter = splat(6755399441055744.0);  // 1.5 * 2^52
  const f64x2 n = (x * splat(0.31830988618379069) + shifter) - shifter;
  const f64x2 r = x - n * splat(3.1415926535846666) - n * splat(5.1266883031890378e-12), z = r * r;
  f64x2 sum = splat(p[degree]);
#pragma GCC unroll 8
  for (int k = degree - 1; k >= 0; --k) sum = sum * z + splat(p[k]);
  return r * sum / (splat(p[0]) - z);
}

template <int degree> ORK_INLINE f32x4 tangent_single(f32x4 x, u32x4& rare, const double (&p)[degree + 1]) {
  rare |= at_least<limit_128000_single>(abs(x));
  const Widened w = widen(x);
  return narrow(tangent_half<degree>(w.low, p), tangent_half<degree>(w.high, p));
}

}  // namespace ork::trig
