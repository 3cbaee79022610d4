#include "roots/cbrt.hpp"

ORK_EXPORT void ork_zem_kernel_dCbrt_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::CbrtD<ork::Level::ha>>(n, {{a}, {r}});
}
