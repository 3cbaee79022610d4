#pragma once
// PX kernels of complex functions: every element through its scalar. The mode word and MXCSR are
// left alone, so conversions are the x87 unit's, whose control word is set.
#include "frame/element.hpp"
#include "heap/complex/parts.hpp"
#include "ork/zem_complex_scalar.h"

namespace ork {

// In asm: the compiler would leave the unit out and convert in SSE, as MXCSR says.
ORK_INLINE double widened(const float& x) {
  double y;
  asm("flds %1\n\tfstpl %0" : "=m"(y) : "m"(x));
  return y;
}
ORK_INLINE const double& widened(const double& x) { return x; }
ORK_INLINE float narrowed(const double& x) {
  float y;
  asm("fldl %1\n\tfstps %0" : "=m"(y) : "m"(x));
  return y;
}
// An argument that is stored whole: pushed in halves, its load would stall.
ORK_INLINE double in_register(double x) {
  asm("" : "+x"(x));
  return x;
}
// A scalar's result as an element; a denormal part of a float raises underflow.
ORK_INLINE Complex<double> element_of(const double* z, double*) { return {z[0], z[1]}; }
ORK_INLINE Complex<float> element_of(const double* z, float*) {
  const Complex<float> r = {narrowed(z[0]), narrowed(z[1])};
  const auto denormal = [](const float& x) { return magnitude(&x) - 1 < 0x007FFFFF; };
  if (__builtin_expect(denormal(r.re) || denormal(r.im), 0)) {
    float x = 0x1p-126f;
    asm volatile("mulss %0, %0" : "+x"(x));
  }
  return r;
}

template <class R>
ORK_INLINE bool is_ordinary(const Complex<R>& z) {
  return magnitude(&z.re) - 1 < infinity_bits<R> - 1 && magnitude(&z.im) - 1 < infinity_bits<R> - 1;
}
template <class R>
ORK_INLINE bool has_infinity(const Complex<R>& z) {
  return magnitude(&z.re) == infinity_bits<R> || magnitude(&z.im) == infinity_bits<R>;
}

// An overflow is reported where no part of an argument is zero, infinite or a NaN.
template <class R, auto scalar, bool reports>
struct OfScalar : Core<Complex<R>> {
  static constexpr Csr csr = Csr::untouched;
  static constexpr unsigned x87 = x87_extended;
  static int special(const Complex<R>* z, Complex<R>* r) {
    double y[2];
    scalar(y, in_register(widened(z->re)), in_register(widened(z->im)));
    *r = element_of(y, (R*)nullptr);
    return reports && __builtin_expect(has_infinity(*r), 0) && is_ordinary(*z) ? ZEM_STATUS_OVERFLOW
                                                                               : ZEM_STATUS_NONE;
  }
};

template <class R>
ORK_INLINE int power_element(const Complex<R>& a, const Complex<R>& b, Complex<R>* r) {
  double y[2];
  ork_zem_kernel_cpow_scalar(y, in_register(widened(a.re)), in_register(widened(a.im)),
                             in_register(widened(b.re)), in_register(widened(b.im)));
  *r = element_of(y, (R*)nullptr);
  return __builtin_expect(has_infinity(*r), 0) && is_ordinary(a) && is_ordinary(b)
             ? ZEM_STATUS_OVERFLOW
             : ZEM_STATUS_NONE;
}

template <class R>
struct PowOfScalar : Core<Complex<R>, 2> {
  static constexpr char name[] = {'v', sizeof(R) == 8 ? 'z' : 'c', 'P', 'o', 'w', 0};
  static constexpr Csr csr = Csr::untouched;
  static constexpr unsigned x87 = x87_extended;
  static int special(const Complex<R>* a, const Complex<R>* b, Complex<R>* r) {
    return power_element(*a, *b, r);
  }
};

// The exponent is an ork_c or ork_z.
template <class R>
struct PowxOfScalar : Core<Complex<R>> {
  static constexpr char name[] = {'v', sizeof(R) == 8 ? 'z' : 'c', 'P', 'o', 'w', 'x', 0};
  static constexpr Csr csr = Csr::untouched;
  static constexpr unsigned x87 = x87_extended;
  Complex<R> b;
  template <class Scalar>
  explicit PowxOfScalar(Scalar exponent) : b{exponent.re, exponent.im} {}
  const Complex<R>* second(const Complex<R>*, int index) const { return array_with(&b, index); }
  int special(const Complex<R>* a, Complex<R>* r) const { return power_element(*a, b, r); }
};

}  // namespace ork
