#pragma once
// Logarithms in two words.
#include "heap/real/extended.hpp"
#include "ork/zem_extended.h"

namespace ork::extended {

#include "heap/real/log.inc"

// ln x + extra ln 2 for a normal x > 0 with ln x not within 0.03 of 0: x = 2^k m, c about 1/m,
// m c = 1 + r. k ln2_high, the row's head and r's head are multiples of 2^-48: the high word is
// exact.
ORK_INLINE Pair log_step(long double x, int extra = 0) {
  int64_t significand;
  __builtin_memcpy(&significand, &x, 8);
  const int j = high_word(x) >> 23 & 255;
  const long double k = exponent(x) - bias + extra;
  // The unit reads integers as signed; the leading bit is set in all of them.
  const long double m = ((long double)significand + 0x1p64L) * 0x1p-63L;
  const long double head = (m + shifter_31) - shifter_31;
  const float c = ork_zem_core_rcp_table_256[j];
  const double* row = ork_zem_core_logl_table_256[j];
  const long double high = head * c - 1, low = (m - head) * c, r = high + low;
  return {(k * ln2_high + row[0]) + high,
          ((k * ln2_low + row[1]) + low) + r * r * value(log_step_series, r)};
}
// The same with a low word, below 2^-40 of the high one.
ORK_INLINE Pair log_step(Pair x, int extra = 0) {
  const Pair y = log_step(x.high, extra);
  return {y.high, y.low + x.low / x.high};
}

// ln(1 + t), |t| <= 1/16: t - th^2/2 with the square of t's upper 12 bits exact.
ORK_INLINE long double log1p_middle(long double t) {
  const long double shift = t * 0x1.8p52L, th = (t + shift) - shift, tl = t - th;
  const long double half = th * th * 0.5L, hi = t - half;
  const long double lost = ((t - hi) - half) - tl * (th + tl * 0.5L);
  return hi + (lost + t * t * t * value(log_middle, t));
}

// ln(1 + t) for |t| < 1/16, tiers by exponent.
ORK_INLINE long double log1p_small(long double t) {
  const int e = exponent(t);
  if (e >= 16369) return log1p_middle(t);
  if (e >= 16358) return t + t * t * partial<4>(log_small, t);
  if (e >= 16345) return t + t * t * partial<2>(log_small, t);
  if (e >= 16308) return t - t * t * 0.5L;
  return tiny(t);
}

// ln(1 + x), x > -1 and finite.
ORK_INLINE long double log1p_finite(long double x) {
  if (exponent(x) < 16379) return log1p_small(x);
  const Pair y = log_step(two_sum(1, x));
  return y.high + y.low;
}

// ln x, x > 0, normal and finite.
ORK_INLINE long double log_normal(long double x) {
  if (__builtin_expect(x >= 0.96875L && x <= 1.0625L, 0)) {
    const long double t = x - 1;
    if (size(t) >= 0x1p-16L) return log1p_middle(t);
    return t + t * t * value(log_small, t);
  }
  const Pair y = log_step(x);
  return y.high + y.low;
}

}  // namespace ork::extended
