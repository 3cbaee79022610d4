// CdfNorm, double, EP: steps of 1/64. P is frozen, degree 7 in e and g times degree 3: relative
// error of the result 2^-31.4, in the far tail.
#include "error_functions/cdfnorm/cdfnorm.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][2] = {
#include "error_functions/cdfnorm/rows_d_ep.inc"
};

struct CdfNormEpD : CdfNormD {
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    test(x, rare);
    const CdfNormReduced r = cdfnorm_reduce<64>(x, 38.5, scale);
    const f64x2 p =
        r.e * horner(r.e, -0.49999999999533284, 0.166666668468198, -0.041666667310122252,
                     0.0083332538617517729, -0.0013888741291414501, 0.00019928882331276897,
                     -2.4914234950031343e-05) +
        r.g * horner(r.e, -0.16665437033398192, 0.12499139258046472, -0.050541907071994921,
                     0.014031116148495016);
    return cdfnorm_value(table, x, r, p, scale);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dCdfNorm_V8EPnnn(int n, const double* a, double* r) {
  ork::chunk<ork::CdfNormEpD>(n, {{a}, {r}});
}
