// Asin, double, LA: see asin.hpp. Bound: 2 ulp.
#include "arcs/asin.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"

ORK_EXPORT void ork_zem_kernel_dAsin_V8LAynn(int n, const double* a, double* r) {
  ork::chunk<ork::Asin<double, ork::AsinLa>>(n, {{a}, {r}});
}
