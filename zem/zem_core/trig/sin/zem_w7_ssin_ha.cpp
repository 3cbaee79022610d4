#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/single_ha.hpp"

namespace ork::trig {

// Sine, single, HA: see single_ha.hpp. A zero keeps its sign through the product.
struct SinHaS : Core<float> {
  static constexpr char name[] = "sSin_HA";
  static constexpr unsigned x87 = x87_double;
  ORK_INLINE f64x2 half(f64x2 x, f64x2& t) {
    t = x * splat(PiEpD::inverse) + splat(PiEpD::shifter);
    return sine_single_ha(x, t - splat(PiEpD::shifter));
  }
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= reaches<limit_10000>(abs(x));
    const Widened w = widen(x);
    f64x2 t0, t1;
    const f64x2 r0 = half(w.low, t0), r1 = half(w.high, t1);
    return flip(narrow(r0, r1), parity(low_words(t0, t1)));
  }
  static int special(const float* x, float* r) { return scalar<_dSin>(x, r); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_sSin_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::trig::SinHaS>(n, {{a}, {r}});
}
