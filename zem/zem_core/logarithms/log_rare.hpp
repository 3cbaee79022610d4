#pragma once
// Logarithm of one element beyond the fast range of a V8 kernel, in double for both types:
// y = 2^k m, m in [sqrt(1/2), sqrt(2)), c a short number near c0/m from a table by 7 bits,
// u_hi + u_lo = m c - c0; log y = (k L1 + L_hi + u_hi) + (p(u) + (k L2 + L_lo) + u_lo), the
// first sum exact.
#include "base/vec.hpp"
#include "ork/zem.h"

namespace ork {

// A base: c0, l1, l2; `split` rounds m so that m_hi c is exact; rows {c, L_hi, L_lo}; p(u).
template <class Base>
int log_rare(double y, double* out) {
  volatile double zero = 0.0;
  uint64_t image = as<uint64_t>(y);
  const uint64_t magnitude = image & ~0ull >> 1;
  if (image == 0xFFF0000000000000) {
    *out = zero / zero;
    return ZEM_STATUS_DOMAIN;
  }
  if (magnitude >= 0x7FF0000000000000) {
    *out = y * y;
    return 0;
  }
  int k = 0;
  if (magnitude < 0x0010000000000000) {
    y *= 0x1p60;
    k = -60;
  }
  if (y > 0.0) {
    constexpr uint64_t root_half = 0x3FE6A09E667F3BCD;
    image = as<uint64_t>(y);
    const int shift = (int)((int64_t)(image - root_half) >> 52);
    const double m = as<double>(image - ((uint64_t)shift << 52));
    k += shift;
    const double* const row = Base::rows[as<uint64_t>(m + (0x1p46 + 1.0)) & 127];
    const double m_hi = m + Base::split - Base::split;
    const double u_hi = m_hi * row[0] - Base::c0, u_lo = row[0] * (m - m_hi), u = u_hi + u_lo;
    *out = (k * Base::l1 + row[1] + u_hi) + (Base::p(u) + (k * Base::l2 + row[2]) + u_lo);
    return 0;
  }
  if (y == 0.0) {
    *out = -1.0 / zero;
    return ZEM_STATUS_SINGULARITY;
  }
  *out = zero / zero;
  return ZEM_STATUS_DOMAIN;
}

// Base e; dlog1p and slog1p hand in y = 1 + x.
int ln_rare(double y, double* out);

// The same for singles, rounded once.
template <class F>
ORK_INLINE int in_double(F f, double y, float* out) {
  double wide;
  const int status = f(y, &wide);
  *out = (float)wide;
  return status;
}

}  // namespace ork
