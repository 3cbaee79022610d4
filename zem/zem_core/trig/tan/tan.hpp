#pragma once
// The tangent by reduction modulo pi/2 and a rational function, double.
//   |x| = n pi/2 + r, |r| <= pi/4, z = r^2
//   tan r = r P(z) / Q(z); n even: tan |x| = r P/Q, n odd: -Q / (r P)
// Fast range |x| < 128000: n times all parts of pi/2 but the last is exact. special: the scalar
// routine, any argument.
#include "frame/kernel.hpp"
#include "trig/bits.hpp"
#include "trig/scalar.hpp"

namespace ork::trig {

constexpr uint32_t limit_128000 = 0x40FF4000;

// n = round(ax * 2/pi): t = n + 2^52, the parity of n in its lowest bit.
ORK_INLINE f64x2 half_pi_steps(f64x2 ax) { return ax * splat(0.63661977236758138) + splat(0x1p52); }

// All ones in lanes of odd n.
ORK_INLINE u64x2 odd_steps(f64x2 t) { return u64x2{} - (as<u64x2>(t) & splat_u64(1)); }

// r P / Q, or -Q / (r P) for an odd n, with the sign of x.
ORK_INLINE f64x2 tangent_ratio(f64x2 x, f64x2 t, f64x2 rp, f64x2 q) {
  const u64x2 swap = (as<u64x2>(rp) ^ as<u64x2>(q)) & odd_steps(t);
  return flip(xor_bits(rp, swap) / xor_bits(q, swap), flip(parity(t), sign_of(x)));
}

}  // namespace ork::trig
