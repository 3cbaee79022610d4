// Erf, double, EP: P of second order in e, first in g.
#include "error_functions/erf/erf.hpp"

namespace ork {
namespace {

struct ErfEpD : ErfCore<double> {
  static constexpr char name[] = "vdErf";
  ORK_INLINE f64x2 eval(f64x2 x, u32x4&) {
    const ErfReduced r = erf_reduce(x);
    return erf_value(x, r, erf_short(r));
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dErf_V8EPnnn(int n, const double* a, double* r) {
  ork::chunk<ork::ErfEpD>(n, {{a}, {r}});
}
