#include "arithmetic/inv/fast.hpp"

ORK_EXPORT void ork_zem_kernel_sInv_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::InvFast<ork::Level::ep>>(n, {{a}, {r}});
}
