#pragma once
#include "base/round.hpp"
#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/quarters.hpp"
#include "trig/scalar.hpp"

namespace ork::trig {

// Sine and cosine, single, LA: |x| = n pi/2 + r, |r| <= pi/4, z = r^2, pi/2 in parts of 8, 11, 11
// bits and the rest: n times all but the last is exact;
//   sin r = r + r^3 (s_0 + s_1 z + s_2 z^2), relative error 3.9e-9
//   cos r = 1 + z (c_0 + ... + c_3 z^3), relative error 1.2e-10
// (both of the rounded ones). Fast range |x| < 10000. special: the scalar routine. Bound 2 ulp.
struct SinCosLaS : Core<float, 1, 2> {
  static constexpr char name[] = "sSinCos_LA";
  static constexpr unsigned x87 = x87_double;
  ORK_INLINE f32x4 eval(f32x4 x, f32x4& cosine, u32x4& rare) {
    const f32x4 ax = abs(x), shifter = splat(integer_shifter<float>);
    rare |= reaches<limit_10000>(ax);
    const f32x4 t = ax * splat(0.636619747f) + shifter, n = t - shifter;
    const f32x4 r2 = ax - n * splat(1.5703125f) - n * splat(0.000483751297f);
    // The last two parts as a sum, and then its rounding error.
    const f32x4 third = n * splat(0x1.444p-24f), fourth = n * splat(2.5633441e-12f),
                sum = third + fourth;
    const f32x4 r = (r2 - sum) - ((third - sum) + fourth), z = r * r;
    const f32x4 s =
        r +
        r * z * horner(z, -0.16666654612881793f, 0.0083321607615217657f, -0.00019515283190447318f);
    const f32x4 c = horner(z, 1.0f, -0.5f, 0.041666645682975567f, -0.0013887316254360454f,
                           2.4433157058349041e-05f);
    const Both both = turn_quarters(s, c, as<u32x4>(t));
    cosine = both.cosine;
    return flip(both.sine, sign_of(x));
  }
  static int special(const float* x, float* r, float* r2) { return scalar_sincos(x, r, r2); }
};

}  // namespace ork::trig
