// CdfNorm, single, HA: P to 2^-31 of the result. Coefficients: rule.
#include "cdfnorm/cdfnorm_s.hpp"

namespace ork {
namespace {

struct Series {
  static f64x2 p(const CdfNormReduced& r) {
    return r.e * horner(r.e, -1.0 / 2, 1.0 / 6, -1.0 / 24, 1.0 / 120, -1.0 / 720, 1.0 / 5040) +
           r.g * horner(r.e, -1.0 / 6, 1.0 / 8, -1.0 / 20, 1.0 / 72);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sCdfNorm_T7HAynn(int n, const float* a, float* r) {
  ork::block<ork::CdfNormS<ork::Series>>(n, {{a}, {r}});
}
