// Sinh, single, EP: linear in r. Bound: 2^-12.
#include "exponentials/sinh/sinh.hpp"

ORK_EXPORT void ork_zem_kernel_sSinh_V8EPnnn(int n, const float* a, float* r) {
  ork::chunk<ork::Sinh<ork::PairEpS>>(n, {{a}, {r}});
}
