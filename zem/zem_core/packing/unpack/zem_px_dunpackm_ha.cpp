#include "packing/unpack/unpack.hpp"

ORK_EXPORT void ork_zem_kernel_dUnpackM_PXHAynn(int32_t n_low, int32_t n_high, const double* a,
                                                double* y, const void* mask, int width) {
  ork::unpack_m<double, 1>(n_low, n_high, a, y, mask, width);
}
