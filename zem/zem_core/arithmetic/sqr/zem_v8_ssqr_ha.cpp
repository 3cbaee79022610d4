#include "arithmetic/mul.hpp"

// a * a: the product of an array with itself, aligned by its input.
ORK_EXPORT void ork_zem_kernel_sSqr_V8HAynn(int n, const float* a, float* r) {
  ork::arith<ork::Mul>(n, a, a, r, a);
}
