// Atan, single, EP: t P(t^2) with t = |x| below 1, else t = -rcp |x| and pi/2 added; the sign
// of x. No lane is rare: an infinity gives t = -0, a NaN flows through.
// P is frozen, of degree 4: relative error of atan 3.2e-5 on [0, 1]. Bound: 2^-12.
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct AtanEpS : Core<float> {
  static constexpr char name[] = "vsAtan";
  ORK_INLINE f32x4 eval(f32x4 x, u32x4&) {
    const f32x4 a = abs(x);
    const u32x4 large = as<u32x4>((f32x4)_mm_cmple_ps(splat(1.0f), a));
    const f32x4 t = select(large, -rcp_est(a), a), z = t * t, w = z * z;
    const f32x4 p = (0.999967813f + w * (0.184680238f + w * 0.0232986584f)) +
                    z * (-0.331611365f + w * -0.0909320414f);
    return or_bits(t * p + and_bits(splat(1.57079637f), large), as<u32x4>(x) & sign_f32x4);
  }
  static int special(const float*, float*) { return 0; }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sAtan_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::AtanEpS>(n, {{a}, {r}});
}
