#include "complex/cconj/cconj.hpp"

ORK_EXPORT void ork_zem_kernel_zConj_W7HAynn(int n, const double* a, double* r) {
  ork::conjugate(n, a, r);
}
