#pragma once
#include "ork/zem_kernels.h"
#include "roots/rsqrt_seed.hpp"
#include "roots/sqrt_scalar.hpp"

namespace ork {

// Double square root, x y with y = y0 (1 + c(e)), e = x y0^2 - 1.
// HA: x = hi + lo split at 21 bits, so that e is exact to 2^-60; the exact product hi y0 is added
// last. Within 0.51 ulp. LA: within 2 ulp. EP: the series to degree 2, relative error 2^-31; 4,
// whose root is exact at all levels, is rare. Fast: positive x below 2^1022, normal or, at HA, from
// 2^-970 on; at HA and LA zeros, whose seed is 0.
template <Level level>
struct SqrtD : Core<double> {
  static constexpr char name[] = "vdSqrt";

  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    f64x2 y0 = rsqrt_seed(x);
    if constexpr (level == Level::ep) {
      rare |= rsqrt_rare<level>(x) | as<u32x4>(x == splat(4.0));
    } else {
      const u64x2 nonzero = as<u64x2>(x != splat(0.0));
      rare |= rsqrt_rare<level>(x) & as<u32x4>(nonzero);
      y0 = and_bits(y0, nonzero);
    }
    const f64x2 s = y0 * y0;
    if constexpr (level == Level::ha) {
      const f64x2 hi = and_bits(x, high_half), lo = x - hi;
      const f64x2 e = (hi * s - splat(1.0)) + lo * s;
      const f64x2 root = (x * (y0 * rsqrt_series<level>(e)) + lo * y0) + hi * y0;
      return or_bits(root, as<u64x2>(x) & sign_f64x2);  // the sum has lost the sign of -0
    } else {
      const f64x2 c = rsqrt_series<level>(x * s - splat(1.0));
      return x * (y0 + y0 * c);
    }
  }
  static int special(const double* x, double* r) { return sqrt_scalar<SqrtD, level>(x, r); }
};

}  // namespace ork
