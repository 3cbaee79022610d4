#include "arcs/atan2_s_ep.hpp"
#include "frame/of_parts.hpp"

// Atan2 of the parts, see atan2_s_ep.hpp. Bound 2^-12.
ORK_EXPORT void ork_zem_kernel_cArg_V8EPnnn(int n, const float* a, float* r) {
  ork::block<ork::OfParts<ork::Atan2EpS, true>>(n, {{ork::pairs(a)}, {r}});
}
