#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/tan/tan_single.hpp"

namespace ork::trig {

// Tangent, single, LA: see tan_single.hpp, P of degree 4, relative error 4.2e-8 (fit). Bound 2 ulp.
struct TanLaS : Core<float> {
  static constexpr char name[] = "sTan_LA";
  static constexpr unsigned x87 = x87_double;
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    constexpr double p[] = {single_la_p0, single_la_p1, single_la_p2, single_la_p3, single_la_p4};
    return tangent_single<4>(x, rare, p);
  }
  static int special(const float* x, float* r) { return scalar<_dTan>(x, r); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_sTan_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::trig::TanLaS>(n, {{a}, {r}});
}
