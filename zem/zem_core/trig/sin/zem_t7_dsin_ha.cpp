#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/table_kernel.hpp"

namespace ork::trig {

// Sine, double, HA: by table, see table_kernel.hpp. Bound 0.60 ulp.
struct SinHaD : Core<double> {
  static constexpr char name[] = "vdSin";
  static constexpr unsigned x87 = x87_double;
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    const f64x2 ax = abs(x);
    rare |= reaches<limit_90112>(ax);
    const Reduced reduced = reduce_pi64(ax);
    return flip(sine_ha(reduced, taylor(reduced.z), 0), sign_of(x));
  }
  static int special(const double* x, double* r) { return scalar<_dSin>(x, r); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_dSin_T7HAynn(int n, const double* a, double* r) {
  ork::block<ork::trig::SinHaD>(n, {{a}, {r}});
}
