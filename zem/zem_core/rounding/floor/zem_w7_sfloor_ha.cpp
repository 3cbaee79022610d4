#include "rounding/floor/floor.hpp"

ORK_EXPORT void ork_zem_kernel_sFloor_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::Floor<float>>(n, {{a}, {r}});
}
