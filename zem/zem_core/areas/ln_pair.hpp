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

// 1 - y w for a w next to 1/y, without the roundings of the product.
ORK_INLINE f64x2 lack_of_product(const Upper& y, const Upper& w) {
  return ((1.0 - y.high * w.high) - y.high * w.low) - y.low * w.whole;
}

// ln(y + y_low), 1 <= y < 2^1022. m c - 1 is exact: m in halves of 26 and 27 bits, c of 22.
ORK_INLINE Pair<f64x2> ln_pair(const Upper& y, f64x2 y_low) {
  const u32x4 image = as<u32x4>(y.whole);
  // The row is the top eight mantissa bits: bits 12 to 19 of the high word.
  const u32x4 j = (image & 0x000FF000) >> 12;
  const double* const row0 = log_rows_d[word<2>(j)];
  const double* const row1 = log_rows_d[word<6>(j)];
  const f64x2 first = load(row0), second = load(row1);
  const f64x2 t = _mm_unpacklo_pd(first, second), t_low = _mm_unpackhi_pd(first, second);
  // c 2^-k, by the exponent field; k through the low word of 2^52.
  const u32x4 down =
      u32x4{0, 0x3FF00000, 0, 0x3FF00000} - (image & u32x4{0, 0x7FF00000, 0, 0x7FF00000});
  const f64x2 c = as<f64x2>(as<u32x4>(gather(row0 + 2, row1 + 2)) + down);
  const f64x2 k =
      as<f64x2>((as<u64x2>(y.whole) >> 52) | splat_u64(0x4330000000000000)) - (0x1p52 + 1023);

  const f64x2 r_high = y.high * c - 1.0, r_low = (y.low + y_low) * c, r = r_high + r_low;
  const f64x2 z = r * r;
  const auto& p = ln_tail;
  const f64x2 tail = z * ((p[0] + r * p[1]) + z * ((p[2] + r * p[3]) + z * p[4]));
  constexpr double ln2 = 0x1.62e42fefa38p-1, ln2_low = 0x1.ef35793c7673p-45;  // k ln2 is exact
  const auto [row, row_lost] = exact_sum(k * ln2, t);
  const auto [sum, lost] = exact_sum(row, r_high);
  return {sum, ((k * ln2_low + t_low) + (row_lost + lost)) + (r_low + tail)};
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
