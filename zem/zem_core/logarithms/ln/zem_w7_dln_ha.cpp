#include "logarithms/natural_d.hpp"

ORK_EXPORT void ork_zem_kernel_dLn_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::LogHaD<ork::Natural>>(n, {{a}, {r}});
}
