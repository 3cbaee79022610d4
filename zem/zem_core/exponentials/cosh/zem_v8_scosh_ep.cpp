// Cosh, single, EP: linear in r. Bound: 2^-12.
#include "exponentials/cosh/cosh.hpp"

ORK_EXPORT void ork_zem_kernel_sCosh_V8EPnnn(int n, const float* a, float* r) {
  ork::chunk<ork::Cosh<ork::PairEpS>>(n, {{a}, {r}});
}
