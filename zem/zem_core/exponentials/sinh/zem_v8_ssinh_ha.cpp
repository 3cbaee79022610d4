// Sinh, single, HA: table in two words. Bound: 0.55 ulp.
#include "exponentials/sinh/sinh.hpp"

ORK_EXPORT void ork_zem_kernel_sSinh_V8HAynn(int n, const float* a, float* r) {
  ork::chunk<ork::Sinh<ork::PairHaS>>(n, {{a}, {r}});
}
