#include "complex/cdiv/cdiv.hpp"

ORK_EXPORT void ork_zem_kernel_zDiv_V8HAynn(int n, const double* a, const double* b, double* r) {
  ork::block<ork::QuotientHaZ>(n, {{ork::pairs(a), ork::pairs(b)}, {ork::pairs(r)}});
}
