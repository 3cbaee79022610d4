#include "packing/unpack/unpack.hpp"

ORK_EXPORT void ork_zem_kernel_dUnpackI_PXHAynn(int32_t n_low, int32_t n_high, const double* a,
                                                double* y, int32_t stride_low, int32_t, int width) {
  ork::unpack_i<double, 1>(n_low, n_high, a, y, stride_low, width);
}
