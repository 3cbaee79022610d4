#include "arithmetic/div.hpp"

ORK_EXPORT void ork_zem_kernel_dDiv_W7HAynn(int n, const double* a, const double* b, double* r) {
  ork::block<ork::DivHa<double>>(n, {{a, b}, {r}});
}
