// CdfNorm, single, LA: P to 2^-27 of the result. Coefficients: rule.
#include "cdfnorm/cdfnorm_s.hpp"

namespace ork {
namespace {

struct Series {
  static f64x2 p(const CdfNormReduced& r) {
    return r.e * horner(r.e, -1.0 / 2, 1.0 / 6, -1.0 / 24, 1.0 / 120) +
           r.g * horner(r.e, -1.0 / 6, 1.0 / 8);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sCdfNorm_T7LAynn(int n, const float* a, float* r) {
  ork::block<ork::CdfNormS<ork::Series>>(n, {{a}, {r}});
}
