#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "tan/tan.hpp"

namespace ork::trig {

// Tangent, double, LA: see tan.hpp, P and Q cubic; relative error of P/Q 5.3e-17 (given). What the
// reduction rounds away is added to the numerator: the slope there is nearly the tangent's.
// Bound 2.8 ulp.
struct TanLaD : Core<double> {
  static constexpr char name[] = "dTan_LA";
  static constexpr unsigned x87 = x87_double;
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    const f64x2 ax = abs(x);
    rare |= at_least<limit_128000>(ax);
    const f64x2 t = half_pi_steps(ax), n = t - splat(0x1p52);
    const f64x2 r2 = ax - n * splat(1.5707962512969971) - n * splat(7.5497894158615964e-08);
    const f64x2 third = n * splat(5.3903025299577648e-15), r3 = r2 - third;
    const f64x2 rest = ((r2 - r3) - third) - n * splat(3.2820035428735005e-22);
    const f64x2 r = r3 + rest, low = (r3 - r) + rest;
    const f64x2 z = r * r;
    const f64x2 p = horner(z, -0.12828347040957438, 0.0028059182411699891, -7.483634966612065e-06);
    const f64x2 q =
        horner(z, 1.0, -0.46161680374290487, 0.023344852822068728, -0.00020844804422038708);
    return tangent_ratio(x, t, r + (r * z * p + low), q);
  }
  static int special(const double* x, double* r) { return scalar<_dTan>(x, r); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_dTan_W7LAynn(int n, const double* a, double* r) {
  ork::block<ork::trig::TanLaD>(n, {{a}, {r}});
}
