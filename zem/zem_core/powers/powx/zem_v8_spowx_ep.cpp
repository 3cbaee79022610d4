#include "frame/chunk.hpp"
#include "powers/powx/powx_s.hpp"

ORK_EXPORT void ork_zem_kernel_sPowx_V8EPnnn(int n, const float* a, float b, float* r) {
  using C = ork::PowxS<ork::Level::ep>;
  ork::chunk<C>(n, {{a}, {r}}, C(b));
}
