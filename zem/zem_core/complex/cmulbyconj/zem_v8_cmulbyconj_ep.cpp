#include "complex/cmul.hpp"

ORK_EXPORT void ork_zem_kernel_cMulByConj_V8EPnnn(int n, const float* a, const float* b, float* r) {
  ork::block<ork::ProductEp<float, true>>(n, {{ork::pairs(a), ork::pairs(b)}, {ork::pairs(r)}});
}
