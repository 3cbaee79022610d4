// Extended inverse trigonometric functions.
#include "base/export.hpp"
#include "heap/real/inverse.hpp"

using namespace ork::extended;

ORK_EXPORT long double ork_zem_kernel_atanl_scalar(long double x) {
  if (is_nan(x)) return quieted(x);
  const int e = exponent(x);
  if (e < 16376) return odd_small(atan_small, x);
  if (e >= 16448) return with_sign(half_pi.high + half_pi.low, negative(x));
  const Pair a = angle(size(x), 1);
  return with_sign(a.high + a.low, negative(x));
}

ORK_EXPORT long double ork_zem_kernel_atan2l_scalar(long double y, long double x) {
  const int ey = exponent(y), ex = exponent(x);
  long double a;
  if (__builtin_expect(ey == special_exponent || ex == special_exponent || y == 0 || x == 0, 0)) {
    if (is_nan(y) || is_nan(x)) return y + x;
    if (ey == special_exponent && ex == special_exponent)
      a = negative(x) ? three_quarters_pi.high + three_quarters_pi.low
                      : quarter_pi.high + quarter_pi.low;
    else if (y == 0 || ex == special_exponent)
      a = negative(x) ? pi.high + pi.low : 0;
    else
      a = half_pi.high + half_pi.low;
  } else {
    a = angle_scaled(size(y), x);
  }
  return with_sign(a, negative(y));
}

ORK_EXPORT long double ork_zem_kernel_asinl_scalar(long double x) {
  if (exponent(x) < 16383) return asin_inside(x);
  if (size(x) == 1) return with_sign(half_pi.high + half_pi.low, negative(x));
  return is_nan(x) ? quieted(x) : invalid();
}

ORK_EXPORT long double ork_zem_kernel_acosl_scalar(long double x) {
  if (exponent(x) < 16383) return acos_inside(x);
  if (size(x) == 1) return negative(x) ? pi.high + pi.low : 0;
  return is_nan(x) ? quieted(x) : invalid();
}
