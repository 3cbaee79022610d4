#include "frame/of_parts.hpp"
#include "trig/sincos_s_ep.hpp"

// SinCos as a complex number, see sincos_s_ep.hpp; the same bound.
ORK_EXPORT void ork_zem_kernel_cCIS_V8EPnnn(int n, const float* a, float* r) {
  ork::block<ork::AsParts<ork::trig::SinCosEpS>>(n, {{a}, {ork::pairs(r)}});
}
