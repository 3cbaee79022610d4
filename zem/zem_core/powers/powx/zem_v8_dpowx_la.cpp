#include "powers/powx/powx_d.hpp"

ORK_EXPORT void ork_zem_kernel_dPowx_V8LAynn(int n, const double* a, double b, double* r) {
  ork::chunk<ork::PowxD>(n, {{a}, {r}}, ork::PowxD(b));
}
