#pragma once
// Pow, single, worked out in double: a^b = 2^(b log2 a). With a = 2^k m, c near 1/m of 24 bits,
// log2 a = k + log2(1/c) + log2(1 + r), r = m c - 1 exact, |r| <= 2^-8. 2^q = 2^n 2^(j/128) 2^f,
// |f| <= 1/256. The result is rounded to single once, overflow and denormals included.
// HA: polynomials of degree 5 and 4, within 0.501 ulp. EP: degree 3 and 1, relative error 2^-17.
// Fast: normal a > 0, finite b, |b log2 a| < 1000. pow_rare: the others.
#include "common/exp_tables.hpp"
#include "frame/block.hpp"
#include "frame/level.hpp"
#include "ork/zem_kernels.h"
#include "powers/special.hpp"

namespace ork {

// c_i and log2(1/c_i).
alignas(16) inline constexpr double pow_rows_single[129][2] = {
#include "powers/rows_s.inc"
};

// q = b log2 a of a normal a > 0.
template <Level level>
ORK_INLINE f64x2 pow_exponent_s(f64x2 a, f64x2 b) {
  constexpr double l[] = {
#include "powers/log_s.inc"
  };
  const u32x4 word = as<u32x4>(a);
  const u32x4 row = ((word & 0x000FF000) + 0x1000) >> 13;
  // k steps up where the mantissa rounds to row 64, 1.5: 1 has log2 a = 0 from both sides.
  const u32x4 k_word =
      (as<u32x4>(as<i32x4>(word - 0x3FE7F000) >> 20) + 0x41380000) & u32x4{0, ~0u, 0, ~0u};
  const f64x2 k = as<f64x2>(k_word) - 1572864.0;
  const f64x2 m = or_bits(and_bits(a, splat_u64(0x000FFFFFFFFFFFFF)), as<u64x2>(splat(1.0)));
  f64x2 c, h;
  gather_pairs(pow_rows_single[ork::word<2>(row)], pow_rows_single[ork::word<6>(row)], c, h);
  const f64x2 r = m * c - 1.0;
  const f64x2 p = r * (level == Level::ep ? horner(r, l[0], l[1], l[2])
                                          : horner(r, l[0], l[1], l[2], l[3], l[4]));
  return b * ((k + h) + p);
}

// 2^q, |q| < 1000, or 0 in the lanes of `none`: what comes out of other q might raise a flag.
template <Level level>
ORK_INLINE f64x2 pow_exp2_s(f64x2 q, u32x4 none) {
  constexpr double e[] = {
#include "powers/exp_s.inc"
  };
  constexpr double shifter = 52776558133248.0;  // 1.5 * 2^45: the unit is 1/128
  const f64x2 t = q + shifter, f = q - (t - shifter);
  const u32x4 j = as<u32x4>(t) & 127;
  const f64x2 fraction = gather((const double*)exp_mantissa128_d + j[0],
                                (const double*)exp_mantissa128_d + ork::word<4>(j));
  const u64x2 scale = as<u64x2>(as<u32x4>(t) + u32x4{1023 << 7, 0, 1023 << 7, 0}) << 45;
  const f64x2 s =
      and_bits(or_bits(fraction, scale & splat_u64(0x7FF0000000000000)), ~as<u64x2>(none));
  if constexpr (level == Level::ep) return s + s * (f * e[0]);
  return s + s * (f * horner(f, e[0], e[1], e[2], e[3]));
}

template <Level level>
ORK_INLINE f32x4 pow_main(f32x4 a, f32x4 b, u32x4& rare) {
  const f64x2 q_low = pow_exponent_s<level>(_mm_cvtps_pd(a), _mm_cvtps_pd(b));
  const f64x2 q_high =
      pow_exponent_s<level>(_mm_cvtps_pd(_mm_movehl_ps(a, a)), _mm_cvtps_pd(_mm_movehl_ps(b, b)));
  const f32x4 q = _mm_shuffle_ps(as<f32x4>(q_low), as<f32x4>(q_high), 0xDD);  // high words
  const i32x4 out = (as<i32x4>(as<u32x4>(a) + 0x00800000) < as<i32x4>(splat_u32(0x01000000))) |
                    (as<i32x4>(abs(b)) > as<i32x4>(splat_u32(0x7F7FFFFF))) |
                    (as<i32x4>(abs(q)) > as<i32x4>(splat_u32(0x408F3FFE)));
  rare |= as<u32x4>(out);
  const f32x4 o = as<f32x4>(out);
  const f32x4 low = _mm_cvtpd_ps(pow_exp2_s<level>(q_low, as<u32x4>((f32x4)_mm_unpacklo_ps(o, o))));
  const f32x4 high =
      _mm_cvtpd_ps(pow_exp2_s<level>(q_high, as<u32x4>((f32x4)_mm_unpackhi_ps(o, o))));
  return _mm_movelh_ps(low, high);
}

int pow_rare(const float* a, const float* b, float* r);

template <Level level>
struct PowS : Core<float, 2> {
  static constexpr char name[] = "vsPow";
  static constexpr int vectors = 1;
  static constexpr unsigned x87 = level == Level::ha ? x87_double : 0;

  ORK_INLINE f32x4 eval(f32x4 a, f32x4 b, u32x4& rare) { return pow_main<level>(a, b, rare); }
  static int special(const float* a, const float* b, float* r) { return pow_rare(a, b, r); }
};

}  // namespace ork
