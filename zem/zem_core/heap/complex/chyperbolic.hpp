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

struct Cosh {
  static constexpr int limit = 1034;
  ORK_INLINE Parts general(const Usual& a, const Usual& b) {
    const SinhCosh h = sinh_cosh(a.value);
    const SinCos c = sin_cos(b.value);
    return {h.cosh * c.cos, h.sinh * c.sin};
  }
  static Parts special(const Part& a, const Part& b);
};
struct Sinh {
  static constexpr int limit = 1034;
  ORK_INLINE Parts general(const Usual& a, const Usual& b) {
    const SinhCosh h = sinh_cosh(a.value);
    const SinCos c = sin_cos(b.value);
    return {h.sinh * c.cos, h.cosh * c.sin};
  }
  static Parts special(const Part& a, const Part& b);
};
struct Tanh {
  static constexpr int limit = 1032;  // 512
  ORK_INLINE Parts general(const Usual& a, const Usual& b) {
    const SinhCosh h = sinh_cosh(a.value);
    const SinCos c = sin_cos(b.value);
    const long double d = 1 / (h.sinh * h.sinh + c.cos * c.cos);
    return {h.sinh * h.cosh * d, c.sin * c.cos * d};
  }
  static Parts special(const Part& a, const Part& b);
};

}  // namespace ork::complex_scalar
