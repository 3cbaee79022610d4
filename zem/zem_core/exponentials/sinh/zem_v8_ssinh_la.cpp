// Sinh, single, LA: table in one word. Bound: 2.5 ulp.
#include "exponentials/sinh/sinh.hpp"

ORK_EXPORT void ork_zem_kernel_sSinh_V8LAynn(int n, const float* a, float* r) {
  ork::chunk<ork::Sinh<ork::PairLaS>>(n, {{a}, {r}});
}
