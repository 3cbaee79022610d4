// Acosh, single, HA: see acosh_s.hpp. Bound: 0.51 ulp.
#include "areas/acosh/acosh_s.hpp"

ORK_EXPORT void ork_zem_kernel_sAcosh_T7HAynn(int n, const float* a, float* r) {
  ork::block<ork::AcoshS<false>>(n, {{a}, {r}});
}
