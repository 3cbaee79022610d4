#include "packing/pack.hpp"

ORK_EXPORT void ork_zem_kernel_sPackI_PXHAynn(int32_t n_low, int32_t n_high, const float* a,
                                              int32_t stride_low, int32_t, float* y, int width) {
  ork::pack_i<float, 1>(n_low, n_high, a, stride_low, y, width);
}
