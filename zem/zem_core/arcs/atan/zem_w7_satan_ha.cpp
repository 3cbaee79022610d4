// Atan, single, HA: atan a = base + atan t for a = |x|, four ranges:
//   a <= 0.4375  t = a                              base 0
//   a <= 0.72    t = (a - 0.53125)/(1 + 0.53125 a)  base atan 0.53125
//   a <= 2.29    t = (a - 1)/(1 + a)                base pi/4
//   above        t = -1/a                           base pi/2
// atan t = t + t z Q(z), z = t^2, |t| <= 0.4375; Q is frozen, of degree 4: relative error of
// atan 2^-28. No lane is rare: an infinity gives t = -0, a NaN flows through. Bound: 0.95 ulp: the
// roundings of t.
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct AtanHaS : Core<float> {
  static constexpr char name[] = "vsAtan";

  static u32x4 above(f32x4 a, uint32_t limit) {
    return (u32x4)_mm_cmpgt_epi32(as<__m128i>(a), _mm_set1_epi32((int)limit));
  }
  // The number of the range that holds: an exclusive or for each border passed.
  static f32x4 pick(u32x4 second, float c2, u32x4 third, float c3, u32x4 fourth, float c4) {
    const uint32_t b2 = as<uint32_t>(c2), b3 = as<uint32_t>(c3), b4 = as<uint32_t>(c4);
    return as<f32x4>((second & b2) ^ (third & (b2 ^ b3)) ^ (fourth & (b3 ^ b4)));
  }
  ORK_INLINE f32x4 eval(f32x4 x, u32x4&) {
    const f32x4 a = abs(x);
    const u32x4 m2 = above(a, 0x3EE00000), m3 = above(a, 0x3F3851EC), m4 = above(a, 0x40128F5C);
    const f32x4 c = pick(m2, 0.53125f, m3, 1.0f, u32x4{}, 1.0f);
    const f32x4 t = select(m4, splat(-1.0f), a - c) / select(m4, a, 1.0f + c * a), z = t * t;
    const f32x4 q =
        -0.333333045f +
        z * (0.199977338f + z * (-0.142295152f + z * (0.104903415f + z * -0.0581799187f)));
    const f32x4 high = pick(m2, 0.484375f, m3, 0.75f, m4, 1.5625f);
    const f32x4 low = pick(m2, 0.00395895122f, m3, 0.03539816290140152f, m4, 0.008296326734125614f);
    return or_bits((((t * z) * q + low) + t) + high, as<u32x4>(x) & sign_f32x4);
  }
  static int special(const float*, float*) { return 0; }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sAtan_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::AtanHaS>(n, {{a}, {r}});
}
