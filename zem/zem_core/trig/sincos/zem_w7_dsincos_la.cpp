#include "trig/sincos_d_la.hpp"

ORK_EXPORT void ork_zem_kernel_dSinCos_W7LAynn(int n, const double* a, double* r, double* r2) {
  ork::block<ork::trig::SinCosLaD>(n, {{a}, {r, r2}});
}
