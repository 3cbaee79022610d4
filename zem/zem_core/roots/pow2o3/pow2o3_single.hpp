#pragma once
#include "roots/pow2o3/pow2o3.hpp"

namespace ork {

alignas(16) inline constexpr float pow2o3_pairs_single[96][2] = {
#include "roots/pow2o3/pairs_single.inc"
};

// Single. HA: the double scheme with 4 terms of P, rounded once; those left out are below
// 2^-35. LA and EP in single, with 3 terms and 1: left out 2^-29 and 2^-15.
template <Level level>
struct Pow2o3S : Core<float> {
  static constexpr char name[] = "vsPow2o3";
  static constexpr int vectors = 1;

  // Two results in double, unscaled.
  ORK_INLINE f64x2 half(f64x2 difference, unsigned i, unsigned k) {
    f64x2 t, reciprocal;
    gather_pairs(&pow2o3_pairs[i].t, &pow2o3_pairs[k].t, t, reciprocal);
    const f64x2 r = difference * reciprocal;
    return t + (t * r) * horner(r, 0.66666666666666663, -0.11111111111113359, 0.049382716049477096,
                                -0.028806583804519968);
  }
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= not_normal(x);
    const u32x4 a = as<u32x4>(abs(x));
    // Exponents counted from one that makes q0 = 43.
    const CbrtIndex index(as<__m128i>((a >> 18) + splat_u32(64)),
                          as<__m128i>((a >> 21) + splat_u32(8)));
    const u32x4 q = as<u32x4>(index.q);
    const f32x4 s = as<f32x4>((q + q + splat_u32(127 - 86)) << 23);
    const f32x4 m = or_bits(and_bits(x, splat_u32(0x007FFFFF)), as<u32x4>(splat(1.0f)));
    const f32x4 c = or_bits(and_bits(x, splat_u32(0x007C0000)), as<u32x4>(splat(1.015625f)));
    const f32x4 difference = m - c;
    const unsigned row0 = index.get<0>(index.row), row1 = index.get<2>(index.row);
    const unsigned row2 = index.get<4>(index.row), row3 = index.get<6>(index.row);
    if constexpr (level == Level::ha) {
      const f32x4 low = _mm_cvtpd_ps(half(_mm_cvtps_pd(difference), row0, row1));
      const f32x4 high =
          _mm_cvtpd_ps(half(_mm_cvtps_pd(_mm_movehl_ps(difference, difference)), row2, row3));
      return s * (f32x4)_mm_movelh_ps(low, high);
    }
    f32x4 value, reciprocal;
    gather_pairs(pow2o3_pairs_single[row0], pow2o3_pairs_single[row1], pow2o3_pairs_single[row2],
                 pow2o3_pairs_single[row3], value, reciprocal);
    const f32x4 t = s * value, r = difference * reciprocal;
    if constexpr (level == Level::la)
      return t + (t * r) * horner(r, 0.666666667f, -0.111111111f, 0.0493827160f);
    return t + (t * r) * 0.666666667f;
  }
  static int special(const float* x, float* r) { return pow2o3_scalar<Pow2o3S>(x, r); }
};

}  // namespace ork
