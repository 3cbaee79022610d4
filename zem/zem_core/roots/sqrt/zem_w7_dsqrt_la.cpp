#include "roots/sqrt/sqrt.hpp"

ORK_EXPORT void ork_zem_kernel_dSqrt_W7LAynn(int n, const double* a, double* r) {
  ork::block<ork::SqrtD<ork::Level::la>>(n, {{a}, {r}});
}
