// Tanh, double, LA: without the low word of the value at the centre. Bound: 1.5 ulp.
#include "exponentials/tanh/tanh_d.hpp"

ORK_EXPORT void ork_zem_kernel_dTanh_W7LAynn(int n, const double* a, double* r) {
  ork::block<ork::TanhD<false>>(n, {{a}, {r}});
}
