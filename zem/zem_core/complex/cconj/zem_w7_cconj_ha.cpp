#include "complex/cconj/cconj.hpp"

ORK_EXPORT void ork_zem_kernel_cConj_W7HAynn(int n, const float* a, float* r) {
  ork::conjugate(n, a, r);
}
