#include "complex/cmul.hpp"

ORK_EXPORT void ork_zem_kernel_zMulByConj_V8HAynn(int n, const double* a, const double* b,
                                                  double* r) {
  ork::block<ork::ProductHaZ<true>>(n, {{ork::pairs(a), ork::pairs(b)}, {ork::pairs(r)}});
}
