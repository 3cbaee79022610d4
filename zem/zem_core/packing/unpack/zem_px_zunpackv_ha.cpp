#include "packing/unpack/unpack.hpp"

ORK_EXPORT void ork_zem_kernel_zUnpackV_PXHAynn(int32_t n_low, int32_t n_high, const double* a,
                                                double* y, const void* index, int width) {
  ork::unpack_v<double, 2>(n_low, n_high, a, y, index, width);
}
