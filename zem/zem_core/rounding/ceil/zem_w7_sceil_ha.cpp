#include "rounding/ceil.hpp"

ORK_EXPORT void ork_zem_kernel_sCeil_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::Ceil<float>>(n, {{a}, {r}});
}
