#include "rounding/round/round.hpp"

ORK_EXPORT void ork_zem_kernel_sRound_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::Round<float>>(n, {{a}, {r}});
}
