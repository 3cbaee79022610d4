// Extended trigonometric functions.
#include "heap/real/trig.hpp"

#include "base/export.hpp"
#include "ork/zem_extended.h"

namespace {

using namespace ork::extended;

SinCos sin_cos_any(long double x) {
  if (__builtin_expect(exponent(x) == special_exponent, 0)) {
    const long double nan = is_nan(x) ? quieted(x) : invalid();
    return {nan, nan};
  }
  return sin_cos(x);
}

}  // namespace

ORK_EXPORT void ork_zem_kernel_sincosl_scalar(long double x, long double* sine,
                                              long double* cosine) {
  const SinCos both = sin_cos_any(x);
  *sine = both.sin;
  *cosine = both.cos;
}
ORK_EXPORT long double ork_zem_kernel_sinl_scalar(long double x) { return sin_cos_any(x).sin; }
ORK_EXPORT long double ork_zem_kernel_cosl_scalar(long double x) { return sin_cos_any(x).cos; }

// Sine by cosine, or the negative inverse, all in two words: one rounding is left.
ORK_EXPORT long double ork_zem_kernel_tanl_scalar(long double x) {
  const int e = exponent(x);
  if (e == special_exponent) return is_nan(x) ? quieted(x) : invalid();
  if (e < 16376) return odd_small(tangent_small, x);
  const Reduced a = reduce(size(x));
  Pair s = sine_of(a.r), c = cosine_of(a.r);
  s = fast_sum(s.high, s.low), c = fast_sum(c.high, c.low);
  const Pair q = a.quarter & 1 ? quotient({-c.high, -c.low}, s) : quotient(s, c);
  return with_sign(q.high + q.low, negative(x));
}
