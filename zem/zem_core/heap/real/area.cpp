// Extended inverse hyperbolic functions.
#include "base/export.hpp"
#include "heap/real/inverse.hpp"
#include "heap/real/log.hpp"

namespace {

using namespace ork::extended;

// ln(z + sqrt(z^2 + sign)), z >= 1/2, below 2^38 with the root in two words; from there on ln 2z.
long double log_of_sum(long double z, int sign) {
  if (exponent(z) >= 16421) {
    const Pair y = log_step(z, 1);
    return y.high + y.low;
  }
  const Pair z2 = square(z), w = two_sum(z2.high, sign);
  const Pair s = root({w.high, w.low + z2.low}), sum = two_sum(z, s.high);
  const Pair y = log_step({sum.high, sum.low + s.low});
  return y.high + y.low;
}

}  // namespace

ORK_EXPORT long double ork_zem_kernel_asinhl_scalar(long double x) {
  const int e = exponent(x);
  if (e == special_exponent) return is_nan(x) ? quieted(x) : x;
  if (e >= 16382) return with_sign(log_of_sum(size(x), 1), negative(x));
  if (e >= 16376) return odd_partial<22>(asinh_middle, x);
  return odd_small(asinh_small, x);
}

// Near 1 the root of 2t, t = x - 1, in two words, times a polynomial.
ORK_EXPORT long double ork_zem_kernel_acoshl_scalar(long double x) {
  if (is_nan(x)) return quieted(x);
  if (x < 1) return invalid();
  if (exponent(x) == special_exponent) return x;
  const long double t = x - 1;
  if (t > 0.5L) return log_of_sum(x, -1);
  if (t == 0) return 0;
  const Pair s = root({2 * t, 0});
  return s.high + (s.low + s.high * t * value(acosh_near, t));
}

// From 1/4 on half the logarithm of (1 + |x|) / (1 - |x|), the quotient in two words.
ORK_EXPORT long double ork_zem_kernel_atanhl_scalar(long double x) {
  const int e = exponent(x);
  if (e >= 16383) {
    if (is_nan(x)) return quieted(x);
    return size(x) == 1 ? with_sign(pole(), negative(x)) : invalid();
  }
  if (e < 16376) return odd_small(atanh_small, x);
  if (e < 16381) return odd_partial<14>(atanh_middle, x);
  const long double a = size(x);
  const Pair q = quotient(fast_sum(1, a), fast_sum(1, -a)), y = log_step(q);
  return with_sign((y.high + y.low) * 0.5L, negative(x));
}
