#include "arithmetic/sub.hpp"

ORK_EXPORT void ork_zem_kernel_dSub_V8HAynn(int n, const double* a, const double* b, double* r) {
  ork::arith<ork::Sub>(n, a, b, r, r);
}
