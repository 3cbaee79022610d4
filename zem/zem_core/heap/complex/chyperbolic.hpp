#pragma once
// Hyperbolic functions of x + iy from those of x and the circular ones of y.
#include "heap/complex/parts.hpp"
#include "heap/real/exp.hpp"
#include "heap/real/trig.hpp"
#include "ork/zem_extended.h"

namespace ork::complex_scalar {

// Values of one real part by the exported functions, for the special cases.
struct Real {
  const Part& p;
  long double sin() const { return ork_zem_kernel_sinl_scalar(p.value); }
  long double cos() const { return ork_zem_kernel_cosl_scalar(p.value); }
  long double tan() const { return ork_zem_kernel_tanl_scalar(p.value); }
  long double sinh() const { return ork_zem_kernel_sinhl_scalar(p.value); }
  long double cosh() const { return ork_zem_kernel_coshl_scalar(p.value); }
};

Parts cosh_special(const Part& a, const Part& b);
Parts sinh_special(const Part& a, const Part& b);
Parts tanh_special(const Part& a, const Part& b);

ORK_INLINE Parts cosh_parts(const double& x, const double& y) {
  const Part a(x), b(y);
  if (__builtin_expect(!(a.ordinary() && b.ordinary() && a.exponent() < 1034), 0))
    return cosh_special(a, b);
  const SinhCosh h = sinh_cosh(a.value);
  const SinCos c = sin_cos(b.value);
  return {h.cosh * c.cos, h.sinh * c.sin};
}
ORK_INLINE Parts sinh_parts(const double& x, const double& y) {
  const Part a(x), b(y);
  if (__builtin_expect(!(a.ordinary() && b.ordinary() && a.exponent() < 1034), 0))
    return sinh_special(a, b);
  const SinhCosh h = sinh_cosh(a.value);
  const SinCos c = sin_cos(b.value);
  return {h.sinh * c.cos, h.cosh * c.sin};
}
ORK_INLINE Parts tanh_parts(const double& x, const double& y) {
  const Part a(x), b(y);
  if (__builtin_expect(!(a.ordinary() && b.finite() && a.exponent() < 1032), 0))
    return tanh_special(a, b);
  const SinhCosh h = sinh_cosh(a.value);
  const SinCos c = sin_cos(b.value);
  const long double d = 1 / (h.sinh * h.sinh + c.cos * c.cos);
  return {h.sinh * h.cosh * d, c.sin * c.cos * d};
}

}  // namespace ork::complex_scalar
