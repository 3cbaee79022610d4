#include "arcs/atan2_s_ha.hpp"

ORK_EXPORT void ork_zem_kernel_sAtan2_V8HAynn(int n, const float* a, const float* b, float* r) {
  ork::chunk<ork::Atan2HaS>(n, {{a, b}, {r}});
}
