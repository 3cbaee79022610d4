#include "frame/of_parts.hpp"
#include "roots/hypot_d_ep.hpp"

// Hypot of the parts, see hypot_d_ep.hpp. Bound 2^-26.
ORK_EXPORT void ork_zem_kernel_zAbs_V8EPnnn(int n, const double* a, double* r) {
  ork::block<ork::OfParts<ork::HypotEpD>>(n, {{ork::pairs(a)}, {r}});
}
