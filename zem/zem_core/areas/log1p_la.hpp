#pragma once
// ln(1 + u) for u >= 0 below 2^1000, double, LA, shared by Asinh, Acosh and Atanh:
// s + e = 1 + u, s = 2^k m; r = (m + e 2^-k) c_j - 1, exact in its main part as m is split at
// its high word and c_j is short; ln = k ln 2 + (T_j + (r + r^2 q(r))). A tiny u comes out
// as it is: s = 1, k = 0, c = 1, T = 0.
#include "areas/log_rows.hpp"
#include "frame/block.hpp"
#include "frame/chunk.hpp"
#include "frame/kernel.hpp"
#include "ork/zem_kernels.h"

namespace ork {

inline constexpr double log1p_tail_la[] = {
#include "areas/tail_d_la.inc"
};

ORK_INLINE f64x2 log1p_la(f64x2 u) {
  const f64x2 s = 1.0 + u;
  const f64x2 e = ((f64x2)_mm_max_pd(u, splat(1.0)) - s) + (f64x2)_mm_min_pd(u, splat(1.0));
  const u32x4 exponent = as<u32x4>(s) & u32x4{0, 0x7FF00000, 0, 0x7FF00000};
  const f64x2 scale = as<f64x2>(u32x4{0, 0x7FE00000, 0, 0x7FE00000} - exponent);  // 2^-k
  const f64x2 m =
      or_bits(and_bits(s, splat_u64(0x000FFFFFFFFFFFFF)), splat_u64(0x3FF0000000000000));
  const f64x2 m_high = and_bits(m, splat_u64(0x7FFFFFFF00000000));
  // The row is the top eight mantissa bits: bits 12 to 19 of the high word.
  const __m128i j = (__m128i)((as<u32x4>(s) & 0x000FF000) >> 12);
  const double* const row0 = log_rows_d[_mm_extract_epi16(j, 2)];
  const double* const row1 = log_rows_d[_mm_extract_epi16(j, 6)];
  const f64x2 t = _mm_loadh_pd(_mm_load_sd(row0), row1),
              c = _mm_loadh_pd(_mm_load_sd(row0 + 2), row1 + 2);
  const __m128i field = _mm_shuffle_epi32((__m128i)(exponent >> 20), 0x0D);
  const f64x2 k = _mm_cvtepi32_pd(_mm_sub_epi32(field, _mm_set1_epi32(1023)));
  const f64x2 r = (m_high * c - 1.0) + ((m - m_high) + e * scale) * c;
  f64x2 q = splat(log1p_tail_la[5]);
#pragma GCC unroll 8
  for (int i = 4; i >= 0; --i) q = log1p_tail_la[i] + r * q;
  return k * 0.69314718055994531 + (t + (r + r * (r * q)));
}

// ln(2 a) for a >= 2^200: the scale comes out again.
inline double ln_twice(double a) {
  return log1p_la(splat(a * 0x1p-200))[0] + 201 * 0.69314718055994531;
}

}  // namespace ork
