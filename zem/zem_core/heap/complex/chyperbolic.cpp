#include "heap/complex/chyperbolic.hpp"

#include "base/export.hpp"

namespace ork::complex_scalar {

Parts Cosh::special(const Part& a, const Part& b) {
  const Real x{a}, y{b};
  const auto sine = [&] { return b.denormal() ? b.value : y.sin(); };
  if (a.ordinary() && b.ordinary()) {
    const long double huge = beyond_double();
    return {y.cos() * huge, huge * a.value * sine()};
  }
  if (b.zero()) return {x.cosh(), a.infinite() && a.negative ? -b.value : b.value};
  if (b.finite()) {
    if (a.nan()) return {a.squared(), a.squared()};
    if (a.zero()) {
      raise_inexact();
      return {y.cos(), a.value * sine()};
    }
    if (b.below_one()) return {a.squared(), a.value * b.value};
    return {a.squared() * y.cos(), a.value * y.sin()};
  }
  const long double real = a.finite() ? y.cos() : x.cosh();
  if (!a.zero()) return {real, y.sin()};
  if (b.nan()) return {real, -a.value};
  return {real, a.negative == b.negative ? 0.0L : -0.0L};
}

Parts Sinh::special(const Part& a, const Part& b) {
  const Real x{a}, y{b};
  const auto sine = [&] { return b.denormal() ? b.value : y.sin(); };
  if (a.ordinary() && b.ordinary()) {
    const long double huge = beyond_double();
    return {y.cos() * huge * a.value, huge * sine()};
  }
  if (b.zero()) return {x.sinh(), b.value};
  if (b.finite()) {
    if (a.nan()) return {a.squared(), a.squared()};
    if (a.zero()) {
      raise_inexact();
      return {a.value * y.cos(), sine()};
    }
    if (b.below_one()) return {a.value, a.squared() * b.value};
    return {a.value * y.cos(), a.squared() * y.sin()};
  }
  if (a.ordinary()) return {a.value * y.sin(), y.sin()};
  return {x.sinh(), y.sin()};
}

Parts Tanh::special(const Part& a, const Part& b) {
  const Real y{b};
  // The sign of sin 2y for |y| >= 1.
  const auto turned = [&] { return with_sign(0, extended::negative(y.sin() * y.cos())); };
  if (a.ordinary() && b.zero() && a.exponent() < limit)
    return {Real{a}.sinh() / Real{a}.cosh(), b.value};
  if (a.ordinary() && b.finite()) {
    raise_underflow();
    const long double one = 1 - opaque(0x1p-1022L);
    return {a.sign(one), b.zero() ? b.value : turned()};
  }
  if (a.infinite()) {
    if (b.nan()) return {a.sign(1), 0};
    return {a.sign(1), b.ordinary() && !b.below_one() ? turned() : b.sign(0)};
  }
  if (a.nan()) {
    if (b.zero()) return {a.squared(), b.value};
    return {a.squared(), b.nan() ? b.squared() : a.squared()};
  }
  if (b.infinite()) return {y.tan(), y.tan()};
  if (b.nan()) return {b.squared(), b.squared()};
  return {a.value, b.zero() ? b.value : y.tan()};
}

}  // namespace ork::complex_scalar

using namespace ork::complex_scalar;

namespace {

// The imaginary part alone is looked at for underflow.
ORK_INLINE double* store_cosh(double* r, Parts z) {
  store(r, z);
  if (__builtin_expect(is_denormal(r[1]), 0)) raise_underflow();
  return r;
}

}  // namespace

ORK_EXPORT double* ork_zem_kernel_ccosh_scalar(double* r, double x, double y) {
  return store_cosh(r, apply<Cosh>(x, y));
}
ORK_EXPORT double* ork_zem_kernel_csinh_scalar(double* r, double x, double y) {
  return store_flagged(r, apply<Sinh>(x, y));
}
ORK_EXPORT double* ork_zem_kernel_ctanh_scalar(double* r, double x, double y) {
  return store_flagged(r, apply<Tanh>(x, y));
}

// f(z) = -i g(iz).
ORK_EXPORT double* ork_zem_kernel_ccos_scalar(double* r, double x, double y) {
  return store_cosh(r, apply<Cosh, true>(x, y));
}
ORK_EXPORT double* ork_zem_kernel_csin_scalar(double* r, double x, double y) {
  return store_flagged(r, turned_back(apply<Sinh, true>(x, y)));
}
ORK_EXPORT double* ork_zem_kernel_ctan_scalar(double* r, double x, double y) {
  return store_flagged(r, turned_back(apply<Tanh, true>(x, y)));
}
