#include "accuracy/reference.hpp"

#include <quadmath.h>

#include <cmath>

#include "accuracy/inverse_error.hpp"
#include "registry/kernels.hpp"

// The same names at both widths, so that a row states its function once.
#define BOTH(name)                                \
  static quad name(quad x) { return name##q(x); } \
  static long double name(long double x) { return name##l(x); }
#define BOTH2(name)                                          \
  static quad name(quad x, quad y) { return name##q(x, y); } \
  static long double name(long double x, long double y) { return name##l(x, y); }

namespace exact {
// clang-format off
BOTH(exp) BOTH(expm1) BOTH(log) BOTH(log10) BOTH(log1p) BOTH(sqrt) BOTH(cbrt)
BOTH(sin) BOTH(cos) BOTH(tan) BOTH(asin) BOTH(acos) BOTH(atan)
BOTH(sinh) BOTH(cosh) BOTH(tanh) BOTH(asinh) BOTH(acosh) BOTH(atanh)
BOTH(erf) BOTH(erfc) BOTH(lgamma) BOTH(tgamma)
BOTH(floor) BOTH(ceil) BOTH(trunc) BOTH(round) BOTH(rint) BOTH(fabs)
BOTH2(pow) BOTH2(hypot) BOTH2(atan2);
// clang-format on

// A term of LinearFrac as IEEE arithmetic gives it in the kernel's type: near its zero the
// rounding of the product is all that is left, and no fault of the quotient.
template <class T>
static T linear_term(T x, int first) {
  const T product = x * T(linear_scalars[first]);
  return product + T(linear_scalars[first + 1]);
}
static quad linear(quad x, int first) { return linear_term(double(x), first); }
static long double linear(long double x, int first) { return linear_term(float(x), first); }

#define ONE(name, expression)                                        \
  {                                                                  \
#name, [](quad x, quad y) -> quad { (void)y; return expression; }, \
   [](long double x, long double y) -> long double { (void)y; return expression; } \
  }
#define TWO(name, first, second)                                                      \
  {                                                                                   \
#name, [](quad x, quad y) -> quad { (void)y; return first; },                       \
   [](long double x, long double y) -> long double { (void)y; return first; },         \
   [](quad x, quad y) -> quad { (void)y; return second; },                             \
   [](long double x, long double y) -> long double { (void)y; return second; } \
  }

static const Reference rows[] = {
    ONE(Add, x + y),
    ONE(Sub, x - y),
    ONE(Mul, x* y),
    ONE(Div, x / y),
    ONE(Sqr, x* x),
    ONE(Abs, fabs(x)),
    ONE(Exp, exp(x)),
    ONE(Expm1, expm1(x)),
    ONE(Ln, log(x)),
    ONE(Log10, log10(x)),
    ONE(Log1p, log1p(x)),
    ONE(Sqrt, sqrt(x)),
    ONE(Inv, 1 / x),
    ONE(InvSqrt, 1 / sqrt(x)),
    ONE(Cbrt, cbrt(x)),
    ONE(InvCbrt, 1 / cbrt(x)),
    ONE(LinearFrac, linear(x, 0) / linear(y, 2)),
    ONE(Sin, sin(x)),
    ONE(Cos, cos(x)),
    ONE(Tan, tan(x)),
    TWO(SinCos, sin(x), cos(x)),
    ONE(Pow, pow(x, y)),
    ONE(Powx, pow(x, y)),
    ONE(Pow2o3, cbrt(x) * cbrt(x)),
    ONE(Pow3o2, x* sqrt(x)),
    ONE(Hypot, hypot(x, y)),
    ONE(Asin, asin(x)),
    ONE(Acos, acos(x)),
    ONE(Atan, atan(x)),
    ONE(Atan2, atan2(x, y)),
    ONE(Sinh, sinh(x)),
    ONE(Cosh, cosh(x)),
    ONE(Tanh, tanh(x)),
    ONE(Asinh, asinh(x)),
    ONE(Acosh, acosh(x)),
    ONE(Atanh, atanh(x)),
    ONE(Erf, erf(x)),
    ONE(Erfc, erfc(x)),
    ONE(ErfInv, erfinv(x)),
    ONE(ErfcInv, erfcinv(x)),
    ONE(CdfNorm, cdfnorm(x)),
    ONE(CdfNormInv, cdfnorminv(x)),
    ONE(LGamma, lgamma(x)),
    ONE(TGamma, tgamma(x)),
    ONE(Floor, floor(x)),
    ONE(Ceil, ceil(x)),
    ONE(Trunc, trunc(x)),
    ONE(Round, round(x)),
    ONE(Rint, rint(x)),
    ONE(NearbyInt, rint(x)),
    TWO(Modf, trunc(x), x - trunc(x)),
};
}  // namespace exact

const Reference* find_reference(const std::string& function) {
  for (const Reference& row : exact::rows)
    if (function == row.function) return &row;
  return nullptr;
}
