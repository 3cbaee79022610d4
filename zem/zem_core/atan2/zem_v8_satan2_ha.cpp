// Atan2, single, HA: the double LA formula on the widened lanes, rounded once. Bound: 0.51 ulp.
#include "atan2/atan2.hpp"

namespace ork {
namespace {

int vsatan2_cout_rare(const float* y, const float* x, float* r) { return atan2_special(y, x, r); }

struct Atan2HaS : Core<float, 2> {
  static constexpr char name[] = "vsAtan2";
  ORK_INLINE f32x4 eval(f32x4 y, f32x4 x, u32x4& rare) {
    rare |= atan2_rare(y, x);
    const f64x2 low = atan2_la(_mm_cvtps_pd(y), _mm_cvtps_pd(x));
    const f64x2 high =
        atan2_la(_mm_cvtps_pd(_mm_movehl_ps(y, y)), _mm_cvtps_pd(_mm_movehl_ps(x, x)));
    return _mm_movelh_ps(_mm_cvtpd_ps(low), _mm_cvtpd_ps(high));
  }
  static int special(const float* y, const float* x, float* r) {
    return vsatan2_cout_rare(y, x, r);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sAtan2_V8HAynn(int n, const float* a, const float* b, float* r) {
  ork::chunk<ork::Atan2HaS>(n, {{a, b}, {r}});
}
