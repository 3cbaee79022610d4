#include "base/export.hpp"
#include "heap/complex/cexp.hpp"
#include "heap/complex/clog.hpp"

using namespace ork::complex_scalar;

// exp(b ln a), the logarithm and the product in double: an error of 2^-53 |b ln a| in the result.
ORK_EXPORT double* ork_zem_kernel_cpow_scalar(double* r, double x, double y, double u, double v) {
  double l[2];
  store(l, log_parts(x, y));
  const double re = u * l[0] - v * l[1], im = u * l[1] + v * l[0];
  return store_flagged(r, exp_parts(re, im));
}
