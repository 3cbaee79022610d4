#include "arithmetic/abs/abs.hpp"

ORK_EXPORT void ork_zem_kernel_dAbs_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::Abs<double>>(n, {{a}, {r}});
}
