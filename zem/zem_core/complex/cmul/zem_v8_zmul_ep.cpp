#include "complex/cmul.hpp"

ORK_EXPORT void ork_zem_kernel_zMul_V8EPnnn(int n, const double* a, const double* b, double* r) {
  ork::block<ork::ProductEp<double, false>>(n, {{ork::pairs(a), ork::pairs(b)}, {ork::pairs(r)}});
}
