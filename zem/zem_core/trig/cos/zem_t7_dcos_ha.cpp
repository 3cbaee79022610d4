#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/table_kernel.hpp"

namespace ork::trig {

// Cosine, double, HA: by table, see table_kernel.hpp. Bound 0.60 ulp.
struct CosHaD : Core<double> {
  static constexpr char name[] = "vdCos";
  static constexpr unsigned x87 = x87_double;
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    const f64x2 ax = abs(x);
    rare |= reaches<limit_90112>(ax);
    const Reduced reduced = reduce_pi64(ax);
    return sine_ha(reduced, taylor(reduced.z), quarter_turn);
  }
  static int special(const double* x, double* r) { return scalar<_dCos>(x, r); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_dCos_T7HAynn(int n, const double* a, double* r) {
  ork::block<ork::trig::CosHaD>(n, {{a}, {r}});
}
