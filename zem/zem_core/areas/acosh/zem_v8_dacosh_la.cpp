// Acosh, double, LA: ln(1 + u), u = t + sqrt(2 t + t^2), t = x - 1.
// Fast range: 1 <= x < 2^500; beyond it ln 2x. Bound: 2.5 ulp.
#include "areas/log1p_la.hpp"

namespace ork {
namespace {

struct AcoshLa : Core<double> {
  static constexpr char name[] = "vdAcosh";
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    rare |= (0x5F2FFFFF - as<u32x4>(x)) | (as<u32x4>(x) - 0x3FF00000);
    const f64x2 t = x - 1.0;
    return log1p_la(t + sqrt((t + t) + t * t));
  }
  static int special(const double* x, double* r) {
    if (*x < 1.0) {
      *r = as<double>(0xFFF8000000000000);
      return ZEM_STATUS_DOMAIN;
    }
    *r = *x <= __DBL_MAX__ ? ln_twice(*x) : *x + *x;
    return 0;
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dAcosh_V8LAynn(int n, const double* a, double* r) {
  ork::chunk<ork::AcoshLa>(n, {{a}, {r}});
}
