#include "arcs/atan2_s_ha.hpp"
#include "frame/of_parts.hpp"

// The kernel of HA: the single-precision formula of Atan2 LA is 2.2 ulp off. Bound 0.51 ulp.
ORK_EXPORT void ork_zem_kernel_cArg_V8LAynn(int n, const float* a, float* r) {
  ork::block<ork::OfParts<ork::Atan2HaS, true>>(n, {{ork::pairs(a)}, {r}});
}
