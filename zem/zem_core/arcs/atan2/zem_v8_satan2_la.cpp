// Atan2, single, LA: q P(q^2). (The polynomial of Atan LA is 0.8 ulp off at q = 1.) Bound: 2.5 ulp.
#include "arcs/atan2.hpp"

namespace ork {
namespace {

struct Atan2LaS : Core<float, 2> {
  static constexpr char name[] = "vsAtan2";
  static constexpr float c[] = {
#include "arcs/atan2/poly_s_la.inc"
  };
  ORK_INLINE f32x4 eval(f32x4 y, f32x4 x, u32x4& rare) {
    const Octant<float> o(y, x);
    rare |= atan2_rare(y, x, as<u32x4>(o.zero));
    const f32x4 q = o.small / o.large, z = q * q, w = z * z;
    const f32x4 odd = c[0] + w * (c[2] + w * (c[4] + w * c[6])),
                even = c[1] + w * (c[3] + w * (c[5] + w * c[7]));
    const f32x4 rest = q * (z * odd + w * even);
    const f32x4 v = o.base + (xor_bits(q, o.flip) + (xor_bits(rest, o.flip) + o.base_low));
    return or_bits(v, as<u32x4>(y) & sign_f32x4);
  }
  static int special(const float* y, const float* x, float* r) { return atan2_special(y, x, r); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sAtan2_V8LAynn(int n, const float* a, const float* b, float* r) {
  ork::chunk<ork::Atan2LaS>(n, {{a, b}, {r}});
}
