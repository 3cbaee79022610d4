#include "frame/chunk.hpp"
#include "roots/hypot_s.hpp"

ORK_EXPORT void ork_zem_kernel_sHypot_V8EPnnn(int n, const float* a, const float* b, float* r) {
  ork::chunk<ork::HypotS<ork::Level::ep>>(n, {{a, b}, {r}});
}
