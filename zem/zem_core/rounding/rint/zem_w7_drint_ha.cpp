#include "rounding/rint.hpp"

ORK_EXPORT void ork_zem_kernel_dRint_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::Rint<double>>(n, {{a}, {r}});
}
