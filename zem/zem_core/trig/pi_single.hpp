#pragma once
// The single-precision kernels modulo pi, see pi_kernel.hpp, F being Sine or Cosine.
// special: the scalar routine, any argument.
#include "frame/block.hpp"
#include "trig/pi_kernel.hpp"
#include "trig/single.hpp"

namespace ork::trig {

template <class F>
struct SingleCore : Core<float> {
  static constexpr unsigned x87 = x87_double;
  static int special(const float* x, float* r) { return scalar<F::routine>(x, r); }
};

// LA. Fast range |x| < 10000. Bound 2 ulp.
template <class F>
struct SingleLa : SingleCore<F> {
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= reaches<limit_10000>(abs(x));
    return odd_sine<PiLaS>(reduce<F, PiLaS>(x));
  }
};

// EP. Below 10000 in single; from there to 1e7, where n has up to 22 bits, reduced in double.
// Bound 2^-12.
template <class F>
struct SingleEp : SingleCore<F> {
  static constexpr uint32_t limit_1e7 = 0x4B189680;
  ORK_INLINE f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= reaches<limit_10000>(abs(x));
    return odd_sine<PiEpS>(reduce<F, PiEpS>(x));
  }
  static __attribute__((noinline)) f32x4 eval_rest(f32x4 x, f32x4 fast, u32x4& rare) {
    const f32x4 ax = abs(x);
    rare |= reaches<limit_1e7>(ax);
    const Widened w = widen(ax);
    f64x2 t0, t1;
    const f64x2 r0 = F::template remainder<PiEpD>(w.low, t0),
                r1 = F::template remainder<PiEpD>(w.high, t1);
    const ModuloPi<f32x4> reduced = {narrow(r0, r1), F::sign(parity(low_words(t0, t1)), x)};
    return select(as<i32x4>(reaches<limit_10000>(ax)) >> 31, odd_sine<PiEpS>(reduced), fast);
  }
};

}  // namespace ork::trig
