#include "complex/cexp/cexp.hpp"

namespace ork {
namespace {

// Exp z, HA: both factors as sums of two doubles, see exp_d.hpp and table_kernel.hpp, their product
// rounded once and scaled. Fast range: |x| < 708.39, |y| < 90112. Bound: 0.55 ulp a part, 0.75 for
// denormal parts.
struct ExpHaZ : ComplexExp<double> {
  static constexpr char name[] = "vzExp";
  static constexpr int vectors = 1;

  ORK_INLINE Planes<f64x2> eval(const Planes<f64x2>& z, u32x4& rare) {
    using namespace trig;
    f64x2 t, hi;
    const f64x2 p = ExpHa::reduce(z.re, t), lo = ExpHa::parts(t, p, hi);
    const Factor e(exact_sum(hi, lo));
    const u32x4 bias = {1023u << 6, 0, 1023u << 6, 0};
    const u64x2 k = as<u64x2>(as<u32x4>(t) + bias) << 46;
    const f64x2 scale = as<f64x2>(k & splat_u64(0x7FF0000000000000));
    rare |= 0x4086232A - as<u32x4>(ork::abs(z.re));

    const f64x2 ay = ork::abs(z.im);
    rare |= reaches<limit_90112>(ay);
    const Reduced y = reduce_pi64(ay);
    const Polynomials q = taylor(y.z);
    const Pair<f64x2> s = table_sine(gather(rows_pi64, y.rows), y.z, y.low, q.s, q.c);
    const Pair<f64x2> c =
        table_sine(gather(rows_pi64 + quarter_turn, y.rows), y.z, y.low, q.s, q.c);
    const f64x2 re = e * Factor(exact_sum(c.high, c.low)),
                im = e * Factor(exact_sum(s.high, s.low));
    return {re * scale, flip(im * scale, sign_of(z.im))};
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_zExp_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::ExpHaZ>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
