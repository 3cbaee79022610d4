#pragma once
// The quick test of the exhaustive measurement.
#include <emmintrin.h>

// Which of two results may be further from the exact values, given in double, than `worst`: a
// bit each. NaNs and infinities are always suspects.
inline int worse_pair(const float* got, const double* exact, double worst, bool relative) {
  const __m128d y = _mm_cvtps_pd(_mm_castpd_ps(_mm_load_sd(reinterpret_cast<const double*>(got))));
  const __m128d x = _mm_load_pd(exact);
  const __m128d sign = _mm_set1_pd(-0.0);
  const __m128d difference = _mm_andnot_pd(sign, _mm_sub_pd(y, x));
  const __m128d magnitude = _mm_max_pd(_mm_andnot_pd(sign, x), _mm_set1_pd(0x1p-126));
  if (relative)
    return _mm_movemask_pd(_mm_cmpnle_pd(difference, _mm_mul_pd(magnitude, _mm_set1_pd(worst))));
  // 2^(23 - e) for a magnitude in [2^e, 2^(e+1)): what turns a difference into ulp of single.
  const __m128i exponent =
      _mm_and_si128(_mm_castpd_si128(magnitude), _mm_set1_epi64x(0x7FF0000000000000));
  const __m128i unit = _mm_sub_epi64(_mm_set1_epi64x((2 * 1023LL + 23) << 52), exponent);
  return _mm_movemask_pd(
      _mm_cmpnle_pd(_mm_mul_pd(difference, _mm_castsi128_pd(unit)), _mm_set1_pd(worst)));
}
