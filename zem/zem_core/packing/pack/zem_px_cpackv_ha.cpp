#include "packing/pack.hpp"

ORK_EXPORT void ork_zem_kernel_cPackV_PXHAynn(int32_t n_low, int32_t n_high, const float* a,
                                              const void* index, float* y, int width) {
  ork::pack_v<float, 2>(n_low, n_high, a, index, y, width);
}
