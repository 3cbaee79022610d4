#include "complex/cadd.hpp"
#include "ork/zem_kernels.h"

ORK_EXPORT void ork_zem_kernel_cSub_V8HAynn(int n, const float* a, const float* b, float* r) {
  ork::interleaved<ork::ComplexSum<ork::Sub, float>>(
      n, {{ork::pairs(a), ork::pairs(b)}, {ork::pairs(r)}});
}
