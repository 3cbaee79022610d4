// CdfNorm, single, EP: P to 2^-18 of the result. Coefficients: of the series.
#include "error_functions/cdfnorm/cdfnorm_s.hpp"

namespace ork {
namespace {

struct Series {
  static f64x2 p(const CdfNormReduced& r) {
    return r.e * horner(r.e, -ratio<1, 2>, ratio<1, 6>, -ratio<1, 24>) - r.g * (ratio<1, 6>);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sCdfNorm_W7EPnnn(int n, const float* a, float* r) {
  ork::block<ork::CdfNormS<ork::Series>>(n, {{a}, {r}});
}
