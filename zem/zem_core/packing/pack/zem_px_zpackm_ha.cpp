#include "packing/pack.hpp"

ORK_EXPORT void ork_zem_kernel_zPackM_PXHAynn(int32_t n_low, int32_t n_high, const double* a,
                                              const void* mask, double* y, int width) {
  ork::pack_m<double, 2>(n_low, n_high, a, mask, y, width);
}
