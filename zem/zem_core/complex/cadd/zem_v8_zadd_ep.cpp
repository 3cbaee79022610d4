#include "complex/cadd.hpp"
#include "ork/zem_kernels.h"

ORK_EXPORT void ork_zem_kernel_zAdd_V8EPnnn(int n, const double* a, const double* b, double* r) {
  ork::complex_sum_ep<ork::Add>(n, a, b, r);
}
