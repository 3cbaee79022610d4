// CdfNorm, double, HA: E and D in two parts, D_hi d_hi exact, both sums compensated. A denormal
// result is rounded once: in its sum with 2^-894, whose last place is 2^-1074 scaled.
#include "base/pair.hpp"
#include "error_functions/cdfnorm/cdfnorm.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][4] = {
#include "error_functions/cdfnorm/rows_d_ha.inc"
};

struct CdfNormHaD : CdfNormD {
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    test(x, rare);
    const CdfNormReduced r = cdfnorm_reduce<128>(x, 38.4921875, scale);
    const f64x2 p = cdfnorm_long(r);
    f64x2 e, d, e_low, d_low;
    gather_pairs(table[r.row0], table[r.row1], e, d);
    gather_pairs(table[r.row0] + 2, table[r.row1] + 2, e_low, d_low);
    const f64x2 d_hi = upper_half(r.d), q_hi = d * d_hi;
    const f64x2 q_lo = d * (r.d - d_hi) + d_low * r.d;
    const f64x2 s = e - q_hi;
    const f64x2 s_low = ((e - s) - q_hi) + (e_low - (q_lo + (q_hi + q_lo) * p));
    // From here on Phi(-y) is below 2^-1022.
    const f64x2 grid = and_bits(splat(0x1p-894), (u64x2)(abs(x) >= 37.519379347144504));
    const f64x2 b = cdfnorm_offset(x, scale) + grid;
    const auto [sum, lost] = exact_sum(b, s);
    return ((sum + (lost + s_low)) - grid) * cdfnorm_factor(x, scale);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dCdfNorm_V8HAynn(int n, const double* a, double* r) {
  ork::chunk<ork::CdfNormHaD>(n, {{a}, {r}});
}
