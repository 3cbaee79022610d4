#include "rounding/floor/floor.hpp"

ORK_EXPORT void ork_zem_kernel_dFloor_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::Floor<double>>(n, {{a}, {r}});
}
