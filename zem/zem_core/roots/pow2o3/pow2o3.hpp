#pragma once
// x^(2/3) = (x^2)^(1/3), the sign dropped. With the cube root's reduction |x| = 2^(3(q - q0) + rem)
// m, m = c_j (1 + r), c_j = 1 + (2j + 1)/64, |r| <= 2^-6: S T (1 + r P(r)), T = (c_j 2^rem)^(2/3),
// S = 2^(2(q - q0)). Fast: normal x.
#include "frame/level.hpp"
#include "ork/zem_kernels.h"
#include "roots/reduce.hpp"

namespace ork {

alignas(16) inline constexpr double pow2o3_rows[96][2] = {
#include "roots/pow2o3/rows.inc"
};
alignas(16) inline constexpr CbrtPair<double> pow2o3_pairs[96] = {
#include "roots/pow2o3/pairs.inc"
};

// The rare elements: zeros, denormals, infinities, NaNs. Nothing is reported.
template <class C>
int pow2o3_scalar(const typename C::type* x, typename C::type* r) {
  using T = typename C::type;
  if (magnitude(x) == infinity_bits<T>) {
    *r = as<T>(infinity_bits<T>);
  } else if (magnitude(x) > infinity_bits<T>) {
    *r = *x + *x;
  } else if (*x == 0) {  // also a denormal that counts as zero
    *r = 0;
  } else {
    u32x4 rare{};
    *r = C::eval(splat(*x * T(0x1p60)), rare)[0] * T(0x1p-40);
  }
  return ZEM_STATUS_NONE;
}

// Double. HA: T in two parts, P to degree 6; within 0.53 ulp. LA: T in one word, a fit of
// degree 5. EP: the first 3 terms, relative error 2^-29.
template <Level level>
struct Pow2o3D : Core<double> {
  static constexpr char name[] = "vdPow2o3";
  static constexpr int vectors = 1;

  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    rare |= not_normal(x);
    const u64x2 a = as<u64x2>(abs(x));
    const CbrtIndex index(as<__m128i>(a >> 47), as<__m128i>(a >> 50));
    const u64x2 q = as<u64x2>(index.q);
    const f64x2 s = as<f64x2>((q + q + splat_u64(1023 - 682)) << 52);
    const f64x2 m = or_bits(and_bits(x, splat_u64(0x000FFFFFFFFFFFFF)), as<u64x2>(splat(1.0)));
    const f64x2 c = or_bits(and_bits(x, splat_u64(0x000F800000000000)), as<u64x2>(splat(1.015625)));
    const unsigned row0 = index.get<0>(index.row), row1 = index.get<4>(index.row);
    if constexpr (level == Level::ha) {
      f64x2 high, low;
      gather_pairs(pow2o3_rows[row0], pow2o3_rows[row1], high, low);
      const f64x2 r = (m - c) * gather(&cbrt_reciprocals[row0 % 32], &cbrt_reciprocals[row1 % 32]);
      const f64x2 t = s * high;
      // Frozen: (1 + r)^(2/3) to 2^-60 for |r| <= 2^-6; its first three, at EP, to 2^-29.
      const f64x2 p = horner(r, 0.66666666666666663, -0.11111111111113359, 0.049382716049477096,
                             -0.028806583804519968, 0.01920438846475599, -0.013873768944592883,
                             0.010572274330113525);
      return t + (s * low + (t * r) * p);
    }
    f64x2 value, reciprocal;
    gather_pairs(&pow2o3_pairs[row0].t, &pow2o3_pairs[row1].t, value, reciprocal);
    const f64x2 t = s * value, r = (m - c) * reciprocal;
    if constexpr (level == Level::la) {
      constexpr double k[] = {
#include "roots/pow2o3/series_la.inc"
      };
      return t + (t * r) * horner(r, k[0], k[1], k[2], k[3], k[4], k[5]);
    }
    return t + (t * r) * horner(r, 0.66666666666666663, -0.11111111111113359, 0.049382716049477096);
  }
  static int special(const double* x, double* r) { return pow2o3_scalar<Pow2o3D>(x, r); }
};

}  // namespace ork
