#include "trig/sincos_d_ha.hpp"

ORK_EXPORT void ork_zem_kernel_dSinCos_T7HAynn(int n, const double* a, double* r, double* r2) {
  ork::block<ork::trig::SinCosHaD>(n, {{a}, {r, r2}});
}
