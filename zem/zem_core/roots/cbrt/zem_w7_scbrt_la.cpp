#include "roots/cbrt_single.hpp"

ORK_EXPORT void ork_zem_kernel_sCbrt_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::CbrtS<ork::Level::la>>(n, {{a}, {r}});
}
