// Tanh, single, EP: cubics. Bound: 2^-12.
#include "exponentials/tanh/tanh_s.hpp"

ORK_EXPORT void ork_zem_kernel_sTanh_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::TanhEpS>(n, {{a}, {r}});
}
