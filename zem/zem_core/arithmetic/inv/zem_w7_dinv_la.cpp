#include "arithmetic/inv/inv.hpp"

ORK_EXPORT void ork_zem_kernel_dInv_W7LAynn(int n, const double* a, double* r) {
  ork::block<ork::InvHa<double>>(n, {{a}, {r}});
}
