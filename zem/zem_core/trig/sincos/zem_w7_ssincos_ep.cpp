#include "trig/sincos_s_ep.hpp"

ORK_EXPORT void ork_zem_kernel_sSinCos_W7EPnnn(int n, const float* a, float* r, float* r2) {
  ork::block<ork::trig::SinCosEpS>(n, {{a}, {r, r2}});
}
