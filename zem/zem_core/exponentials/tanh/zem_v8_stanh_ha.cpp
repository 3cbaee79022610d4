// Tanh, single, HA: see tanh_s.hpp. Bound: 0.55 ulp.
#include "exponentials/tanh/tanh_s.hpp"

ORK_EXPORT void ork_zem_kernel_sTanh_V8HAynn(int n, const float* a, float* r) {
  ork::chunk<ork::TanhS<true>>(n, {{a}, {r}});
}
