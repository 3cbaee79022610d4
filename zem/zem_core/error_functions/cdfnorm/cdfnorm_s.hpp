#pragma once
// CdfNorm, single: in double from the widened input, steps of 1/64, one rounding.
#include "error_functions/cdfnorm/cdfnorm.hpp"

namespace ork {

alignas(16) inline constexpr double cdfnorm_rows_s[][2] = {
#include "error_functions/cdfnorm/rows_s.inc"
};

template <class Series>
struct CdfNormS : Core<float> {
  static constexpr char name[] = "vsCdfNorm";
  static constexpr int vectors = 1;
  static f64x2 half(f64x2 x) {
    const CdfNormReduced r = cdfnorm_reduce<64>(x, 14.171875, 0x1p48);
    return cdfnorm_value(cdfnorm_rows_s, x, r, Series::p(r), 0x1p48);
  }
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= as<u32x4>((f32x4)_mm_cmpnlt_ps(splat(cdfnorm_limit_s), x));
    const f32x4 low = _mm_cvtpd_ps(half(_mm_cvtps_pd(x)));
    const f32x4 high = _mm_cvtpd_ps(half(_mm_cvtps_pd(_mm_movehl_ps(x, x))));
    return _mm_movelh_ps(low, high);
  }
  static int special(const float* x, float* r) { return cdfnorm_rare(x, r); }
};

}  // namespace ork
