#include "packing/unpack/unpack.hpp"

ORK_EXPORT void ork_zem_kernel_cUnpackI_PXHAynn(int32_t n_low, int32_t n_high, const float* a,
                                                float* y, int32_t stride_low, int32_t, int width) {
  ork::unpack_i<float, 2>(n_low, n_high, a, y, stride_low, width);
}
