#include "arcs/atan2_d_la.hpp"

ORK_EXPORT void ork_zem_kernel_dAtan2_W7LAynn(int n, const double* a, const double* b, double* r) {
  ork::block<ork::Atan2La>(n, {{a, b}, {r}});
}
