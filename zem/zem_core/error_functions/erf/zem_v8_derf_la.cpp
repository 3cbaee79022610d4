// Erf, double, LA: the series of P to e^5, g e^3, g^2 e, g^3. Coefficients: of the series.
#include "error_functions/erf/erf.hpp"

namespace ork {
namespace {

struct ErfLaD : ErfCore<double> {
  static constexpr char name[] = "vdErf";
  ORK_INLINE f64x2 eval(f64x2 x, u32x4&) {
    const ErfReduced r = erf_reduce(x);
    const f64x2 p =
        r.e * horner(r.e, -1.0, ratio<2, 3>, -ratio<1, 3>, ratio<2, 15>, -ratio<2, 45>) +
        r.g * (horner(r.e, -ratio<1, 3>, 0.5, -0.4, ratio<2, 9>) +
               r.g * ((0.1 - r.e * (ratio<1, 6>)) - r.g * (ratio<1, 42>)));
    return erf_value(x, r, p);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dErf_V8LAynn(int n, const double* a, double* r) {
  ork::chunk<ork::ErfLaD>(n, {{a}, {r}});
}
