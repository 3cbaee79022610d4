#include "complex/cmul.hpp"

ORK_EXPORT void ork_zem_kernel_cMul_V8HAynn(int n, const float* a, const float* b, float* r) {
  ork::interleaved<ork::ProductHaC<false>>(n, {{ork::pairs(a), ork::pairs(b)}, {ork::pairs(r)}});
}
