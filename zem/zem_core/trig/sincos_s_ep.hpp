#pragma once
#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "trig/pi_kernel.hpp"
#include "trig/scalar.hpp"

namespace ork::trig {

// Sine and cosine, single, EP: each modulo pi, see pi_kernel.hpp, and sin r = r (c_0 + c_1 r^2 +
// c_2 r^4), relative error 1.6e-4 = 2^-12.7. Fast range |x| < 10000. Bound 2^-12.
struct SinCosEpS : Core<float, 1, 2> {
  static constexpr char name[] = "sSinCos_A11";
  static constexpr unsigned x87 = x87_double;
  ORK_INLINE f32x4 sine(const ModuloPi<f32x4>& x) {
    const f32x4 z = x.r * x.r;
    const f32x4 y = x.r * horner(z, 0.99988532f, -0.1659205f, 0.0075766016f);
    return flip(_mm_min_ps(_mm_max_ps(y, splat(-1.0f)), splat(1.0f)), x.sign);  // passes 1 at pi/2
  }
  ORK_INLINE f32x4 eval(f32x4 x, f32x4& cosine, u32x4& rare) {
    rare |= reaches<limit_10000>(abs(x));
    cosine = sine(reduce<Cosine, PiEpS>(x));
    return sine(reduce<Sine, PiEpS>(x));
  }
  static int special(const float* x, float* r, float* r2) { return scalar_sincos(x, r, r2); }
};

}  // namespace ork::trig
