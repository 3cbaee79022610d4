#include "arithmetic/abs/abs.hpp"

ORK_EXPORT void ork_zem_kernel_sAbs_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::Abs<float>>(n, {{a}, {r}});
}
