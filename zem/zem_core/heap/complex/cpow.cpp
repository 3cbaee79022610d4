#include "base/export.hpp"
#include "heap/complex/cexp.hpp"
#include "heap/complex/clog.hpp"

using namespace ork::complex_scalar;

namespace {

// Rounded to a double by the x87 unit, which is at nearest, whatever MXCSR says.
ORK_INLINE long double as_double(long double x) {
  const volatile double y = (double)x;
  return y;
}
ORK_INLINE long double rounded(long double a, long double b) { return as_double(a * b); }

}  // namespace

// exp(b ln a), the logarithm and the product in double: an error of 2^-53 |b ln a| in the result.
ORK_EXPORT double* ork_zem_kernel_cpow_scalar(double* r, double x, double y, double u, double v) {
  const Parts l = apply<Log>(x, y);
  const long double a = as_double(l.re), b = as_double(l.im);
  const double re = (double)(rounded(u, a) - rounded(v, b));
  const double im = (double)(rounded(u, b) + rounded(v, a));
  return store_flagged(r, apply<Exp>(re, im));
}
