// Atan2, single, LA: q P(q^2), the polynomial of Atan LA. Bound: 2.5 ulp.
#include "atan2/atan2.hpp"

namespace ork {
namespace {

struct Atan2LaS : Core<float, 2> {
  static constexpr char name[] = "vsAtan2";
  ORK_INLINE f32x4 eval(f32x4 y, f32x4 x, u32x4& rare) {
    rare |= atan2_rare(y, x);
    const Octant<float> o(y, x);
    const f32x4 q = o.small / o.large, z = q * q, w = z * z;
    const f32x4 odd = -0.333330721f + w * (-0.142036438f + w * (-0.0750429481f + w * -0.0160686299f));
    const f32x4 even = 0.199926198f + w * (0.106409341f + w * (0.0426915213f + w * 0.00284988969f));
    const f32x4 v = q + q * (z * odd + w * even);
    return or_bits(o.base + xor_bits(v, o.flip), as<u32x4>(y) & sign_f32x4);
  }
  static int special(const float* y, const float* x, float* r) { return atan2_special(y, x, r); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sAtan2_V8LAynn(int n, const float* a, const float* b, float* r) {
  ork::chunk<ork::Atan2LaS>(n, {{a, b}, {r}});
}
