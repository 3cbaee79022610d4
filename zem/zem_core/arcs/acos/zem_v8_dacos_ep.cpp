// Acos, double, EP: see asin.hpp. Bound: 2^-26.
#include "arcs/asin.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"

ORK_EXPORT void ork_zem_kernel_dAcos_V8EPnnn(int n, const double* a, double* r) {
  ork::chunk<ork::Acos<double, ork::AsinEp>>(n, {{a}, {r}});
}
