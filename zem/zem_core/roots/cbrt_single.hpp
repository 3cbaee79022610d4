#pragma once
#include "roots/cbrt.hpp"

namespace ork {

// Four single results s (T + T r P(r)) in double; r comes from exact differences of singles, and
// the scale s is a power of two.
template <int terms>
ORK_INLINE f32x4 cbrt_in_double(const CbrtReducedS& x, const CbrtPair<double>* table,
                                const double* series) {
  const auto half = [&](f64x2 difference, unsigned i, unsigned k) {
    const CbrtPairs pair(table, i, k);
    const f64x2 r = difference * pair.reciprocal;
    return (f32x4)_mm_cvtpd_ps(pair.t + (pair.t * r) * horner<terms>(r, series));
  };
  const f32x4 low = half(_mm_cvtps_pd(x.difference), x.row[0], x.row[1]);
  const f32x4 high =
      half(_mm_cvtps_pd(_mm_movehl_ps(x.difference, x.difference)), x.row[2], x.row[3]);
  return x.scale * (f32x4)_mm_movelh_ps(low, high);
}

// Single cube root, worked out in double: the double scheme with 4 (HA), 3 (LA) and 1 (EP) terms;
// those left out are below 2^-35, 2^-28 and 2^-15. Fast: normal x.
template <Level level>
struct CbrtS : Core<float> {
  static constexpr char name[] = "vsCbrt";
  static constexpr bool inverse = false;
  static constexpr int vectors = 1;
  static constexpr int terms = level == Level::ha ? 4 : level == Level::la ? 3 : 1;

  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= not_normal(x);
    return cbrt_in_double<terms>(CbrtReducedS::of<inverse>(x), cbrt_pairs, cbrt_series);
  }
  static int special(const float* x, float* r) { return cbrt_scalar<CbrtS>(x, r); }
};

}  // namespace ork
