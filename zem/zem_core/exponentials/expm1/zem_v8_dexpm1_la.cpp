// Expm1, double, LA: p of degree 5, |r| <= ln 2/256; A = (S_hi - 1) + S_lo, then A + (A + 1) p.
// Fast range: |x| <= 707.703. p is frozen: off by at most 2^-64.7.
#include "exponentials/expm1/expm1.hpp"

namespace ork {
namespace {

struct Expm1LaD : Expm1D {
  static f64x2 eval(f64x2 x, u32x4& rare) {
    const f64x2 n = round(x * 184.66496523378731);
    const f64x2 r = x - n * 0x1.62e42fef8p-8 - n * 1.2655086083325438e-13, r2 = r * r;
    const f64x2 p = r + r2 * ((0.4999999999999767 + 0.166666666666658 * r) +
                              r2 * (0.04166667939432669 + 0.008333335878830547 * r));
    f64x2 s_lo;
    const f64x2 s_hi = expm1_scale(n, test(x, rare), s_lo);
    const f64x2 a = (s_hi - 1.0) + s_lo;
    return with_sign_of(x, a + (a + 1.0) * p);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dExpm1_V8LAynn(int n, const double* a, double* r) {
  ork::chunk<ork::Expm1LaD>(n, {{a}, {r}});
}
