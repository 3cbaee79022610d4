#pragma once
// Tanh, double: a = |x| picks a row by its exponent and three mantissa bits (tanh_rows_d),
// t = a + shift, tanh a = c1 + (c2 t + t^2 (c3 + c4 t + ...) + c0), with the sign of x.
// c2 t stands outside of Horner's form: in row 0, where c1 = 0 and c2 = 1, it is exact.
// Rare: infinities and NaNs.
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {

alignas(16) inline constexpr double tanh_rows_d[60][16] = {
#include "exponentials/tanh/rows_d.inc"
};

template <bool low_word>
struct TanhD : Core<double> {
  static constexpr char name[] = "vdTanh";

  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    const f64x2 a = abs(x);
    rare |= splat_u32(0x7FEFFFFF) - as<u32x4>(a);
    // Of each lane's four 16-bit words only the top one is used.
    const __m128i top = _mm_set_epi16(0x1FDF, -1, -1, -1, 0x1FDF, -1, -1, -1);
    const __m128i last = _mm_set_epi16(59, 0, 0, 0, 59, 0, 0, 0);
    const __m128i row = _mm_min_epi16(_mm_subs_epu16(_mm_srli_epi16(as<__m128i>(a), 1), top), last);
    const __m128i offset = _mm_slli_epi16(row, 7);
    const char* const row0 = (const char*)tanh_rows_d + _mm_extract_epi16(offset, 3);
    const char* const row1 = (const char*)tanh_rows_d + _mm_extract_epi16(offset, 7);
    // Coefficients n and n + 1 of the two lanes.
    const auto pair = [&](int n, f64x2& second) -> f64x2 {
      const f64x2 low = *(const f64x2*)(row0 + 8 * n), high = *(const f64x2*)(row1 + 8 * n);
      second = _mm_unpackhi_pd(low, high);
      return _mm_unpacklo_pd(low, high);
    };
    f64x2 c1, none;
    const f64x2 t = a + pair(12, none);
    f64x2 p;
    f64x2 c = pair(10, p);
    p = c + t * p;
#pragma GCC unroll 4
    for (int n = 8; n >= 4; n -= 2) {
      f64x2 upper;
      c = pair(n, upper);
      p = c + t * (upper + t * p);
    }
    f64x2 c3;
    const f64x2 c2 = pair(2, c3), c0 = pair(0, c1);
    p = t * (t * (c3 + t * p));
    if (low_word) p += c0;
    return or_bits((p + t * c2) + c1, as<u64x2>(x) & sign_f64x2);
  }
  static int special(const double* x, double* r) {
    *r = *x != *x ? *x + *x : *x < 0 ? -1.0 : 1.0;
    return 0;
  }
};

}  // namespace ork
