#include "complex/cexp/cexp.hpp"
#include "frame/chunk.hpp"

namespace ork {
namespace {

// Exp z, LA: the factors of HA (exp_d.hpp) and of SinCos LA (table_kernel.hpp), each rounded to a
// double. Fast range: |x| < 708.39, |y| < 90112. Bound: 3 ulp a part.
struct ExpLaZ : ComplexExp<double> {
  static constexpr char name[] = "vzExp";
  static constexpr int vectors = 1;

  ORK_INLINE Planes<f64x2> eval(const Planes<f64x2>& z, u32x4& rare) {
    using namespace trig;
    const f64x2 e = ExpD<ExpHa>::eval(z.re, rare), ay = ork::abs(z.im);
    rare |= reaches<limit_90112>(ay);
    const Reduced reduced = reduce_pi64(ay);
    const Polynomials p = taylor(reduced.z);
    const f64x2 y = reduced.z + reduced.low;
    const f64x2 c = table_sine_la(gather(rows_pi64 + quarter_turn, reduced.rows), y, p);
    const f64x2 s = table_sine_la(gather(rows_pi64, reduced.rows), y, p);
    return {e * c, e * flip(s, sign_of(z.im))};
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_zExp_V8LAynn(int n, const double* a, double* r) {
  ork::chunk<ork::ExpLaZ>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
