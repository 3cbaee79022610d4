// Tanh, single, LA: without the low word of the value at the centre. Bound: 2 ulp.
#include "exponentials/tanh/tanh_s.hpp"

ORK_EXPORT void ork_zem_kernel_sTanh_V8LAynn(int n, const float* a, float* r) {
  ork::chunk<ork::TanhS<false>>(n, {{a}, {r}});
}
