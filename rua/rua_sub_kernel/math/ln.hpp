// Natural logarithm of one double, in plain code: for loops that take it of few values, where
// a vector kernel's call and mode do not pay.
//
// x = 2^k z with z in [0.6875, 1.375), cut into 128 intervals; c is near 1/z and r = z c - 1,
// exactly, with |r| <= 2^-7: ln x = k ln 2 - ln c + ln(1 + r). Beside x = 1 c is 1, so the
// result has its full relative accuracy there: 0.52 ulp throughout.
#pragma once
#include <stdint.h>

#include "base/vec.hpp"

namespace ork {

struct LnRow {
  double c, high, low;
};
static constexpr LnRow kLnRows[128] = {
#include "rua_sub_kernel/math/ln_rows.inc"
};

inline uint32_t high_word_of(__m128i image) {
  return uint32_t(_mm_cvtsi128_si32(_mm_srli_epi64(image, 32)));
}

inline double ln(double x) {
  // ln 2 to a multiple of 2^-42, so that k of it and a row's high part add exactly.
  constexpr double ln2_high = 0x1.62E42FEFA38p-1, ln2_low = 0x1.EF35793C7673p-45;
  __m128i image = _mm_castpd_si128(_mm_set_sd(x));
  uint32_t high_word = high_word_of(image);
  int k = 0;
  if (__builtin_expect(high_word - 0x00100000 >= 0x7FE00000, 0)) {
    // Not positive, normal and finite.
    if (x == 0) return -__builtin_inf();
    if (!(x > 0 && x < __builtin_inf())) return x > 0 || x != x ? x + x : __builtin_nan("");
    image = _mm_castpd_si128(_mm_set_sd(x * 0x1p54));
    high_word = high_word_of(image);
    k = -54;
  }
  const uint32_t from_lowest = high_word - 0x3FE60000;
  k += int32_t(from_lowest) >> 20;
  const LnRow& row = kLnRows[from_lowest >> 13 & 127];
  const __m128i exponent = _mm_cvtsi32_si128(int(from_lowest & 0xFFF00000));
  const __m128i z_image = _mm_sub_epi32(image, _mm_slli_epi64(exponent, 32));
  const double z = _mm_cvtsd_f64(_mm_castsi128_pd(z_image));
  const double z_high = _mm_cvtsd_f64(
      _mm_castsi128_pd(_mm_and_si128(z_image, _mm_set1_epi64x(int64_t(0xFFFFFFFF00000000)))));
  // Every step is exact: c has 8 bits, z_high 21.
  const double r = (z_high * row.c - 1) + (z - z_high) * row.c;
  const double rr = r * r;
  // ln(1 + r) = r + r^2 q; the first term left out is r^9/9, below 2^-59 of r.
  const double q =
      (-1.0 / 2 + r * 0x1.5555555555555p-2) +
      rr * ((-1.0 / 4 + r * 0x1.999999999999Ap-3) +
            rr * ((-0x1.5555555555555p-3 + r * 0x1.2492492492492p-3) - rr * (1.0 / 8)));
  const double whole = k * ln2_high + row.high;
  const double sum = whole + r;  // |whole| > |r| or 0
  const double rest = (whole - sum) + r + (k * ln2_low + row.low);
  return sum + (rest + rr * q);
}

}  // namespace ork
