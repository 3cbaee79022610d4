// Sinh, double, LA: N = 128, table in one word. Bound: 2.5 ulp.
#include "exponentials/sinh/sinh.hpp"

ORK_EXPORT void ork_zem_kernel_dSinh_W7LAynn(int n, const double* a, double* r) {
  ork::block<ork::Sinh<ork::PairLa>>(n, {{a}, {r}});
}
