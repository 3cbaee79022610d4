#include "roots/pow2o3/pow2o3.hpp"

ORK_EXPORT void ork_zem_kernel_dPow2o3_W7EPnnn(int n, const double* a, double* r) {
  ork::block<ork::Pow2o3D<ork::Level::ep>>(n, {{a}, {r}});
}
