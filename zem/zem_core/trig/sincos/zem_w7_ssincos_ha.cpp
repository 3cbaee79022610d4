#include "trig/sincos_s_ha.hpp"

ORK_EXPORT void ork_zem_kernel_sSinCos_W7HAynn(int n, const float* a, float* r, float* r2) {
  ork::block<ork::trig::SinCosHaS>(n, {{a}, {r, r2}});
}
