#include "complex/cadd.hpp"
#include "ork/zem_kernels.h"

ORK_EXPORT void ork_zem_kernel_cSub_V8EPnnn(int n, const float* a, const float* b, float* r) {
  ork::complex_sum_ep<ork::Sub>(n, a, b, r);
}
