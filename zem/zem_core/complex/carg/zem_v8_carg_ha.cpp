#include "arcs/atan2_s_ha.hpp"
#include "frame/of_parts.hpp"

// Atan2 of the parts, see atan2_s_ha.hpp. Bound 0.51 ulp.
ORK_EXPORT void ork_zem_kernel_cArg_V8HAynn(int n, const float* a, float* r) {
  ork::block<ork::OfParts<ork::Atan2HaS, true>>(n, {{ork::pairs(a)}, {r}});
}
