#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/pi_kernel.hpp"
#include "trig/scalar.hpp"

namespace ork::trig {

// Sine, single, LA: modulo pi, see pi_kernel.hpp. Fast range |x| < 10000. Bound 2 ulp.
struct SinLaS : Core<float> {
  static constexpr char name[] = "sSin_LA";
  static constexpr unsigned x87 = x87_double;
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= at_least<limit_10000>(abs(x));
    return odd_sine<PiLaS>(reduce_sine<PiLaS>(x));
  }
  static int special(const float* x, float* r) { return scalar<_dSin>(x, r); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_sSin_W7LAynn(int n, const float* a, float* r) {
  ork::block<ork::trig::SinLaS>(n, {{a}, {r}});
}
