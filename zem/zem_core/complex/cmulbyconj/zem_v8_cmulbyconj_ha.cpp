#include "complex/cmul.hpp"

ORK_EXPORT void ork_zem_kernel_cMulByConj_V8HAynn(int n, const float* a, const float* b, float* r) {
  ork::interleaved<ork::ProductHaC<true>>(n, {{ork::pairs(a), ork::pairs(b)}, {ork::pairs(r)}});
}
