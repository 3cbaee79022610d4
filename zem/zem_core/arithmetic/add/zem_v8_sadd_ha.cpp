#include "arithmetic/add.hpp"

ORK_EXPORT void ork_zem_kernel_sAdd_V8HAynn(int n, const float* a, const float* b, float* r) {
  ork::arith<ork::Add>(n, a, b, r, r);
}
