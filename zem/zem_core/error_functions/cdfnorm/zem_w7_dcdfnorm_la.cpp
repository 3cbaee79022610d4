// CdfNorm, double, LA: steps of 1/128.
#include "error_functions/cdfnorm/cdfnorm.hpp"

namespace ork {
namespace {

alignas(16) constexpr double table[][2] = {
#include "error_functions/cdfnorm/rows_d_la.inc"
};

struct CdfNormLaD : CdfNormD {
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    test(x, rare);
    const CdfNormReduced r = cdfnorm_reduce<128>(x, 38.4921875, scale);
    return cdfnorm_value(table, x, r, cdfnorm_long(r), scale);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dCdfNorm_W7LAynn(int n, const double* a, double* r) {
  ork::block<ork::CdfNormLaD>(n, {{a}, {r}});
}
