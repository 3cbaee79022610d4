#pragma once
// ln(x + iy): half the logarithm of the square of the modulus, and the angle.
#include "heap/complex/parts.hpp"
#include "heap/real/inverse.hpp"
#include "heap/real/log.hpp"
#include "ork/zem_extended.h"

namespace ork::complex_scalar {

// b^2 less its rounded value p; the halves of 53 bits have exact products.
ORK_INLINE long double square_rest(long double b, long double p) {
  const long double t = b * 0x1.00000001p33L, hi = t - (t - b), lo = b - hi;
  return ((hi * hi - p) + 2 * hi * lo) + lo * lo;
}

// 0.5 ln(x^2 + y^2), not both zero. Near 1 what the squares and their sum lose in rounding is the
// result's part that counts.
ORK_INLINE long double log_modulus(long double x, long double y) {
  const bool less = size(x) < size(y);
  const long double a = less ? x : y, b = less ? y : x, a2 = a * a, b2 = b * b, s = a2 + b2;
  const long double gap = s - 1;
  if (__builtin_expect(size(gap) >= 0.5L, 1)) return 0.5L * log_normal(s);
  const long double rest = ((b2 - s) + a2) + (square_rest(a, a2) + square_rest(b, b2));
  if (size(gap) < 0.03L) return 0.5L * ork_zem_kernel_log1pl_scalar(gap + rest);
  return 0.5L * (log_normal(s) + rest / s);
}
struct Log {
  static constexpr int limit = no_limit;
  ORK_INLINE Parts general(const Usual& a, const Usual& b) {
    return {log_modulus(a.value, b.value), b.sign(angle_scaled(size(b.value), a.value))};
  }
  static Parts special(const Part& a, const Part& b);
};

}  // namespace ork::complex_scalar
