// Atanh, single, HA: see atanh_s.hpp. Bound: 0.51 ulp.
#include "areas/atanh/atanh_s.hpp"

ORK_EXPORT void ork_zem_kernel_sAtanh_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::AtanhS<ork::AtanhLevel::ha>>(n, {{a}, {r}});
}
