#include "arithmetic/mul.hpp"

// a * a: the product of an array with itself, aligned by its input.
ORK_EXPORT void ork_zem_kernel_dSqr_V8HAynn(int n, const double* a, double* r) {
  ork::arith<ork::Mul>(n, a, a, r, a);
}
