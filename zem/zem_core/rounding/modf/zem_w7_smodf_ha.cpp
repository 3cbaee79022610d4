#include "rounding/modf/modf.hpp"

ORK_EXPORT void ork_zem_kernel_sModf_W7HAynn(int n, const float* a, float* r, float* r2) {
  ork::block<ork::Modf<float>>(n, {{a}, {r, r2}});
}
