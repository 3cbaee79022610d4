#include "frame/of_parts.hpp"
#include "roots/hypot_s.hpp"

// Hypot of the parts, see hypot_s.hpp. Bound 1 ulp.
ORK_EXPORT void ork_zem_kernel_cAbs_V8LAynn(int n, const float* a, float* r) {
  ork::block<ork::OfParts<ork::HypotS<ork::Level::la>>>(n, {{ork::pairs(a)}, {r}});
}
