#include "complex/cexp/cexp_single.hpp"

// Exp c, see cexp_single.hpp. Bound: 0.51 ulp a part.
ORK_EXPORT void ork_zem_kernel_cExp_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::ExpC>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
