#pragma once
#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/table_kernel.hpp"

namespace ork::trig {

// Sine and cosine, double, HA: by table from one reduction, see table_kernel.hpp; each row's sine
// is the cosine of the other, up to the sign. Bound 0.60 ulp.
struct SinCosHaD : Core<double, 1, 2> {
  static constexpr char name[] = "vdSinCos";
  ORK_INLINE f64x2 eval(f64x2 x, f64x2& cosine, u32x4& rare) {
    const f64x2 ax = abs(x);
    rare |= reaches<limit_90112>(ax);
    const Reduced reduced = reduce_pi64(ax);
    const Polynomials p = taylor(reduced.z);
    const f64x2 z = reduced.z, low = reduced.low;
    const Angle<f64x2> a = gather(rows_pi64, reduced.rows),
                       b = gather(rows_pi64 + quarter_turn, reduced.rows);
    const f64x2 zs = z * a.s_hi, zc = z * b.s_hi;
    const Pair<f64x2> c = table_sum(b, z, p.c * b.s_hi - p.s * zs, b.s_lo - (a.s_hi + zc) * low);
    const Pair<f64x2> s = table_sum(a, z, p.c * a.s_hi + p.s * zc, a.s_lo + (b.s_hi - zs) * low);
    cosine = c.high + c.low;
    return flip(s.high + s.low, sign_of(x));
  }
  static int special(const double* x, double* r, double* r2) { return scalar_sincos(x, r, r2); }
};

}  // namespace ork::trig
