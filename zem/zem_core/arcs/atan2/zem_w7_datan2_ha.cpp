#include "arcs/atan2_d_ha.hpp"

ORK_EXPORT void ork_zem_kernel_dAtan2_W7HAynn(int n, const double* a, const double* b, double* r) {
  ork::block<ork::Atan2Ha>(n, {{a, b}, {r}});
}
