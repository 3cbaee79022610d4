#pragma once
#include "frame/level.hpp"
#include "ork/zem_kernels.h"
#include "roots/reduce.hpp"

namespace ork {

// {high, low} of (2^rem c_j)^(1/3), and the rounded value with 1 / c_j.
alignas(16) inline constexpr double cbrt_rows[96][2] = {
#include "roots/cbrt_rows.inc"
};
alignas(16) inline constexpr CbrtPair<double> cbrt_pairs[96] = {
#include "roots/cbrt_pairs.inc"
};

// ((1 + r)^(1/3) - 1) / r, |r| <= 2^-6, frozen. The root by the series, for HA and single
// precision, to 2^-59.7; by the fit, for LA, to 2^-52.7.
inline constexpr double cbrt_series[8] = {
    1.0 / 3,
    -0.1111111111111111,
    0.061728395061728392,
    -0.041152263374485597,
    0.03017832647462277,
    -0.023472031702484377,
    0.019001168521058782,
    -0.015834307100882319,
};
inline constexpr double cbrt_fit[6] = {
    0.33333333333334197,   -0.11111111111115433, 0.061728394424492537,
    -0.041152262253336458, 0.030185286318645244, -0.023479765303421718,
};

// The rare elements: zeros, denormals, infinities, NaNs. Nothing is reported.
template <class C>
int cbrt_scalar(const typename C::type* x, typename C::type* r) {
  using T = typename C::type;
  if (magnitude(x) >= infinity_bits<T>) {
    *r = *x + *x;
  } else if (*x == 0) {  // also a denormal that counts as zero
    *r = as<T>(sign(x));
  } else {
    *r = cbrt_of_denormal<C>(*x);
  }
  return ZEM_STATUS_NONE;
}

// Double cube root, S T (1 + r P(r)), T = (2^rem c_j)^(1/3), S = 2^(q - 341) with the sign of x.
// HA: T in two parts; within 0.53 ulp. LA: within 2 ulp. Fast: normal x.
template <Level level>
struct CbrtD : Core<double> {
  static constexpr char name[] = "vdCbrt";
  static constexpr bool inverse = false;
  static constexpr int vectors = 1;

  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    rare |= not_normal(x);
    const auto [difference, s, row] = CbrtReducedD::of<inverse>(x);
    if constexpr (level == Level::ha) {
      const f64x2 t0 = load_aligned(cbrt_rows[row[0]]), t1 = load_aligned(cbrt_rows[row[1]]);
      const f64x2 high = s * _mm_unpacklo_pd(t0, t1), low = s * _mm_unpackhi_pd(t0, t1);
      const f64x2 r =
          difference * f64x2{cbrt_reciprocals[row[0] % 32], cbrt_reciprocals[row[1] % 32]};
      return high + (low + (high * r) * horner<8>(r, cbrt_series));
    } else {
      const CbrtPairs pair(cbrt_pairs, row[0], row[1]);
      const f64x2 t = s * pair.t, r = difference * pair.reciprocal;
      return t + (t * r) * horner<6>(r, cbrt_fit);
    }
  }
  static int special(const double* x, double* r) { return cbrt_scalar<CbrtD>(x, r); }
};

}  // namespace ork
