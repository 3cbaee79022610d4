// Erf, double, HA: E and D in two parts, D_hi d_hi exact, its sum with E compensated. Below
// 7/256 the odd series at 0 serves: row 0 with d = y, where P is a series in g alone.
// E and d are scaled by 2^128, where no part or product is denormal. A denormal result is rounded
// once: in its sum with 2^-894, whose last place is 2^-1074 scaled.
#include "error_functions/erf/erf.hpp"

namespace ork {
namespace {

struct ErfRowHa {
  double e, d, e_low, d_low;
};
alignas(16) constexpr ErfRowHa table[] = {
#include "error_functions/erf/rows_d_ha.inc"
};

struct ErfHaD : ErfCore<double> {
  static constexpr char name[] = "vdErf";
  ORK_INLINE f64x2 eval(f64x2 x, u32x4&) {
    const ErfReduced r = erf_reduce(x, [](f64x2 y) { return (u64x2)(y >= 0.02734375); });
    const f64x2 p =
        r.e * horner(r.e, -1.0, ratio<2, 3>, -ratio<1, 3>, ratio<2, 15>, -ratio<2, 45>) +
        r.g * (horner(r.e, -ratio<1, 3>, 0.5, -0.4, ratio<2, 9>) +
               r.g * ((0.1 - r.e * (ratio<1, 6>)) + r.g * (-ratio<1, 42> + r.g * (ratio<1, 216>))));
    const char* const rows = (const char*)table;
    const double *p0 = (const double*)(rows + 2 * r.row0), *p1 = (const double*)(rows + 2 * r.row1);
    f64x2 e, d, e_low, d_low;
    gather_pairs(p0, p1, e, d);
    gather_pairs(p0 + 2, p1 + 2, e_low, d_low);
    const f64x2 dx = r.d * 0x1p128;
    const f64x2 d_hi = and_bits(dx, splat_u64(0xFFFFFFFFF8000000)), q_hi = d * d_hi;
    const f64x2 q_lo = d * (dx - d_hi) + d_low * dx;
    // sqrt(pi)/2 * 2^-1022, scaled: from there on the result is normal. In rows above the first the
    // sum is none the wiser.
    const f64x2 grid = and_bits(splat(0x1p-894), (u64x2)(dx < 0x0.e2dfc48da77b6p-894));
    e += grid;
    const f64x2 sum = e + q_hi, lost = (e - sum) + q_hi;
    const f64x2 y = sum + (lost + ((q_lo + e_low) + (q_hi + q_lo) * p));
    return or_bits((y - grid) * 0x1p-128, as<u64x2>(x) & sign_f64x2);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dErf_V8HAynn(int n, const double* a, double* r) {
  ork::chunk<ork::ErfHaD>(n, {{a}, {r}});
}
