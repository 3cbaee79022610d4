#pragma once
// The logarithms of the single inverse hyperbolics.
#include "areas/log1p_la.hpp"
#include "base/pair.hpp"

namespace ork {

// HA works in double: the lanes go through in two halves, rounded once.
template <class F>
ORK_INLINE f32x4 in_double(f32x4 x, F f) {
  const f64x2 low = f((f64x2)_mm_cvtps_pd(x)), high = f((f64x2)_mm_cvtps_pd(_mm_movehl_ps(x, x)));
  return _mm_movelh_ps(_mm_cvtpd_ps(low), _mm_cvtpd_ps(high));
}

// ln y for y >= 1 with an absolute error of 2^-48: k ln 2 + (T_j + ln(1 + r)), r = m c_j - 1.
ORK_INLINE f64x2 ln_short(f64x2 y) {
  constexpr double tail[] = {
#include "areas/tail_s_ha.inc"
  };
  const f64x2 m =
      or_bits(and_bits(y, splat_u64(0x000FFFFFFFFFFFFF)), splat_u64(0x3FF0000000000000));
  const __m128i j = (__m128i)((as<u32x4>(y) & 0x000FF000) >> 12);
  const double* const row0 = log_rows_d[_mm_extract_epi16(j, 2)];
  const double* const row1 = log_rows_d[_mm_extract_epi16(j, 6)];
  const f64x2 t = _mm_loadh_pd(_mm_load_sd(row0), row1),
              c = _mm_loadh_pd(_mm_load_sd(row0 + 2), row1 + 2);
  const __m128i field = _mm_shuffle_epi32((__m128i)(as<u32x4>(y) >> 20), 0x0D);
  const f64x2 k = _mm_cvtepi32_pd(_mm_sub_epi32(field, _mm_set1_epi32(1023)));
  const f64x2 r = m * c - 1.0;
  return (k * 0.69314718055994531 + t) + (r + r * (r * (tail[0] + r * (tail[1] + r * tail[2]))));
}

// ln(1 + u) for 0 <= u < 2^100 in single: s + e = 1 + u, s = 2^k m, m in [2/3, 4/3),
// v = (m - 1) + e 2^-k; ln = k ln 2 + (v + v^2 q(v)). q of LA is frozen, that of Ln HA:
// ln(1 + v) to 2^-28.7 for |v| <= 1/3.
template <bool ep>
ORK_INLINE f32x4 log1p_s(f32x4 u) {
  const f32x4 s = 1.0f + u;
  const f32x4 e = ((f32x4)_mm_max_ps(u, splat(1.0f)) - s) + (f32x4)_mm_min_ps(u, splat(1.0f));
  const i32x4 d = as<i32x4>(as<u32x4>(s) - 0x3F2AAAAB), k = d >> 23;
  const f32x4 m = as<f32x4>((d & 0x7FFFFF) + 0x3F2AAAAB);
  const f32x4 scale = as<f32x4>((127 - k) << 23), n = _mm_cvtepi32_ps(as<__m128i>(k));
  const f32x4 v = (m - 1.0f) + e * scale;
  if constexpr (ep) {
    constexpr float c[] = {
#include "areas/tail_s_ep.inc"
    };
    return n * 0.693147182f + (v + v * (v * (c[0] + v * (c[1] + v * (c[2] + v * c[3])))));
  } else {
    const f32x4 q =
        -0.5f +
        v * (0.333332151f +
             v * (-0.249997973f +
                  v * (0.200104058f +
                       v * (-0.16680488f +
                            v * (0.140058696f +
                                 v * (-0.121842608f + v * (0.139844373f + v * -0.12891686f)))))));
    // v cancels in k ln 2: what that sum loses is kept.
    const auto [sum, lost] = exact_sum(n * 0.693145752f, v);
    return sum + (v * (v * q) + (n * 1.42860677e-06f + lost));
  }
}

}  // namespace ork
