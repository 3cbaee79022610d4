#include "complex/cln/cln.hpp"

// Ln z, EP: see cln.hpp. Bound: 2 ulp a part.
ORK_EXPORT void ork_zem_kernel_zLn_W7EPnnn(int n, const double* a, double* r) {
  ork::block<ork::LnLaZ>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
