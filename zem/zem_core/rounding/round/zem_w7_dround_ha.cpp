#include "rounding/round/round.hpp"

ORK_EXPORT void ork_zem_kernel_dRound_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::Round<double>>(n, {{a}, {r}});
}
