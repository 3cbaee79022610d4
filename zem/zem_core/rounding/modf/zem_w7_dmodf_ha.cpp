#include "rounding/modf/modf.hpp"

ORK_EXPORT void ork_zem_kernel_dModf_W7HAynn(int n, const double* a, double* r, double* r2) {
  ork::block<ork::Modf<double>>(n, {{a}, {r, r2}});
}
