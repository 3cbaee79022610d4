#include "rounding/rint.hpp"

ORK_EXPORT void ork_zem_kernel_sNearbyInt_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::Rint<float>>(n, {{a}, {r}});
}
