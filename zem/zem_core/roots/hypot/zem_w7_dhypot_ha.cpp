#include "roots/hypot_d_ha.hpp"

ORK_EXPORT void ork_zem_kernel_dHypot_W7HAynn(int n, const double* a, const double* b, double* r) {
  ork::block<ork::HypotHaD>(n, {{a, b}, {r}});
}
