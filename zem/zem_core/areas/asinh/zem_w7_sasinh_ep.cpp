// Asinh, single, EP: see asinh_s.hpp. Bound: 2^-12.
#include "areas/asinh/asinh_s.hpp"

ORK_EXPORT void ork_zem_kernel_sAsinh_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::AsinhShortS<true>>(n, {{a}, {r}});
}
