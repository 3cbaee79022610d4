#include "complex/cadd.hpp"
#include "ork/zem_kernels.h"

ORK_EXPORT void ork_zem_kernel_zSub_V8EPnnn(int n, const double* a, const double* b, double* r) {
  ork::complex_sum_ep<ork::Sub>(n, a, b, r);
}
