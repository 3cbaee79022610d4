#pragma once
// The double kernels by table: sine, cosine or both; HA, and the plain sums of LA.
//
//   |x| = n pi/64 + z + low, n pi/64 in three parts, |z| <= pi/128, a = n pi/64 modulo 2 pi
//   sin(a + z + low): Taylor polynomials of sin z / z - 1 and cos z - 1 (below 2^-61)
//   cos x = sin(a + pi/2 + z + low)
// Fast range |x| < 90112: n times a part is exact. special: the scalar routine, any argument.
#include "base/round.hpp"
#include "frame/kernel.hpp"
#include "trig/bits.hpp"
#include "trig/scalar.hpp"
#include "trig/table.hpp"

namespace ork::trig {

struct Reduced {
  f64x2 z, low;
  Offsets rows;
};

// Steps of pi/64, for |x| >= 0.
ORK_INLINE Reduced reduce_pi64(f64x2 ax) {
  const f64x2 shifter = splat(integer_shifter<double>);
  const f64x2 t = ax * splat(20.371832715762604) + shifter, n = t - shifter;
  const f64x2 u = ax - n * splat(0.049087385210441425), second = n * splat(1.8990939082199894e-12);
  const f64x2 z = u - second;
  return {z, ((u - z) - second) - n * splat(6.3195820274873457e-23), row_offsets<128>(t)};
}

struct Polynomials {
  f64x2 s, c;
};
ORK_INLINE Polynomials taylor(f64x2 z) {
  const f64x2 z2 = z * z;
  return {z2 * horner(z2, -0.16666666666666666, 0.008333333333333333, -0.0001984126984126984),
          z2 * horner(z2, -0.5, 0.041666666666666664, -0.001388888888888889)};
}

ORK_INLINE f64x2 sine_ha(const Reduced& x, const Polynomials& p, int turn) {
  const Pair<f64x2> sum = table_sine(gather(rows_pi64 + turn, x.rows), x.z, x.low, p.s, p.c);
  return sum.high + sum.low;
}
constexpr int quarter_turn = 32;  // rows

// S + (z C + (S (cos z - 1) + z C (sin z / z - 1))): below 2 ulp.
ORK_INLINE f64x2 table_sine_la(const Angle<f64x2>& a, f64x2 z, const Polynomials& p) {
  const f64x2 zc = z * (a.c_hi + a.c_lo);
  return a.s_hi + (zc + (p.c * a.s_hi + p.s * zc));
}

constexpr uint32_t limit_90112 = 0x40F60000;

}  // namespace ork::trig
