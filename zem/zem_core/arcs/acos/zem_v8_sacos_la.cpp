// Acos, single, LA: see asin.hpp. Bound: 2.5 ulp.
#include "arcs/asin.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"

ORK_EXPORT void ork_zem_kernel_sAcos_V8LAynn(int n, const float* a, float* r) {
  ork::chunk<ork::Acos<float, ork::AsinLaInSingle>>(n, {{a}, {r}});
}
