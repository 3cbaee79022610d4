#pragma once
// Sine and cosine, single, HA, in double: modulo pi, r in two parts, then
//   sin r = r (1.000000002 + r^2 (c_0 + c_1 r^2 + ...)), |r| <= pi/2
// relative error of the polynomial 1.8e-8 = 0.3 ulp of single precision. Fast range
// |x| < 10000. special: the scalar routine, any argument. Bound 0.85 ulp.
#include "frame/kernel.hpp"
#include "trig/pi_kernel.hpp"
#include "trig/scalar.hpp"
#include "trig/single.hpp"

namespace ork::trig {

ORK_INLINE f64x2 sine_single_ha(f64x2 x, f64x2 n) {
  const f64x2 r = x - n * splat(3.1415926535846666) - n * splat(5.1266883031890378e-12);
  const f64x2 z = r * r;
  return r * horner(z, 1.0000000019999999, -0.166666589, 0.008333075, -0.000198107, 2.608e-06);
}

}  // namespace ork::trig
