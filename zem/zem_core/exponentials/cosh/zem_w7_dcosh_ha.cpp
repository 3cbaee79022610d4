// Cosh, double, HA: N = 64, table in two words. Bound: 0.60 ulp.
#include "exponentials/cosh/cosh.hpp"

ORK_EXPORT void ork_zem_kernel_dCosh_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::Cosh<ork::PairHa>>(n, {{a}, {r}});
}
