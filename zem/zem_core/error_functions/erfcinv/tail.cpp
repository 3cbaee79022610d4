// The tail routines of CdfNormInv and ErfcInv. With p, CdfNormInv's w is 2p: its exponent
// offsets are one more.
#include <emmintrin.h>

#include "base/export.hpp"
#include "base/vec.hpp"
#include "ork/zem_erf_scalar.h"

namespace ork {
namespace {

// c and ln c for 256 parts of [1, 2).
struct Reciprocal {
  double c, ln_c;
};
alignas(16) constexpr Reciprocal reciprocals[256] = {
#include "error_functions/erfcinv/reciprocals.inc"
};

constexpr double tail_middles[] = {5.5, 6.5, 7.5, 9, 11, 13, 15, 18, 22, 26, 30, 36};
alignas(16) constexpr double tail_rows[][16] = {
#include "error_functions/erfcinv/tail.inc"
};

// -ln(m 2^k) = v + v_low, for an x of exponent field plus `offset` = k.
double minus_ln(double x, int normal_offset, int denormal_offset, double& v_low) {
  int offset = normal_offset;
  if (as<uint64_t>(x) < 0x0010000000000000) {
    x = as<double>(as<uint64_t>(x) | 0x3FF0000000000000) - 1.0;
    offset = denormal_offset;
  }
  const uint64_t bits = as<uint64_t>(x);
  const double k = (int)(bits >> 52) + offset;
  const double m = as<double>((bits & 0x000FFFFFFFFFFFFF) | 0x3FF0000000000000);
  const Reciprocal& row = reciprocals[bits >> 44 & 0xFF];
  const double m_hi = (m + 103079215104.0) - 103079215104.0;  // 17 bits
  const double r = (m_hi * row.c - 1.0) + (m - m_hi) * row.c;
  // ln(1 + r), |r| < 2^-8.
  const double log = r * horner(r, 1.0, -0.5, 0.33333333333145093, -0.2499999999965227,
                                0.20000103714740713, -0.1666678766814359);
  const double whole = k * -0.6931471803691238;  // exact: the constant has 32 bits
  const double high = whole + row.ln_c;
  const double low = ((whole - high) + row.ln_c) - (log + k * 1.9082149292705877e-10);
  const double v = high + low;
  v_low = (high - v) + low;
  return v;
}

// x y - z, x y near z.
double product_less(double x, double y, double z) {
  const double x_hi = as<double>(as<uint64_t>(x) & 0xFFFFFFFFF8000000), x_lo = x - x_hi;
  const double y_hi = as<double>(as<uint64_t>(y) & 0xFFFFFFFFF8000000), y_lo = y - y_hi;
  return ((x_hi * y_hi - z) + (x_hi * y_lo + x_lo * y_hi)) + x_lo * y_lo;
}

// Y with erfc(Y/sqrt(2)) = w, v + v_low = -ln w: Y itself (v doubled) or Y/sqrt(2). With
// s = sqrt(-2 ln w) it is s (1 + G(s)); one Newton step gives the root's low part.
double inverse_tail(double v, double v_low, double s_of_root) {
  const double root = _mm_cvtsd_f64(_mm_sqrt_sd(_mm_set_sd(v), _mm_set_sd(v)));
  const double root_low = (v_low - product_less(root, root, v)) / (root + root);
  const double s = root * s_of_root;
  // A section for each quarter of a binade of s, from 5 up.
  int section = (int)(as<uint64_t>(s) >> 50) - 0x1005;
  section = section < 0 ? 0 : section > 11 ? 11 : section;
  const double t = s - tail_middles[section], t2 = t * t;
  const double* const c = tail_rows[section];
  double g = c[14] + c[15] * t;
  for (int i = 12; i >= 0; i -= 2) g = (c[i] + c[i + 1] * t) + t2 * g;
  return root + (root_low + root * g);
}

}  // namespace
}  // namespace ork

ORK_EXPORT __m128d dCdfNormInv_Tail(__m128d p) {
  double low;
  const double v = ork::minus_ln(_mm_cvtsd_f64(p), -1022, -2044, low);
  return _mm_set_sd(-ork::inverse_tail(v + v, low + low, 1.0));
}

ORK_EXPORT __m128d dErfcInv_Tail(__m128d x) {
  double low;
  const double v = ork::minus_ln(_mm_cvtsd_f64(x), -1023, -2045, low);
  return _mm_set_sd(ork::inverse_tail(v, low, 1.4142135623730951));
}
