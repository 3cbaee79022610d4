#include "rounding/trunc/trunc.hpp"

ORK_EXPORT void ork_zem_kernel_sTrunc_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::Trunc<float>>(n, {{a}, {r}});
}
