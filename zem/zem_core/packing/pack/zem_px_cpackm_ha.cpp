#include "packing/pack.hpp"

ORK_EXPORT void ork_zem_kernel_cPackM_PXHAynn(int32_t n_low, int32_t n_high, const float* a,
                                              const void* mask, float* y, int width) {
  ork::pack_m<float, 2>(n_low, n_high, a, mask, y, width);
}
