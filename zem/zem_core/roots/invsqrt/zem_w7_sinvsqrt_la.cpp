#include "roots/invsqrt/invsqrt_single.hpp"

ORK_EXPORT void ork_zem_kernel_sInvSqrt_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::InvSqrtS<ork::Level::la>>(n, {{a}, {r}});
}
