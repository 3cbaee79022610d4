#include "powers/pow_d_ep.hpp"

ORK_EXPORT void ork_zem_kernel_dPow_V8EPnnn(int n, const double* a, const double* b, double* r) {
  ork::chunk<ork::PowEpD>(n, {{a, b}, {r}});
}
