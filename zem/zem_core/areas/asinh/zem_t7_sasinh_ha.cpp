// Asinh, single, HA: see asinh_s.hpp. Bound: 0.51 ulp.
#include "areas/asinh/asinh_s.hpp"

ORK_EXPORT void ork_zem_kernel_sAsinh_T7HAynn(int n, const float* a, float* r) {
  ork::block<ork::AsinhHaS>(n, {{a}, {r}});
}
