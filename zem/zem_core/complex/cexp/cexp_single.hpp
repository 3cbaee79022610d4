#pragma once
// Exp of single-precision complex vectors, in double: e^x of exp_d.hpp's LA, sine and cosine of
// hyperbolic_single.hpp, each product rounded once. Fast range: |x| < 87.3365, |y| < 90112.
#include "complex/cexp/cexp.hpp"
#include "complex/hyperbolic_single.hpp"

namespace ork {

struct ExpC : ComplexExp<float> {
  static constexpr char name[] = "vcExp";
  static constexpr int vectors = 1;

  ORK_INLINE Planes<f64x2> half(f64x2 x, f64x2 y) {
    u32x4 none{};
    const f64x2 e = ExpD<ExpLa>::eval(x, none);
    const Two angle = circular(y);
    return {e * angle.c, e * angle.s};
  }
  ORK_INLINE Planes<f32x4> eval(const Planes<f32x4>& z, u32x4& rare) {
    using namespace trig;
    rare |= (0x42AEAC4F - as<u32x4>(ork::abs(z.re))) | (0x47AFFFFF - as<u32x4>(ork::abs(z.im)));
    const Widened x = widen(z.re), y = widen(z.im);
    const Planes<f64x2> low = half(x.low, y.low), high = half(x.high, y.high);
    return {narrow(low.re, high.re), narrow(low.im, high.im)};
  }
};

}  // namespace ork
