// Asinh, double, LA: ln(1 + u), u = a + a^2/(1 + sqrt(1 + a^2)), a = |x|; the sign of x.
// Fast range: |x| < 2^500; beyond it ln 2|x|. Bound: 2.5 ulp.
#include "areas/log1p_la.hpp"

namespace ork {
namespace {

struct AsinhLa : Core<double> {
  static constexpr char name[] = "vdAsinh";
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    const f64x2 a = abs(x), square = a * a;
    rare |= 0x5F2FFFFF - as<u32x4>(a);
    const f64x2 u = a + square / (1.0 + sqrt(1.0 + square));
    return or_bits(log1p_la(u), as<u64x2>(x) & sign_f64x2);
  }
  static int special(const double* x, double* r) {
    const double a = __builtin_fabs(*x);
    *r = a <= __DBL_MAX__ ? __builtin_copysign(ln_twice(a), *x) : *x + *x;
    return 0;
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dAsinh_W7LAynn(int n, const double* a, double* r) {
  ork::block<ork::AsinhLa>(n, {{a}, {r}});
}
