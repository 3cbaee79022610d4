#include "arcs/atan2_d_ep.hpp"

ORK_EXPORT void ork_zem_kernel_dAtan2_V8EPnnn(int n, const double* a, const double* b, double* r) {
  ork::chunk<ork::Atan2Ep>(n, {{a, b}, {r}});
}
