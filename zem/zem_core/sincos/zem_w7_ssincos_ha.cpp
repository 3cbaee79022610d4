#include "frame/block.hpp"
#include "ork/zem_kernels.h"
#include "sincos/quarters.hpp"
#include "trig/scalar.hpp"
#include "trig/single.hpp"

namespace ork::trig {

#include "trig/sine_fits.inc"

// Sine and cosine, single, HA, in double: x = n pi/2 + r, |r| <= pi/4,
//   sin r = r (1 + s_1 r^2 + ... + s_4 r^8), relative error 5.1e-12 (fit)
//   cos r = 1 + r^2 (c_0 + ... + c_3 r^6), relative error 1.2e-10 (given)
// n modulo 4 swaps the two and gives the signs. Fast range |x| < 10000. special: the scalar
// routine, any argument. Bound 0.55 ulp.
struct SinCosHaS : Core<float, 1, 2> {
  static constexpr char name[] = "sSinCos_HA";
  static constexpr unsigned x87 = x87_double;

  ORK_INLINE void half(f64x2 x, f64x2& t, f64x2& s, f64x2& c) {
    const f64x2 shifter = splat(6755399441055744.0);  // 1.5 * 2^52
    t = x * splat(0.63661977236758138) + shifter;
    const f64x2 n = t - shifter;
    const f64x2 r = x - n * splat(1.5707963267923333) - n * splat(2.5633441515945189e-12),
                z = r * r;
    // A zero keeps its sign through the product.
    s = r * horner(z, 1.0, quarter_s1, quarter_s2, quarter_s3, quarter_s4);
    c = horner(z, 1.0, -0.5, 0.041666645682975567, -0.0013887316254360454, 2.4433157058349041e-05);
  }
  ORK_INLINE f32x4 eval(f32x4 x, f32x4& cosine, u32x4& rare) {
    rare |= at_least<limit_10000>(abs(x));
    const Widened w = widen(x);
    f64x2 t0, t1, s0, s1, c0, c1;
    half(w.low, t0, s0, c0);
    half(w.high, t1, s1, c1);
    const Both both = turn_quarters(narrow(s0, s1), narrow(c0, c1), as<u32x4>(low_words(t0, t1)));
    cosine = both.cosine;
    return both.sine;
  }
  static int special(const float* x, float* r, float* r2) { return scalar_sincos(x, r, r2); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_sSinCos_W7HAynn(int n, const float* a, float* r, float* r2) {
  ork::block<ork::trig::SinCosHaS>(n, {{a}, {r, r2}});
}
