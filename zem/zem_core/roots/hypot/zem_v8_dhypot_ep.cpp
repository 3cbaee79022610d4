#include "frame/chunk.hpp"
#include "roots/hypot_d_ep.hpp"

ORK_EXPORT void ork_zem_kernel_dHypot_V8EPnnn(int n, const double* a, const double* b, double* r) {
  ork::chunk<ork::HypotEpD>(n, {{a, b}, {r}});
}
