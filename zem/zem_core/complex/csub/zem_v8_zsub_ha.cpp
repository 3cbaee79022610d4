#include "complex/cadd.hpp"
#include "ork/zem_kernels.h"

ORK_EXPORT void ork_zem_kernel_zSub_V8HAynn(int n, const double* a, const double* b, double* r) {
  ork::interleaved<ork::ComplexSum<ork::Sub, double>>(
      n, {{ork::pairs(a), ork::pairs(b)}, {ork::pairs(r)}});
}
