#include "frame/of_parts.hpp"
#include "roots/hypot_s.hpp"

// Hypot of the parts, in double, see hypot_s.hpp. Bound 0.51 ulp.
ORK_EXPORT void ork_zem_kernel_cAbs_V8HAynn(int n, const float* a, float* r) {
  ork::block<ork::OfParts<ork::HypotS<ork::Level::ha>>>(n, {{ork::pairs(a)}, {r}});
}
