#include "arithmetic/linearfrac/linearfrac.hpp"

ORK_EXPORT void ork_zem_kernel_dLinearFrac_V8HAynn(int n, const double* a, const double* b,
                                                   double scale_a, double shift_a, double scale_b,
                                                   double shift_b, double* r) {
  ork::linear_frac<double>(n, a, b, {{}, scale_a, shift_a, scale_b, shift_b}, r);
}
