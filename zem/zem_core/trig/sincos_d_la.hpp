#pragma once
#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/table_kernel.hpp"

namespace ork::trig {

// Sine and cosine, double, LA: the reduction and rows of HA with plain sums, see table_kernel.hpp.
// Bound 2 ulp.
struct SinCosLaD : Core<double, 1, 2> {
  static constexpr char name[] = "dSinCos_LA";
  static constexpr unsigned x87 = x87_double;
  ORK_INLINE f64x2 eval(f64x2 x, f64x2& cosine, u32x4& rare) {
    const f64x2 ax = abs(x);
    rare |= reaches<limit_90112>(ax);
    const Reduced reduced = reduce_pi64(ax);
    const Polynomials p = taylor(reduced.z);
    const f64x2 z = reduced.z + reduced.low;
    cosine = table_sine_la(gather(rows_pi64 + quarter_turn, reduced.rows), z, p);
    return flip(table_sine_la(gather(rows_pi64, reduced.rows), z, p), sign_of(x));
  }
  static int special(const double* x, double* r, double* r2) { return scalar_sincos(x, r, r2); }
};

}  // namespace ork::trig
