#include "trig/sincos_s_la.hpp"

ORK_EXPORT void ork_zem_kernel_sSinCos_W7LAynn(int n, const float* a, float* r, float* r2) {
  ork::block<ork::trig::SinCosLaS>(n, {{a}, {r, r2}});
}
