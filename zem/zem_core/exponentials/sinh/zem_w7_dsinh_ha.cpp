// Sinh, double, HA: N = 64, table in two words. Bound: 0.60 ulp.
#include "exponentials/sinh/sinh.hpp"

ORK_EXPORT void ork_zem_kernel_dSinh_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::Sinh<ork::PairHa>>(n, {{a}, {r}});
}
