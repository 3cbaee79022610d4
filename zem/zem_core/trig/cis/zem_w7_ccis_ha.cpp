#include "frame/of_parts.hpp"
#include "trig/sincos_s_ha.hpp"

// SinCos as a complex number, see sincos_s_ha.hpp; the same bound.
ORK_EXPORT void ork_zem_kernel_cCIS_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::AsParts<ork::trig::SinCosHaS>>(n, {{a}, {ork::pairs(r)}});
}
