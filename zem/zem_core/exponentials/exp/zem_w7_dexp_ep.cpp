#include "exponentials/exp_d.hpp"

ORK_EXPORT void ork_zem_kernel_dExp_W7EPnnn(int n, const double* a, double* r) {
  ork::block<ork::ExpD<ork::ExpEp>>(n, {{a}, {r}});
}
