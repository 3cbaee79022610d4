#include "arithmetic/mul.hpp"

ORK_EXPORT void ork_zem_kernel_sMul_V8HAynn(int n, const float* a, const float* b, float* r) {
  ork::arith<ork::Mul>(n, a, b, r, r);
}
