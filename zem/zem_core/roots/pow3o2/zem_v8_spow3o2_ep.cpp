#include "frame/chunk.hpp"
#include "roots/pow3o2/pow3o2_single.hpp"

ORK_EXPORT void ork_zem_kernel_sPow3o2_V8EPnnn(int n, const float* a, float* r) {
  ork::chunk<ork::Pow3o2S<ork::Level::ep>>(n, {{a}, {r}});
}
