// Extended logarithms.
#include "heap/real/log.hpp"

#include "base/export.hpp"

using namespace ork::extended;

ORK_EXPORT long double ork_zem_kernel_logl_scalar(long double x) {
  const unsigned word = sign_and_exponent(x);
  if (__builtin_expect(word - 1 < special_exponent - 1, 1)) return log_normal(x);
  if (x == 0) return -pole();
  if (is_nan(x)) return quieted(x);
  if (word & 0x8000) return invalid();
  if (word == special_exponent) return x;
  const Pair y = log_step(x * 0x1p75L, -75);
  return y.high + y.low;
}

ORK_EXPORT long double ork_zem_kernel_log1pl_scalar(long double x) {
  if (is_nan(x)) return quieted(x);
  if (x <= -1) return x == -1 ? -pole() : invalid();
  if (exponent(x) == special_exponent) return x;
  return log1p_finite(x);
}
