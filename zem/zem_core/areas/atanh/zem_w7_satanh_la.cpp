// Atanh, single, LA: see atanh_s.hpp. Bound: 2.5 ulp.
#include "areas/atanh/atanh_s.hpp"

ORK_EXPORT void ork_zem_kernel_sAtanh_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::AtanhS<ork::AtanhLevel::la>>(n, {{a}, {r}});
}
