#pragma once
#include "frame/level.hpp"
#include "ork/zem_kernels.h"
#include "roots/reduce.hpp"

namespace ork {

// {high, low} of (2^rem c_j)^(-1/3).
alignas(16) inline constexpr double invcbrt_rows[96][2] = {
#include "roots/invcbrt/rows.inc"
};
inline constexpr double invcbrt_series[9] = {
#include "roots/invcbrt/series.inc"
};

// The rare elements: zeros, denormals, infinities, NaNs.
template <class C>
int invcbrt_scalar(const typename C::type* x, typename C::type* r) {
  using T = typename C::type;
  if (magnitude(x) > infinity_bits<T>) {
    *r = *x + *x;
  } else if (magnitude(x) == infinity_bits<T>) {
    *r = as<T>(sign(x));
  } else if (*x == 0) {  // also a denormal that counts as zero
    *r = as<T>(sign(x) | infinity_bits<T>);
    return ZEM_STATUS_SINGULARITY;
  } else {
    *r = cbrt_of_denormal<C>(*x);
  }
  return ZEM_STATUS_NONE;
}

// Double reciprocal cube root, S T (1 + r P(r)), T = (2^rem c_j)^(-1/3) in two parts,
// S = 2^(341 - q) with the sign of x; within 0.53 ulp. Fast: normal x.
struct InvCbrtD : Core<double> {
  static constexpr char name[] = "vdInvCbrt";
  static constexpr bool inverse = true;
  static constexpr int vectors = 1;

  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    rare |= not_normal(x);
    const auto [difference, s, row] = CbrtReducedD::of<inverse>(x);
    const f64x2 t0 = load_aligned(invcbrt_rows[row[0]]), t1 = load_aligned(invcbrt_rows[row[1]]);
    const f64x2 high = s * _mm_unpacklo_pd(t0, t1), low = s * _mm_unpackhi_pd(t0, t1);
    const f64x2 r =
        difference * f64x2{cbrt_reciprocals[row[0] % 32], cbrt_reciprocals[row[1] % 32]};
    return high + (low + (high * r) * horner<9>(r, invcbrt_series));
  }
  static int special(const double* x, double* r) { return invcbrt_scalar<InvCbrtD>(x, r); }
};

}  // namespace ork
