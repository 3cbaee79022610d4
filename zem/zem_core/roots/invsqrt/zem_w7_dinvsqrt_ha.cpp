#include "roots/invsqrt/invsqrt.hpp"

ORK_EXPORT void ork_zem_kernel_dInvSqrt_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::InvSqrtD<ork::Level::ha>>(n, {{a}, {r}});
}
