#include "arithmetic/sub.hpp"

ORK_EXPORT void ork_zem_kernel_sSub_V8HAynn(int n, const float* a, const float* b, float* r) {
  ork::arith<ork::Sub>(n, a, b, r, r);
}
