// Asin, double, HA: see asin.hpp. Bound: 0.80 ulp.
#include "arcs/asin.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"

ORK_EXPORT void ork_zem_kernel_dAsin_V8HAynn(int n, const double* a, double* r) {
  ork::chunk<ork::Asin<double, ork::AsinHa>>(n, {{a}, {r}});
}
