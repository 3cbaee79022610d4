#include "packing/pack.hpp"

ORK_EXPORT void ork_zem_kernel_sPackM_PXHAynn(int32_t n_low, int32_t n_high, const float* a,
                                              const void* mask, float* y, int width) {
  ork::pack_m<float, 1>(n_low, n_high, a, mask, y, width);
}
