#include "arcs/atan2_d_ep.hpp"
#include "frame/of_parts.hpp"

// Atan2 of the parts, see atan2_d_ep.hpp. Bound 2^-26.
ORK_EXPORT void ork_zem_kernel_zArg_V8EPnnn(int n, const double* a, double* r) {
  ork::block<ork::OfParts<ork::Atan2Ep, true>>(n, {{ork::pairs(a)}, {r}});
}
