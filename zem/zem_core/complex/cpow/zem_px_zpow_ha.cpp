#include "heap/complex/element.hpp"

ORK_EXPORT void ork_zem_kernel_zPow_PXHAynn(int n, const double* a, const double* b, double* r) {
  ork::element<ork::PowOfScalar<double>>(n, {{ork::pairs(a), ork::pairs(b)}, {ork::pairs(r)}});
}
