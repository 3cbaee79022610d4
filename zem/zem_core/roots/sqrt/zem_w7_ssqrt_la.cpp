#include "roots/sqrt/sqrt_single.hpp"

ORK_EXPORT void ork_zem_kernel_sSqrt_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::SqrtS<ork::Level::la>>(n, {{a}, {r}});
}
