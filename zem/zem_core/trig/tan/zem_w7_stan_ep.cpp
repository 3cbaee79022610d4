#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/tan/tan_single.hpp"

namespace ork::trig {

// Tangent, single, EP: see tan_single.hpp, P of degree 2, relative error 5.6e-5 (fit). Bound 2^-12.
struct TanEpS : Core<float> {
  static constexpr char name[] = "sTan_A11";
  static constexpr unsigned x87 = x87_double;
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    constexpr double p[] = {single_ep_p0, single_ep_p1, single_ep_p2};
    return tangent_single<2>(x, rare, p);
  }
  static int special(const float* x, float* r) { return scalar<_dTan>(x, r); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_sTan_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::trig::TanEpS>(n, {{a}, {r}});
}
