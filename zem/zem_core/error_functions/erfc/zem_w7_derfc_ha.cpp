// Erfc, double, HA: g of degree 13 (12 is 0.7 ulp off at 20); c0, c1, T and g in two parts, T_hi
// g_hi exact, 2 - v compensated. All is scaled by 2^154 up to the last product; a denormal result
// is rounded in its sum with 2^-868, whose last place is 2^-1074 scaled.
#include "base/pair.hpp"
#include "error_functions/erfc/erfc.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][16] = {
#include "error_functions/erfc/rows_d_ha.inc"
};

struct FormulaHa {
  ORK_INLINE f64x2 value(f64x2 x, u64x2 kept) {
    const f64x2 ax = abs(x), x_hi = upper_half(ax);
    const double *p0, *p1;
    const f64x2 t = and_bits(erfc_row<27, 16>(table, ax, p0, p1), kept), t2 = t * t;
    f64x2 c, d, c0, c1, low0, low1;
    gather_pairs(p0 + 12, p1 + 12, c, d);
    f64x2 q = c + t * d;
#pragma GCC unroll 8
    for (int i = 10; i >= 2; i -= 2) {
      gather_pairs(p0 + i, p1 + i, c, d);
      q = (c + t * d) + t2 * q;
    }
    gather_pairs(p0, p1, c0, c1);
    gather_pairs(p0 + 14, p1 + 14, low0, low1);
    const f64x2 t_hi = upper_half(t);
    const auto [sum, lost] = exact_sum(c0, c1 * t_hi);
    const f64x2 g_rest = lost + ((c1 * (t - t_hi) + (low1 * t + low0)) + t2 * q);
    const f64x2 g = sum + g_rest, g_hi = upper_half(g), g_lo = (sum - g_hi) + g_rest;

    const ErfcExp e(x_hi, (ax - x_hi) * (ax + x_hi), kept);
    const f64x2 p = e.r * horner(e.r, 1.0, 0.5, 0.16666666666666666, 0.041666666666666664,
                                 0.0083333333333333332);
    const u64x2 sign = sign_of(x);
    const f64x2 scale = xor_bits(e.scale, sign);
    const f64x2 v = (e.t * g_hi) * scale;
    const f64x2 v_low = (e.t * g_lo + (e.t_low * g + ((e.t + e.t_low) * g) * p)) * scale;
    const f64x2 grid = and_bits(splat(0x1p-868), (u64x2)(x > 26.543258454250978));
    const f64x2 base = erfc_base(x, 0x1p155) + grid;
    const auto [y, y_lost] = exact_sum(base, v);
    return ((y + (y_lost + v_low)) - grid) * 4.3790577010150533e-47;
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dErfc_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::ErfcD<ork::FormulaHa>>(n, {{a}, {r}});
}
