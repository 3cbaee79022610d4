#pragma once
// The scalar routines of complex quotients: rare lanes, special values.
#include "complex/cdiv/quotient.hpp"
#include "complex/special.hpp"

namespace ork {

ORK_INLINE Complex<double> scaled(const Complex<double>& x, double factor) {
  return {x.re * factor, x.im * factor};
}

// a / b where b is zero or a part is infinite or a NaN.
inline Complex<double> irregular_quotient(const Operand& a, const Operand& b) {
  const double infinity = __builtin_inf();
  if (b.zero) {
    if (a.zero) return scaled(plain_product<true>(a.value(), b.value()), infinity);  // NaNs
    if (a.finite() || a.infinite) return scaled(a.value(), __builtin_copysign(infinity, b.re));
    return {a.re * a.im, a.re * a.im};
  }
  if (b.infinite) {
    if (!a.finite()) return scaled(plain_product<true>(sign_ones(a), sign_ones(b)), 0.0);
    const Complex<double> box = boxed(b);
    // Zeros with the signs of the parts; the sum must not overflow on the way.
    const auto exponent = [](double x) { return (int)(as<uint64_t>(x) >> 52) & 0x7FF; };
    const bool both = box.re != 0 && box.im != 0;
    const bool large = exponent(a.re) >= 208 && exponent(a.im) >= 208;
    return scaled(plain_product<true>(both && large ? scaled(a.value(), 0x1p-48) : a.value(), box),
                  0.0);
  }
  if (!a.infinite) return plain_product<true>(sign_ones(a), sign_ones(b));  // a NaN in all sums
  return scaled(b.nan ? plain_product<true>(sign_ones(a), sign_ones(b))
                      : plain_product<true>(boxed(a), b.value()),
                infinity);
}

inline int div_rare(const Complex<float>* a, const Complex<float>* b, Complex<float>* r) {
  const Operand x(a->re, a->im), y(b->re, b->im);
  const bool regular = x.finite() && y.finite() && !y.zero;
  Complex<double> q;
  if (regular) {
    q = scaled(plain_product<true>(x.value(), y.value()), 1.0 / (y.re * y.re + y.im * y.im));
  } else {
    q = irregular_quotient(x, y);
  }
  *r = {(float)q.re, (float)q.im};
  return regular ? overflow_of(*r) : ZEM_STATUS_NONE;
}

// n / d, rounded once; d > 0.
inline double quotient(const Wide& n, const Wide& d) {
  if (n.high == 0) return n.zero;
  const Pair<f64x2> q =
      Divisor({splat(d.high), splat(d.low)}).quotient({splat(n.high), splat(n.low)});
  return Wide{q.high[0], q.low[0], n.exponent - d.exponent, 0}.rounded();
}

// x / y, or where x is 0 the zero that the sum of products gives.
ORK_INLINE double real_quotient(double x, double y, double zero) {
  return magnitude(&x) == 0 ? zero : x / y;
}

// Finite operands of any exponents: as the vector path, exponents apart, one rounding, also into
// denormals. A divisor with a zero part is a real one.
inline int div_rare(const Complex<double>* a, const Complex<double>* b, Complex<double>* r) {
  const Operand x(a->re, a->im), y(b->re, b->im);
  if (!x.finite() || !y.finite() || y.zero) {
    *r = irregular_quotient(x, y);
    return ZEM_STATUS_NONE;
  }
  const Complex<double> p = plain_product<true>(x.value(), y.value());
  if (magnitude(&b->im) == 0) {
    *r = {real_quotient(a->re, b->re, p.re), real_quotient(a->im, b->re, p.im)};
    return overflow_of(*r);
  }
  if (magnitude(&b->re) == 0) {
    *r = {real_quotient(a->im, b->im, p.re), real_quotient(-a->re, b->im, p.im)};
    return overflow_of(*r);
  }
  const Wide d = product_sum(b->re, b->re, b->im, b->im);
  *r = {quotient(product_sum(a->re, b->re, a->im, b->im), d),
        quotient(product_sum(a->im, b->re, a->re, -b->im), d)};
  return overflow_of(*r);
}

}  // namespace ork
