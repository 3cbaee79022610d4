#include "rounding/trunc/trunc.hpp"

ORK_EXPORT void ork_zem_kernel_dTrunc_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::Trunc<double>>(n, {{a}, {r}});
}
