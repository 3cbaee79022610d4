#include "packing/pack.hpp"

ORK_EXPORT void ork_zem_kernel_zPackV_PXHAynn(int32_t n_low, int32_t n_high, const double* a,
                                              const void* index, double* y, int width) {
  ork::pack_v<double, 2>(n_low, n_high, a, index, y, width);
}
