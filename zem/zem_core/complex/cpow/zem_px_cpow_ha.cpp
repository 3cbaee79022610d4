#include "heap/complex/element.hpp"

ORK_EXPORT void ork_zem_kernel_cPow_PXHAynn(int n, const float* a, const float* b, float* r) {
  ork::element<ork::PowOfScalar<float>>(n, {{ork::pairs(a), ork::pairs(b)}, {ork::pairs(r)}});
}
