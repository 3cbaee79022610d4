#include "frame/chunk.hpp"
#include "powers/pow_s.hpp"

ORK_EXPORT void ork_zem_kernel_sPow_V8EPnnn(int n, const float* a, const float* b, float* r) {
  ork::chunk<ork::PowS<ork::Level::ep>>(n, {{a, b}, {r}});
}
