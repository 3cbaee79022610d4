// Cosh, single, LA: table in one word. Bound: 2 ulp.
#include "exponentials/cosh/cosh.hpp"

ORK_EXPORT void ork_zem_kernel_sCosh_V8LAynn(int n, const float* a, float* r) {
  ork::chunk<ork::Cosh<ork::PairLaS>>(n, {{a}, {r}});
}
