// Erfc, double, LA (EP, too): low parts of -x^2, of T and of the last addition in g; T_hi g_hi
// exact. g of degree 12 is 0.7 ulp off at 20. Bound: 2.5 ulp.
#include "base/pair.hpp"
#include "error_functions/erfc/erfc.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][16] = {
#include "error_functions/erfc/rows_d_la.inc"
};

struct FormulaLa {
  ORK_INLINE f64x2 value(f64x2 x, u64x2 kept) {
    const f64x2 ax = abs(x), x_hi = upper_half(ax);
    const double *p0, *p1;
    const f64x2 t = and_bits(erfc_row<27, 16>(table, ax, p0, p1), kept);
    const ErfcExp e(x_hi, (ax - x_hi) * (ax + x_hi), kept);
    const f64x2 p = e.r * horner(e.r, 1.0, 0.5, 0.16666666666666666, 0.041666666666666664,
                                 0.0083333333333333332);
    f64x2 c0, c1;
    gather_pairs(p0, p1, c0, c1);
    const auto [g, lost] = exact_sum(c0, t * (c1 + t * row_polynomial<12>(p0 + 2, p1 + 2, t)));
    const f64x2 g_hi = upper_half(g), g_lo = (g - g_hi) + lost;
    const f64x2 tail = e.t * g_lo + (e.t_low * g + ((e.t + e.t_low) * g) * p);
    const f64x2 v = ((e.t * g_hi + tail) * e.scale) * 4.3790577010150533e-47;
    return erfc_base(x, 2.0) + xor_bits(v, sign_of(x));
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dErfc_W7LAynn(int n, const double* a, double* r) {
  ork::block<ork::ErfcD<ork::FormulaLa>>(n, {{a}, {r}});
}
