#include "arithmetic/mul.hpp"

ORK_EXPORT void ork_zem_kernel_dMul_V8HAynn(int n, const double* a, const double* b, double* r) {
  ork::arith<ork::Mul>(n, a, b, r, r);
}
