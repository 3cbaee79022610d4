#include "roots/hypot_s.hpp"

ORK_EXPORT void ork_zem_kernel_sHypot_W7HAynn(int n, const float* a, const float* b, float* r) {
  ork::block<ork::HypotS<ork::Level::ha>>(n, {{a, b}, {r}});
}
