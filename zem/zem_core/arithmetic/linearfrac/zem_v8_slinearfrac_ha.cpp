#include "arithmetic/linearfrac/linearfrac.hpp"

ORK_EXPORT void ork_zem_kernel_sLinearFrac_V8HAynn(int n, const float* a, const float* b,
                                                   float scale_a, float shift_a, float scale_b,
                                                   float shift_b, float* r) {
  ork::linear_frac<float>(n, a, b, {{}, scale_a, shift_a, scale_b, shift_b}, r);
}
