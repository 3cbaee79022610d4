#include "frame/of_parts.hpp"
#include "trig/sincos_s_la.hpp"

// SinCos as a complex number, see sincos_s_la.hpp; the same bound.
ORK_EXPORT void ork_zem_kernel_cCIS_V8LAynn(int n, const float* a, float* r) {
  ork::block<ork::AsParts<ork::trig::SinCosLaS>>(n, {{a}, {ork::pairs(r)}});
}
