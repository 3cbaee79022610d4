// Cosh, double, LA: N = 128, table in one word. Bound: 2 ulp.
#include "exponentials/cosh/cosh.hpp"

ORK_EXPORT void ork_zem_kernel_dCosh_V8LAynn(int n, const double* a, double* r) {
  ork::chunk<ork::Cosh<ork::PairLa>>(n, {{a}, {r}});
}
