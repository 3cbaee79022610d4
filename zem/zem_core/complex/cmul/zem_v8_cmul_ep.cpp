#include "complex/cmul.hpp"

ORK_EXPORT void ork_zem_kernel_cMul_V8EPnnn(int n, const float* a, const float* b, float* r) {
  ork::arith<ork::InterleavedProduct>(n, ork::pairs(a), ork::pairs(b), ork::pairs(r),
                                      ork::pairs(r));
}
