#include "powers/pow_s.hpp"

ORK_EXPORT void ork_zem_kernel_sPow_T7HAynn(int n, const float* a, const float* b, float* r) {
  ork::block<ork::PowS<ork::Level::ha>>(n, {{a, b}, {r}});
}
