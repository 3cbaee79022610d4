#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/tan/tan_single.hpp"

namespace ork::trig {

// Tangent, single, HA: see tan_single.hpp, P of degree 5, relative error 1.2e-9 (fit). Bound 0.55
// ulp.
struct TanHaS : Core<float> {
  static constexpr char name[] = "sTan_HA";
  static constexpr unsigned x87 = x87_double;
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    constexpr double p[] = {single_ha_p0, single_ha_p1, single_ha_p2,
                            single_ha_p3, single_ha_p4, single_ha_p5};
    return tangent_single<5>(x, rare, p);
  }
  static int special(const float* x, float* r) { return scalar<_dTan>(x, r); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_sTan_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::trig::TanHaS>(n, {{a}, {r}});
}
