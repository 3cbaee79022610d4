#pragma once
// The scalar routines of complex products: rare lanes, special values.
#include "complex/wide.hpp"
#include "ork/zem.h"

namespace ork {

// A complex operand as two doubles, and what decides about it.
struct Operand : Complex<double> {
  bool nan, infinite, zero;  // a part is; a part is; both parts are

  Operand(double x_part, double y_part) : Complex<double>{x_part, y_part} {
    constexpr auto top = infinity_bits<double>;
    const uint64_t x = magnitude(&re), y = magnitude(&im);
    nan = x > top || y > top;
    infinite = x == top || y == top;
    zero = (x | y) == 0;
  }
  bool finite() const { return !nan && !infinite; }
  const Complex<double>& value() const { return *this; }
};

// Stand-ins for a part, with its sign. boxed: 1 for an infinity, 0 for anything else. sign_one: 1
// for a finite number that is not 0; what else there is stays.
ORK_INLINE double boxed(double x) { return __builtin_copysign(__builtin_isinf(x) ? 1.0 : 0.0, x); }
ORK_INLINE double sign_one(double x) {
  return magnitude(&x) - 1 < infinity_bits<double> - 1 ? __builtin_copysign(1.0, x) : x;
}
ORK_INLINE Complex<double> boxed(const Operand& a) { return {boxed(a.re), boxed(a.im)}; }
ORK_INLINE Complex<double> sign_ones(const Operand& a) { return {sign_one(a.re), sign_one(a.im)}; }

// a b, or a times the conjugate of b, in plain arithmetic; of numbers or vectors.
template <bool conj, class V>
ORK_INLINE V plain_product(const V& a, const V& b) {
  if constexpr (conj)
    return {a.re * b.re + a.im * b.im, a.im * b.re - a.re * b.im};
  else
    return {a.re * b.re - a.im * b.im, a.im * b.re + a.re * b.im};
}

// Two singles from memory as doubles: one instruction, which the compiler has for aligned operands
// only.
ORK_INLINE f64x2 widened(const float* p) {
  f64x2 x;
  asm("cvtps2pd %1, %0" : "=x"(x) : "m"(*reinterpret_cast<const Complex<float>*>(p)));
  return x;
}

// Two elements in double.
ORK_INLINE Planes<f64x2> widened_pair(const float* p) {
  const f64x2 x = widened(p), y = widened(p + 2);
  return {_mm_unpacklo_pd(x, y), _mm_unpackhi_pd(x, y)};
}

// The product where a part is infinite or a NaN: an infinity with a signed direction where one
// operand is infinite and the other is not zero, NaNs otherwise.
template <bool conj>
inline Complex<double> not_finite_product(const Operand& a, const Operand& b) {
  const auto infinite = [](const Complex<double>& x) {
    return Complex<double>{x.re * __builtin_inf(), x.im * __builtin_inf()};
  };
  if ((a.zero || b.zero) && !a.nan && !b.nan)
    return plain_product<conj>(sign_ones(a), sign_ones(b));
  if (a.infinite && !a.zero && !b.zero && (b.infinite || b.finite()))
    return infinite(plain_product<conj>(boxed(a), b.infinite ? boxed(b) : b.value()));
  if (b.infinite && a.finite() && !a.zero)
    return infinite(plain_product<conj>(a.value(), boxed(b)));
  const auto one_but_nan = [](double x) { return x != x ? x : 1.0; };
  return plain_product<conj>(Complex<double>{one_but_nan(a.re), one_but_nan(a.im)},
                             Complex<double>{one_but_nan(b.re), one_but_nan(b.im)});
}

template <class R>
ORK_INLINE int overflow_of(const Complex<R>& r) {
  return __builtin_isinf(r.re) || __builtin_isinf(r.im) ? ZEM_STATUS_OVERFLOW : ZEM_STATUS_NONE;
}

template <bool conj>
inline int mul_rare(const Complex<float>* a, const Complex<float>* b, Complex<float>* r) {
  const Operand x(a->re, a->im), y(b->re, b->im);
  const bool finite = x.finite() && y.finite();
  const Complex<double> p =
      finite ? plain_product<conj>(x.value(), y.value()) : not_finite_product<conj>(x, y);
  *r = {(float)p.re, (float)p.im};
  return finite ? overflow_of(*r) : ZEM_STATUS_NONE;
}

// Finite operands of any exponents: exact products with exponents of their own, one rounding, also
// into denormals.
template <bool conj>
inline int mul_rare(const Complex<double>* a, const Complex<double>* b, Complex<double>* r) {
  const Operand x(a->re, a->im), y(b->re, b->im);
  if (!x.finite() || !y.finite()) {
    *r = not_finite_product<conj>(x, y);
    return ZEM_STATUS_NONE;
  }
  *r = {product_sum(a->re, b->re, a->im, conj ? b->im : -b->im).rounded(),
        product_sum(a->im, b->re, a->re, conj ? -b->im : b->im).rounded()};
  return overflow_of(*r);
}

}  // namespace ork
