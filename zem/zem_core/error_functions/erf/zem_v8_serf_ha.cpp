// Erf, single, HA: in double, the series of P to e^3, g e, g^2. Coefficients: of the series.
#include "error_functions/erf/erf_s.hpp"

namespace ork {
namespace {

struct ErfHalf {
  static f64x2 value(f64x2 x) {
    const ErfReduced r = erf_reduce(x);
    const f64x2 p = r.e * horner(r.e, -1.0, ratio<2, 3>, -ratio<1, 3>) +
                    r.g * ((-ratio<1, 3> + r.e * 0.5) + r.g * 0.1);
    return erf_value(x, r, p);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sErf_V8HAynn(int n, const float* a, float* r) {
  ork::chunk<ork::ErfWidened<ork::ErfHalf>>(n, {{a}, {r}});
}
