#pragma once
// Tanh, single: as tanh_d.hpp, with rows of their own. The centre of a row is made of the
// argument's own bits, 0 in row 0.
#include "frame/block.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"

namespace ork {

alignas(16) inline constexpr float tanh_rows_s[52][8] = {
#include "exponentials/tanh/rows_s.inc"
};
alignas(16) inline constexpr float tanh_rows_s_ep[52][4] = {
#include "exponentials/tanh/rows_s_ep.inc"
};

struct TanhBaseS : Core<float> {
  static constexpr char name[] = "vsTanh";

  // The row of each lane; infinities and NaNs are rare.
  static __m128i row_of(f32x4 a, u32x4& rare) {
    rare |= 0x7F7FFFFF - as<u32x4>(a);
    return _mm_min_epi16(_mm_subs_epu16(_mm_srli_epi32(as<__m128i>(a), 20), _mm_set1_epi32(0x3DF)),
                         _mm_set1_epi32(51));
  }
  static f32x4 from_centre(f32x4 a, __m128i row) {
    const u32x4 centre = (as<u32x4>(a) & 0x7FF00000) | 0x00080000;
    return a - and_bits(as<f32x4>(centre), (u32x4)_mm_cmpgt_epi32(row, _mm_setzero_si128()));
  }
  // Four numbers of each lane's row, transposed.
  template <int shift>
  static void columns(const float* rows, __m128i row, f32x4 (&c)[4]) {
    const __m128i offset = _mm_slli_epi32(row, shift);
    const char* const p = (const char*)rows;
    c[0] = *(const f32x4*)(p + _mm_cvtsi128_si32(offset));
    c[1] = *(const f32x4*)(p + _mm_extract_epi16(offset, 2));
    c[2] = *(const f32x4*)(p + _mm_extract_epi16(offset, 4));
    c[3] = *(const f32x4*)(p + _mm_extract_epi16(offset, 6));
    _MM_TRANSPOSE4_PS(c[0], c[1], c[2], c[3]);
  }
  static int special(const float* x, float* r) {
    *r = *x != *x ? *x + *x : *x < 0 ? -1.0f : 1.0f;
    return 0;
  }
};

// c2 is held in two parts: t times the first is exact.
template <bool low_word>
struct TanhS : TanhBaseS {
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    const f32x4 a = abs(x);
    const __m128i row = row_of(a, rare);
    f32x4 high[4], low[4];
    columns<5>(tanh_rows_s[0] + 4, row, high);
    columns<5>(tanh_rows_s[0], row, low);
    const f32x4 t = from_centre(a, row);
    f32x4 p = t * (low[3] + t * (high[0] + t * (high[1] + t * (high[2] + t * high[3]))));
    if (low_word) p += low[0];
    return or_bits((p + t * low[2]) + low[1], as<u32x4>(x) & sign_f32x4);
  }
};

// Cubics.
struct TanhEpS : TanhBaseS {
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    const f32x4 a = abs(x);
    const __m128i row = row_of(a, rare);
    f32x4 c[4];
    columns<4>(tanh_rows_s_ep[0], row, c);
    const f32x4 t = from_centre(a, row);
    return or_bits(c[0] + t * (c[1] + t * (c[2] + t * c[3])), as<u32x4>(x) & sign_f32x4);
  }
};

}  // namespace ork
