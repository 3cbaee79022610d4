#include "rounding/ceil.hpp"

ORK_EXPORT void ork_zem_kernel_dCeil_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::Ceil<double>>(n, {{a}, {r}});
}
