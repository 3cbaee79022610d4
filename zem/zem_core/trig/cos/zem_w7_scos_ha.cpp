#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/single_ha.hpp"

namespace ork::trig {

// Cosine, single, HA: see single_ha.hpp, with n - 1/2 for n.
struct CosHaS : Core<float> {
  static constexpr char name[] = "sCos_HA";
  static constexpr unsigned x87 = x87_double;
  ORK_INLINE f64x2 half(f64x2 ax, f64x2& t) {
    t = (ax + splat(PiEpD::half_pi)) * splat(PiEpD::inverse) + splat(PiEpD::shifter);
    return sine_single_ha(ax, (t - splat(PiEpD::shifter)) - splat(0.5));
  }
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    const f32x4 ax = abs(x);
    rare |= reaches<limit_10000>(ax);
    const Widened w = widen(ax);
    f64x2 t0, t1;
    const f64x2 r0 = half(w.low, t0), r1 = half(w.high, t1);
    return flip(narrow(r0, r1), parity(low_words(t0, t1)));
  }
  static int special(const float* x, float* r) { return scalar<_dCos>(x, r); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_sCos_W7HAynn(int n, const float* a, float* r) {
  ork::block<ork::trig::CosHaS>(n, {{a}, {r}});
}
