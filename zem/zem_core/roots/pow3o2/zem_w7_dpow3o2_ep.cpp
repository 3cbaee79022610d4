#include "roots/pow3o2/pow3o2.hpp"

ORK_EXPORT void ork_zem_kernel_dPow3o2_W7EPnnn(int n, const double* a, double* r) {
  ork::block<ork::Pow3o2D<ork::Level::ep>>(n, {{a}, {r}});
}
