// Asinh, single, LA: see asinh_s.hpp. Bound: 2.5 ulp.
#include "areas/asinh/asinh_s.hpp"

ORK_EXPORT void ork_zem_kernel_sAsinh_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::AsinhShortS<false>>(n, {{a}, {r}});
}
