#include "frame/of_parts.hpp"
#include "roots/hypot_d_ha.hpp"

// Hypot of the parts, see hypot_d_ha.hpp. Bound 0.51 ulp.
ORK_EXPORT void ork_zem_kernel_zAbs_V8HAynn(int n, const double* a, double* r) {
  ork::block<ork::OfParts<ork::HypotHaD>>(n, {{ork::pairs(a)}, {r}});
}
