#include "arcs/atan2_s_ep.hpp"

ORK_EXPORT void ork_zem_kernel_sAtan2_W7EPnnn(int n, const float* a, const float* b, float* r) {
  ork::block<ork::Atan2EpS>(n, {{a, b}, {r}});
}
