#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/pi_kernel.hpp"
#include "trig/scalar.hpp"

namespace ork::trig {

// Sine and cosine, single, LA: each modulo pi, the bits of the two single functions. Fast range
// |x| < 10000. Bound 2 ulp.
struct SinCosLaS : Core<float, 1, 2> {
  static constexpr char name[] = "sSinCos_LA";
  static constexpr unsigned x87 = x87_double;
  ORK_INLINE f32x4 eval(f32x4 x, f32x4& cosine, u32x4& rare) {
    rare |= at_least<limit_10000>(abs(x));
    cosine = odd_sine<PiLaS>(reduce_cosine<PiLaS>(x));
    return odd_sine<PiLaS>(reduce_sine<PiLaS>(x));
  }
  static int special(const float* x, float* r, float* r2) { return scalar_sincos(x, r, r2); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_sSinCos_W7LAynn(int n, const float* a, float* r, float* r2) {
  ork::block<ork::trig::SinCosLaS>(n, {{a}, {r, r2}});
}
