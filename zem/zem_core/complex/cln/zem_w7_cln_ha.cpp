#include "complex/cln/cln.hpp"

// Ln c, see cln.hpp. Bound: 0.51 ulp a part.
ORK_EXPORT void ork_zem_kernel_cLn_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::LnS>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
