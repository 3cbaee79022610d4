// Cosh, single, HA: table in two words. Bound: 0.55 ulp.
#include "exponentials/cosh/cosh.hpp"

ORK_EXPORT void ork_zem_kernel_sCosh_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::Cosh<ork::PairHaS>>(n, {{a}, {r}});
}
