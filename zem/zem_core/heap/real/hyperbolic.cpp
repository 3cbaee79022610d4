// Extended hyperbolic functions.
#include "base/export.hpp"
#include "heap/real/exp.hpp"

using namespace ork::extended;

ORK_EXPORT void ork_zem_kernel_sinhcoshl_scalar(long double x, long double* sinh,
                                                long double* cosh) {
  const SinhCosh both = sinh_cosh(x);
  *sinh = both.sinh;
  *cosh = both.cosh;
}
ORK_EXPORT long double ork_zem_kernel_sinhl_scalar(long double x) { return sinh_cosh(x).sinh; }
ORK_EXPORT long double ork_zem_kernel_coshl_scalar(long double x) { return sinh_cosh(x).cosh; }

// From 1/2 on 1 - 2/(exp(2|x|) + 1), the quotient in two words.
ORK_EXPORT long double ork_zem_kernel_tanhl_scalar(long double x) {
  const int e = exponent(x);
  if (e >= 16388) {
    if (is_nan(x)) return quieted(x);
    return with_sign(e == special_exponent ? 1 : 1 - opaque(0x1p-75L), negative(x));
  }
  if (e >= 16382) {
    const Power p = exp_step(2 * size(x));
    const float scale = power_of_two(p.m);
    const Pair y = fast_sum(p.high, p.low);
    Pair d = two_sum(y.high * scale, 1);
    d.low += y.low * scale;
    const Pair q = quotient({2, 0}, d), s = fast_sum(1, -q.high);
    return with_sign(s.high + (s.low - q.low), negative(x));
  }
  if (e >= 16376) return odd_partial<17>(tanh_middle, x);
  return odd_small(tanh_small, x);
}
