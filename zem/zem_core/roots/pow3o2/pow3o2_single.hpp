#pragma once
#include "roots/pow3o2/pow3o2.hpp"

namespace ork {

alignas(16) inline constexpr float pow3o2_pairs_single[64][2] = {
#include "roots/pow3o2/pairs_single.inc"
};

// Single. HA: the double scheme with 4 terms of P, scaled in double and rounded once; those left
// out are below 2^-36. LA and EP in single, with 3 terms and 1: left out 2^-29 and 2^-13.4.
// Fast: positive normal x, at LA and EP 2^-67 <= x < 2^84, so that no term of the scaled sum is
// denormal. special: x sqrt(x) in double.
template <Level level>
struct Pow3o2S : Core<float> {
  static constexpr char name[] = "vsPow3o2";
  static constexpr int vectors = 1;

  // Two results in double.
  ORK_INLINE f64x2 half(f64x2 difference, f64x2 s, unsigned i, unsigned k) {
    f64x2 t, reciprocal;
    gather_pairs(&pow3o2_pairs[i].t, &pow3o2_pairs[k].t, t, reciprocal);
    const f64x2 r = difference * reciprocal;
    return s * (t + (t * r) * horner(r, 1.5, 0.375, -0.0625, 0.0234375));
  }
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    constexpr uint32_t first = level == Level::ha ? 0x00800000 : 0x1E000000;
    constexpr uint32_t last = level == Level::ha ? 0x7F7FFFFF : 0x697FFFFF;
    rare |= (as<u32x4>(x) - first) | (last - as<u32x4>(x)) | as<u32x4>(x);
    const u32x4 index = as<u32x4>(level == Level::ha ? abs(x) : x) >> 18;  // -0 would overflow
    const u32x4 row = (index ^ 32) & 63;
    const u32x4 q = (index - 32) >> 6, exponent = q + q + q;
    const f32x4 m = or_bits(and_bits(x, splat_u32(0x007FFFFF)), as<u32x4>(splat(1.0f)));
    const f32x4 c = or_bits(and_bits(x, splat_u32(0x007C0000)), as<u32x4>(splat(1.015625f)));
    const f32x4 difference = m - c;
    const unsigned row0 = row[0], row1 = word<2>(row), row2 = word<4>(row), row3 = word<6>(row);
    if constexpr (level == Level::ha) {
      const __m128i high_word = as<__m128i>((exponent + (1023 - 189)) << 20), none = {};
      const f32x4 low = _mm_cvtpd_ps(half(
          _mm_cvtps_pd(difference), as<f64x2>(_mm_unpacklo_epi32(none, high_word)), row0, row1));
      const f32x4 high =
          _mm_cvtpd_ps(half(_mm_cvtps_pd(_mm_movehl_ps(difference, difference)),
                            as<f64x2>(_mm_unpackhi_epi32(none, high_word)), row2, row3));
      return _mm_movelh_ps(low, high);
    }
    const f32x4 s = as<f32x4>((exponent - 62) << 23);
    f32x4 value, reciprocal;
    gather_pairs(pow3o2_pairs_single[row0], pow3o2_pairs_single[row1], pow3o2_pairs_single[row2],
                 pow3o2_pairs_single[row3], value, reciprocal);
    const f32x4 t = s * value, r = difference * reciprocal;
    if constexpr (level == Level::la) return t + (t * r) * horner(r, 1.5f, 0.375f, -0.0625f);
    return t + (t * r) * 1.5f;
  }
  static int special(const float* x, float* r) {
    int status;
    if (!pow3o2_is_positive(x, r, status)) return status;
    const double wide = *x;
    *r = (float)(wide * sqrt(splat(wide))[0]);  // infinity gives infinity
    return ZEM_STATUS_NONE;
  }
};

}  // namespace ork
