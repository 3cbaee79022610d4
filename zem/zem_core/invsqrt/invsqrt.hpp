#pragma once
#include "invsqrt/invsqrt_scalar.hpp"
#include "ork/zem_kernels.h"
#include "sqrt/rsqrt_seed.hpp"

namespace ork {

// Double reciprocal square root, y0 (1 + c(e)), e = x y0^2 - 1.
// HA: x split at 21 bits, so that e is exact to 2^-60; within 0.51 ulp. LA: within 2 ulp.
// Fast: positive normal x. A denormal is brought into range by 2^54, its result back by 2^27.
template <Level level> struct InvSqrtD : Core<double> {
  static constexpr char name[] = "vdInvSqrt";
  static constexpr int vectors = level == Level::ha ? 2 : 4;

  static f64x2 eval(f64x2 x, u32x4& rare) {
    rare |= not_positive_normal(x);
    const f64x2 y0 = rsqrt_seed(x), s = y0 * y0;
    f64x2 e;
    if constexpr (level == Level::ha) {
      const f64x2 hi = and_bits(x, high_half), lo = x - hi;
      e = (hi * s - splat(1.0)) + lo * s;
    } else {
      e = x * s - splat(1.0);
    }
    return y0 + y0 * rsqrt_series<level>(e);
  }
  static int special(const double* x, double* r) {
    int status;
    if (!invsqrt_edge(x, r, &status)) *r = on_one<InvSqrtD>(*x * 0x1p54) * 0x1p27;
    return status;
  }
};

}  // namespace ork
