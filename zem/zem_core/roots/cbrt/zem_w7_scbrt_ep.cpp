#include "roots/cbrt_single.hpp"

ORK_EXPORT void ork_zem_kernel_sCbrt_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::CbrtS<ork::Level::ep>>(n, {{a}, {r}});
}
