#include "frame/of_parts.hpp"
#include "trig/sincos_d_ha.hpp"

// SinCos as a complex number, see sincos_d_ha.hpp; the same bound.
ORK_EXPORT void ork_zem_kernel_zCIS_V8HAynn(int n, const double* a, double* r) {
  ork::block<ork::AsParts<ork::trig::SinCosHaD>>(n, {{a}, {ork::pairs(r)}});
}
