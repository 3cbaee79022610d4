#include "arcs/atan2_d_la.hpp"
#include "frame/of_parts.hpp"

// Atan2 of the parts, see atan2.hpp. Bound 2 ulp.
ORK_EXPORT void ork_zem_kernel_zArg_W7LAynn(int n, const double* a, double* r) {
  ork::block<ork::OfParts<ork::Atan2La, true>>(n, {{ork::pairs(a)}, {r}});
}
