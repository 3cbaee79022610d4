#pragma once
// CdfNorm: y = min(|x|, cap), y_j = y rounded to the step, d = y - y_j, e = d y_j, g = d^2:
// Phi(-y) = E_j - D_j d (1 + P(e, g)), E = Phi(-y_j), D the density there, and
// 1 + P = sum over a, b of (-e)^a (-g/2)^b / (a! b! (a + 2b + 1)).
// Rows are scaled by G, so that the far tail stays normal until the last product. x > 0 gives
// 1 - Phi(-y). Rare: x below the complete underflow, and NaN.
#include "frame/block.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"

namespace ork {

int cdfnorm_rare(const double* a, double* r);
int cdfnorm_rare(const float* a, float* r);

constexpr double cdfnorm_limit_d = -38.485408335567335;
constexpr float cdfnorm_limit_s = -14.1701851f;

struct CdfNormD : Core<double> {
  static constexpr char name[] = "vdCdfNorm";
  static constexpr double scale = 0x1p128;
  static void test(f64x2 x, u32x4& rare) {
    rare |= as<u32x4>((f64x2)_mm_cmpnlt_pd(splat(cdfnorm_limit_d), x));
  }
  static int special(const double* x, double* r) { return cdfnorm_rare(x, r); }
};

struct CdfNormReduced {
  f64x2 d, e, g;
  int row0, row1;
};

template <int steps>
ORK_INLINE CdfNormReduced cdfnorm_reduce(f64x2 x, double cap, double scale) {
  const double shifter = 0x1p52 / steps;
  const f64x2 y = _mm_min_pd(abs(x), splat(cap)), t = y + shifter, y_j = t - shifter;
  CdfNormReduced r;
  r.d = (f64x2)_mm_max_pd(y, splat(1 / scale)) - y_j;
  r.e = r.d * y_j;
  r.g = r.d * r.d;
  r.row0 = word<0>(t);
  r.row1 = word<4>(t);
  return r;
}

// b and f of (r + b) f: 0 and 1/G for x <= 0, -G and -1/G for x > 0.
ORK_INLINE f64x2 cdfnorm_offset(f64x2 x, double scale) {
  return or_bits(splat(scale / 2), ~as<u64x2>(x) & sign_f64x2) - scale / 2;
}
ORK_INLINE f64x2 cdfnorm_factor(f64x2 x, double scale) {
  return or_bits(splat(1 / scale), ~as<u64x2>(x) & sign_f64x2);
}

ORK_INLINE f64x2 cdfnorm_value(const double (*rows)[2], f64x2 x, const CdfNormReduced& r, f64x2 p,
                               double scale) {
  f64x2 e, d;
  gather_pairs(rows[r.row0], rows[r.row1], e, d);
  const f64x2 q = d * r.d;
  return ((e - (q + q * p)) + cdfnorm_offset(x, scale)) * cdfnorm_factor(x, scale);
}

// (c0 + c1 e) + e^2 (c2 + c3 e)
ORK_INLINE f64x2 cubic(f64x2 e, f64x2 e2, double c0, double c1, double c2, double c3) {
  return (c0 + c1 * e) + e2 * (c2 + c3 * e);
}

// P to 2^-54 of the result, in fours for the sake of latency. Coefficients: of the series.
ORK_INLINE f64x2 cdfnorm_long(const CdfNormReduced& r) {
  const f64x2 e = r.e, e2 = e * e, e4 = e2 * e2;
  const f64x2 in_e =
      cubic(e, e2, -ratio<1, 2>, ratio<1, 6>, -ratio<1, 24>, ratio<1, 120>) +
      e4 * (cubic(e, e2, -ratio<1, 720>, ratio<1, 5040>, -ratio<1, 40320>, ratio<1, 362880>) +
            e4 * (-ratio<1, 3628800> + e * (ratio<1, 39916800>)));
  const f64x2 in_g =
      cubic(e, e2, -ratio<1, 6>, ratio<1, 8>, -ratio<1, 20>, ratio<1, 72>) +
      e4 * cubic(e, e2, -ratio<1, 336>, ratio<1, 1920>, -ratio<1, 12960>, ratio<1, 100800>);
  const f64x2 in_g2 = cubic(e, e2, ratio<1, 40>, -ratio<1, 48>, ratio<1, 112>, -ratio<1, 384>);
  return e * in_e + r.g * (in_g + r.g * in_g2);
}

}  // namespace ork
