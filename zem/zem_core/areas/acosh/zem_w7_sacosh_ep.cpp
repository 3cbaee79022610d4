// Acosh, single, EP: see acosh_s.hpp. Bound: 2^-12.
#include "areas/acosh/acosh_s.hpp"

ORK_EXPORT void ork_zem_kernel_sAcosh_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::AcoshS<true>>(n, {{a}, {r}});
}
