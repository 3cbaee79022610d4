#include "roots/invsqrt/invsqrt_single.hpp"

ORK_EXPORT void ork_zem_kernel_sInvSqrt_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::InvSqrtS<ork::Level::ep>>(n, {{a}, {r}});
}
