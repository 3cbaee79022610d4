#pragma once
// Erf, single, LA and HA: the double scheme on the widened input, one rounding.
#include "error_functions/erf/erf.hpp"

namespace ork {

template <class Half>
struct ErfWidened : ErfCore<float> {
  static constexpr char name[] = "vsErf";
  static constexpr int vectors = 1;
  ORK_INLINE f32x4 eval(f32x4 x, u32x4&) {
    const f32x4 low = _mm_cvtpd_ps(Half::value(_mm_cvtps_pd(x)));
    const f32x4 high = _mm_cvtpd_ps(Half::value(_mm_cvtps_pd(_mm_movehl_ps(x, x))));
    return _mm_movelh_ps(low, high);
  }
};

}  // namespace ork
