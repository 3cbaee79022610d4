#include "arithmetic/add.hpp"

ORK_EXPORT void ork_zem_kernel_dAdd_V8HAynn(int n, const double* a, const double* b, double* r) {
  ork::arith<ork::Add>(n, a, b, r, r);
}
