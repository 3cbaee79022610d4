#include "frame/of_parts.hpp"
#include "trig/sincos_d_la.hpp"

// SinCos as a complex number, see sincos_d_la.hpp; the same bound.
ORK_EXPORT void ork_zem_kernel_zCIS_V8LAynn(int n, const double* a, double* r) {
  ork::block<ork::AsParts<ork::trig::SinCosLaD>>(n, {{a}, {ork::pairs(r)}});
}
