#include "powers/pow_d.hpp"

ORK_EXPORT void ork_zem_kernel_dPow_V8LAynn(int n, const double* a, const double* b, double* r) {
  ork::chunk<ork::PowD>(n, {{a, b}, {r}});
}
