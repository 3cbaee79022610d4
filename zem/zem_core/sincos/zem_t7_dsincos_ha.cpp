#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/table_kernel.hpp"

namespace ork::trig {

// Sine and cosine, double, HA: by table from one reduction, see table_kernel.hpp. Bound 0.55 ulp.
struct SinCosHaD : Core<double, 1, 2> {
  static constexpr char name[] = "vdSinCos";
  ORK_INLINE f64x2 eval(f64x2 x, f64x2& cosine, u32x4& rare) {
    const f64x2 ax = abs(x);
    rare |= at_least<limit_90112>(ax);
    const Reduced reduced = reduce_pi64(ax);
    const Polynomials p = taylor(reduced.z);
    cosine = sine_ha(reduced, p, quarter_turn);
    return flip(sine_ha(reduced, p, 0), sign_of(x));
  }
  static int special(const double* x, double* r, double* r2) { return scalar_sincos(x, r, r2); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_dSinCos_T7HAynn(int n, const double* a, double* r, double* r2) {
  ork::block<ork::trig::SinCosHaD>(n, {{a}, {r, r2}});
}
