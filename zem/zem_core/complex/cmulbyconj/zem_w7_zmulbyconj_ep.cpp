#include "complex/cmul.hpp"

ORK_EXPORT void ork_zem_kernel_zMulByConj_W7EPnnn(int n, const double* a, const double* b,
                                                  double* r) {
  ork::block<ork::ProductEp<double, true>>(n, {{ork::pairs(a), ork::pairs(b)}, {ork::pairs(r)}});
}
