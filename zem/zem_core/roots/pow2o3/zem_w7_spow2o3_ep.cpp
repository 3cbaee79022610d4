#include "roots/pow2o3/pow2o3_single.hpp"

ORK_EXPORT void ork_zem_kernel_sPow2o3_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::Pow2o3S<ork::Level::ep>>(n, {{a}, {r}});
}
