#include "arithmetic/inv/inv.hpp"

ORK_EXPORT void ork_zem_kernel_sInv_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::InvHa<float>>(n, {{a}, {r}});
}
