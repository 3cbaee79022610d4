#include "complex/cdiv/cdiv.hpp"

ORK_EXPORT void ork_zem_kernel_cDiv_V8HAynn(int n, const float* a, const float* b, float* r) {
  ork::interleaved<ork::QuotientHaC>(n, {{ork::pairs(a), ork::pairs(b)}, {ork::pairs(r)}});
}
