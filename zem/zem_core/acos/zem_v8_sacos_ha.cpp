// Acos, single, HA: see asin.hpp. Bound: 0.66 ulp.
#include "asin/asin.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"

ORK_EXPORT void ork_zem_kernel_sAcos_V8HAynn(int n, const float* a, float* r) {
  ork::chunk<ork::Acos<float, ork::AsinHa>>(n, {{a}, {r}});
}
