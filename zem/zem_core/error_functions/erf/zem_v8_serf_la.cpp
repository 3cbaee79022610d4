// Erf, single, LA: in double with the P of double EP.
#include "error_functions/erf/erf_s.hpp"

namespace ork {
namespace {

struct ErfHalf {
  static f64x2 value(f64x2 x) {
    const ErfReduced r = erf_reduce(x);
    return erf_value(x, r, erf_short(r));
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_sErf_V8LAynn(int n, const float* a, float* r) {
  ork::chunk<ork::ErfWidened<ork::ErfHalf>>(n, {{a}, {r}});
}
