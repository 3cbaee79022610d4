#pragma once
// Atan2, single, HA: the double LA formula on the widened lanes, rounded once. Bound: 0.51 ulp.
#include "arcs/atan2.hpp"

namespace ork {

struct Atan2HaS : Core<float, 2> {
  static constexpr char name[] = "vsAtan2";
  ORK_INLINE f32x4 eval(f32x4 y, f32x4 x, u32x4& rare) {
    const f64x2 y_low = _mm_cvtps_pd(y), y_high = _mm_cvtps_pd(_mm_movehl_ps(y, y));
    const Octant<double> o_low(y_low, _mm_cvtps_pd(x)),
        o_high(y_high, _mm_cvtps_pd(_mm_movehl_ps(x, x)));
    const f32x4 zero = _mm_shuffle_ps(as<f32x4>(o_low.zero), as<f32x4>(o_high.zero), 0x88);
    rare |= atan2_rare(y, x, as<u32x4>(zero));
    const f64x2 low = atan2_la(y_low, o_low), high = atan2_la(y_high, o_high);
    return _mm_movelh_ps(_mm_cvtpd_ps(low), _mm_cvtpd_ps(high));
  }
  static int special(const float* y, const float* x, float* r) { return atan2_special(y, x, r); }
};

}  // namespace ork
