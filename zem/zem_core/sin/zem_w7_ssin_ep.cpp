#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/pi_kernel.hpp"
#include "trig/scalar.hpp"
#include "trig/single.hpp"

namespace ork::trig {

// Sine, single, EP: modulo pi, see pi_kernel.hpp; below 10000 in single, from there to 1e7,
// where n has up to 22 bits, reduced in double. Bound 2^-12.
struct SinEpS : Core<float> {
  static constexpr char name[] = "sSin_A11";
  static constexpr unsigned x87 = x87_double;
  static constexpr uint32_t limit_1e7 = 0x4B189680;
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= at_least<limit_10000>(abs(x));
    return odd_sine<PiEpS>(reduce_sine<PiEpS>(x));
  }
  static __attribute__((noinline)) f32x4 eval_rest(f32x4 x, f32x4 fast, u32x4& rare) {
    const f32x4 ax = abs(x);
    rare |= at_least<limit_1e7>(ax);
    const Widened w = widen(ax);
    f64x2 t0, t1;
    const f64x2 r0 = sine_remainder<PiEpD>(w.low, t0), r1 = sine_remainder<PiEpD>(w.high, t1);
    const ModuloPi<f32x4> reduced = {narrow(r0, r1), flip(parity(low_words(t0, t1)), sign_of(x))};
    return select(as<i32x4>(at_least<limit_10000>(ax)) >> 31, odd_sine<PiEpS>(reduced), fast);
  }
  static int special(const float* x, float* r) { return scalar<_dSin>(x, r); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_sSin_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::trig::SinEpS>(n, {{a}, {r}});
}
