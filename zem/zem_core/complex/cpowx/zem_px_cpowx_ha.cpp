#include "heap/complex/element.hpp"
#include "ork/zem_kernels.h"

ORK_EXPORT void ork_zem_kernel_cPowx_PXHAynn(int n, const float* a, ork_c b, float* r) {
  const ork::PowxOfScalar<float> powx(b);
  ork::element<ork::PowxOfScalar<float>>(n, {{ork::pairs(a)}, {ork::pairs(r)}}, powx);
}
