#pragma once
#include "ork/zem_kernels.h"
#include "roots/invsqrt/invsqrt_scalar.hpp"
#include "roots/rsqrt_seed.hpp"

namespace ork {

// Double reciprocal square root, y0 (1 + c(e)), e = x y0^2 - 1.
// HA: x split at 21 bits, so that e is exact to 2^-60; within 0.51 ulp. LA: within 2 ulp.
// Fast: positive x below 2^1022, normal or, at HA, from 2^-970 on. Others are brought into range by
// 2^54 or 2^-54, their results back by 2^27 or 2^-27.
template <Level level>
struct InvSqrtD : Core<double> {
  static constexpr char name[] = "vdInvSqrt";

  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    rare |= rsqrt_rare<level>(x);
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
    if (!invsqrt_edge(x, r, &status)) {
      const bool large = *x > 1;
      *r = on_one<InvSqrtD>(*x * (large ? 0x1p-54 : 0x1p54)) * (large ? 0x1p-27 : 0x1p27);
    }
    return status;
  }
};

}  // namespace ork
