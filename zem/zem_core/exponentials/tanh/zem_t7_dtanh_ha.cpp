// Tanh, double, HA: see tanh_d.hpp. Bound: 0.76 ulp.
#include "exponentials/tanh/tanh_d.hpp"

ORK_EXPORT void ork_zem_kernel_dTanh_T7HAynn(int n, const double* a, double* r) {
  ork::block<ork::TanhD<true>>(n, {{a}, {r}});
}
