// Erf, double, LA: the series of P to e^5, g e^3, g^2 e, g^3. Coefficients: rule.
#include "erf/erf.hpp"

namespace ork {
namespace {

struct ErfLaD : ErfCore<double> {
  static constexpr char name[] = "vdErf";
  static f64x2 eval(f64x2 x, u32x4&) {
    const ErfReduced r = erf_reduce(x);
    const f64x2 p = r.e * horner(r.e, -1.0, 2.0 / 3, -1.0 / 3, 2.0 / 15, -2.0 / 45) +
                    r.g * (horner(r.e, -1.0 / 3, 0.5, -0.4, 2.0 / 9) +
                           r.g * ((0.1 - r.e * (1.0 / 6)) - r.g * (1.0 / 42)));
    return erf_value(x, r, p);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dErf_V8LAynn(int n, const double* a, double* r) {
  ork::chunk<ork::ErfLaD>(n, {{a}, {r}});
}
