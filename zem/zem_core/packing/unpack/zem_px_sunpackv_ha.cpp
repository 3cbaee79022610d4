#include "packing/unpack/unpack.hpp"

ORK_EXPORT void ork_zem_kernel_sUnpackV_PXHAynn(int32_t n_low, int32_t n_high, const float* a,
                                                float* y, const void* index, int width) {
  ork::unpack_v<float, 1>(n_low, n_high, a, y, index, width);
}
