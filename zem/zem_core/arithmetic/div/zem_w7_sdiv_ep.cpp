#include "arithmetic/div/fast.hpp"

ORK_EXPORT void ork_zem_kernel_sDiv_W7EPnnn(int n, const float* a, const float* b, float* r) {
  ork::block<ork::DivFast<ork::Level::ep>>(n, {{a, b}, {r}});
}
