#include "complex/csqrt/csqrt.hpp"

// Sqrt c, see csqrt.hpp. Bound: 0.51 ulp a part.
ORK_EXPORT void ork_zem_kernel_cSqrt_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::SqrtS>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
