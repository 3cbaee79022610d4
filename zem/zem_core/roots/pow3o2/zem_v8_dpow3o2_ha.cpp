#include "frame/chunk.hpp"
#include "roots/pow3o2/pow3o2.hpp"

ORK_EXPORT void ork_zem_kernel_dPow3o2_V8HAynn(int n, const double* a, double* r) {
  ork::chunk<ork::Pow3o2D<ork::Level::ha>>(n, {{a}, {r}});
}
