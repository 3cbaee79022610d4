#include "heap/complex/element.hpp"
#include "ork/zem_kernels.h"

ORK_EXPORT void ork_zem_kernel_zPowx_PXHAynn(int n, const double* a, ork_z b, double* r) {
  const ork::PowxOfScalar<double> powx(b);
  ork::element<ork::PowxOfScalar<double>>(n, {{ork::pairs(a)}, {ork::pairs(r)}}, powx);
}
