#include "arithmetic/div.hpp"

ORK_EXPORT void ork_zem_kernel_sDiv_W7HAynn(int n, const float* a, const float* b, float* r) {
  ork::block<ork::DivHa<float>>(n, {{a, b}, {r}});
}
