#include "arithmetic/inv/fast.hpp"

ORK_EXPORT void ork_zem_kernel_sInv_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::InvFast<ork::Level::la>>(n, {{a}, {r}});
}
