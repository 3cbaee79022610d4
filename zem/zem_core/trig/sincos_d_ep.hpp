#pragma once
#include "base/round.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"
#include "trig/bits.hpp"
#include "trig/scalar.hpp"

namespace ork::trig {

#include "trig/sine_fits.inc"

// Sine and cosine, double, EP: |x| = n pi/2 + r, one remainder for both, a short polynomial each.
//   pi/2 in three parts of 24, 24 and 53 bits, n times all but the last is exact, |r| <= pi/4
// Fast range |x| < 2^23. Bound 2^-26.
struct SinCosEpD : Core<double, 1, 2> {
  static constexpr char name[] = "vdSinCos";
  static constexpr double two_over_pi = 0.63661977236758138, shifter = integer_shifter<double>;

  ORK_INLINE f64x2 eval(f64x2 x, f64x2& cosine, u32x4& rare) {
    const f64x2 ax = abs(x);
    rare |= reaches<0x41600000>(ax);
    const f64x2 t = ax * two_over_pi + shifter, n = t - shifter;
    const f64x2 r =
        ax - n * 1.5707962512969971 - n * 7.5497894158615964e-08 - n * 5.390302858158119e-15;
    const f64x2 z = r * r, z2 = z * z;
    const f64x2 s = ((z * quarter_ep_s3 + quarter_ep_s2) * z + quarter_ep_s1) * (z * r) + r;
    const f64x2 c =
        ((z * quarter_ep_c4 + quarter_ep_c3) * z2 + (z * quarter_ep_c2 + quarter_ep_c1)) * z + 1.0;
    // An odd n swaps the two; its second bit, and that of n + 1, are the signs.
    const u64x2 odd = -(as<u64x2>(t) & splat_u64(1)), second = as<u64x2>(t) << 62;
    const u64x2 swap = (as<u64x2>(s) ^ as<u64x2>(c)) & odd;
    cosine = as<f64x2>(as<u64x2>(c) ^ swap ^ ((second ^ odd) & sign_f64x2));
    return as<f64x2>(as<u64x2>(s) ^ swap ^ ((second ^ as<u64x2>(x)) & sign_f64x2));
  }
  static int special(const double* x, double* r, double* r2) { return scalar_sincos(x, r, r2); }
};

}  // namespace ork::trig
