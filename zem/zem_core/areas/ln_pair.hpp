#pragma once
// The HA inverse hyperbolics, double, are what ln_extended gives, to the bit. Its chain on the x87
// unit takes 56 to 120 cycles an element, so the argument of the logarithm and the logarithm are
// first formed in two words; `settled` tells where these decide the rounding. The words' own
// errors are below 2^-67, an eighth of what the extended format leaves in the result.
#include "areas/ln_extended.hpp"
#include "base/pair.hpp"
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {

// sqrt(s + e) for an e small against s: the root and half its remainder, divided.
ORK_INLINE Pair<f64x2> root_pair(f64x2 s, f64x2 e) {
  const Upper h(sqrt(s));
  const f64x2 left = (((s - h.high * h.high) - (h.high + h.high) * h.low) - h.low * h.low) + e;
  return {h.whole, left * (0.5 / h.whole)};
}

// x^2 in two words, |x| < 2^500.
ORK_INLINE Pair<f64x2> square_pair(f64x2 a) {
  const Upper x(a);
  const f64x2 p = a * a;
  return {p, ((x.high * x.high - p) + (x.high + x.high) * x.low) + x.low * x.low};
}

// ln(y + y_low), 1 <= y < 2^1022. m c - 1 is exact: m in halves of 26 and 27 bits, c of 22.
ORK_INLINE Pair<f64x2> ln_pair(f64x2 y, f64x2 y_low) {
  const u32x4 exponent = as<u32x4>(y) & u32x4{0, 0x7FF00000, 0, 0x7FF00000};
  const f64x2 scale = as<f64x2>(u32x4{0, 0x7FE00000, 0, 0x7FE00000} - exponent);  // 2^-k
  // The row is the top eight mantissa bits: bits 12 to 19 of the high word.
  const __m128i j = (__m128i)((as<u32x4>(y) & 0x000FF000) >> 12);
  const double* const row0 = log_rows_d[word<2>(j)];
  const double* const row1 = log_rows_d[word<6>(j)];
  const f64x2 first = load(row0), second = load(row1);
  const f64x2 t = _mm_unpacklo_pd(first, second), t_low = _mm_unpackhi_pd(first, second);
  const f64x2 c = gather(row0 + 2, row1 + 2) * scale;
  const __m128i field = _mm_shuffle_epi32((__m128i)(exponent >> 20), 0x0D);
  const f64x2 k = _mm_cvtepi32_pd(_mm_sub_epi32(field, _mm_set1_epi32(1023)));

  const Upper m(y);
  const f64x2 r_high = m.high * c - 1.0, r_low = (m.low + y_low) * c, r = r_high + r_low;
  constexpr double ln2 = 0x1.62e42fefa38p-1, ln2_low = 0x1.ef35793c7673p-45;  // k ln2 is exact
  const auto [row, row_lost] = exact_sum(k * ln2, t);
  const auto [sum, lost] = exact_sum(row, r_high);
  return {sum, ((k * ln2_low + t_low) + (row_lost + lost)) + (r_low + r * ln_tail(r))};
}

// high + low to the nearest double; lanes that an error of `error` could change are marked rare,
// and as NaNs for a second path.
ORK_INLINE f64x2 settled(const Pair<f64x2>& x, f64x2 error, u32x4& rare) {
  const f64x2 r = x.high + (x.low + error);
  const u64x2 open = (u64x2)_mm_cmpneq_pd(r, x.high + (x.low - error));
  rare |= as<u32x4>(open);
  return or_bits(r, open);
}

}  // namespace ork
