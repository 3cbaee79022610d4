// Atan, single, LA: t P(t^2) with t = |x| below 1, else t = y (|x| y - 2), y = rcp |x|: -1/|x|
// by one Newton step, and pi/2 added; the sign of x.
// P is frozen, of degree 8: relative error of atan 2^-23.9 on [0, 1].
// Rare: infinities alone. Bound: 3.6 ulp: rcp squared is 2^-23.
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct AtanLaS : Core<float> {
  static constexpr char name[] = "vsAtan";
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    const f32x4 a = abs(x);
    const u32x4 large = as<u32x4>((f32x4)_mm_cmple_ps(splat(1.0f), a));
    rare |= as<u32x4>((f32x4)_mm_cmpeq_ps(a, splat(__builtin_inff())));
    const f32x4 y = and_bits(rcp_est(a), large);  // of 0 it is infinite
    const f32x4 t = select(large, y * (a * y - 2.0f), a);
    const f32x4 z = t * t, w = z * z;
    const f32x4 odd =
        -0.333330721f + w * (-0.142036438f + w * (-0.0750429481f + w * -0.0160686299f));
    const f32x4 even = 0.199926198f + w * (0.106409341f + w * (0.0426915213f + w * 0.00284988969f));
    const f32x4 p = 1.0f + (z * odd + w * even);
    return or_bits(t * p + and_bits(splat(1.57079637f), large), as<u32x4>(x) & sign_f32x4);
  }
  static int special(const float* x, float* r) {
    *r = __builtin_copysignf(1.57079637f, *x);
    return 0;
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sAtan_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::AtanLaS>(n, {{a}, {r}});
}
