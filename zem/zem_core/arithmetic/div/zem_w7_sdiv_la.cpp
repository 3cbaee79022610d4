#include "arithmetic/div/fast.hpp"

ORK_EXPORT void ork_zem_kernel_sDiv_W7LAynn(int n, const float* a, const float* b, float* r) {
  ork::block<ork::DivFast<ork::Level::la>>(n, {{a, b}, {r}});
}
