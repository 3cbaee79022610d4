#include "trig/sincos_d_ep.hpp"

ORK_EXPORT void ork_zem_kernel_dSinCos_V8EPnnn(int n, const double* a, double* r, double* r2) {
  ork::chunk<ork::trig::SinCosEpD>(n, {{a}, {r, r2}});
}
