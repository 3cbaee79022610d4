#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/tan/tan.hpp"

namespace ork::trig {

// Tangent, double, EP: see tan.hpp, P and Q quadratic; relative error of P/Q 2.6e-11:
// the cubic terms of LA do not belong to these, with them it is 5.6e-5. Bound 2^-26.
struct TanEpD : Core<double> {
  static constexpr char name[] = "dTan_A11";
  static constexpr unsigned x87 = x87_double;
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    const f64x2 ax = abs(x);
    rare |= reaches<limit_128000>(ax);
    const f64x2 t = half_pi_steps(ax), n = t - splat(0x1p52);
    const f64x2 r = ax - n * splat(1.5707962512969971) - n * splat(7.5497894158615964e-08) -
                    n * splat(5.390302858158119e-15);
    const f64x2 z = r * r;
    const f64x2 p = horner(z, 1.1559034178886809, -0.12872306814578047, 0.0012427749419586368);
    const f64x2 q = horner(z, 1.1559034178631502, -0.51402420551256156, 0.018463698006558116);
    return tangent_ratio(x, t, r * p, q);
  }
  static int special(const double* x, double* r) { return scalar<_dTan>(x, r); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_dTan_W7EPnnn(int n, const double* a, double* r) {
  ork::block<ork::trig::TanEpD>(n, {{a}, {r}});
}
