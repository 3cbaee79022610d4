// Expm1, double, HA: p of degree 5, |r| <= ln 2/256, and a compensated sum.
// r = u_hi + u_lo - v0, u_hi of 26 bits, so that S_hi u_hi is exact; n = 0 keeps u_hi = x.
// Fast range: |x| <= 707.703. p is frozen: off by at most 2^-64.7.
#include "exponentials/expm1/expm1.hpp"

namespace ork {
namespace {

struct Expm1HaD : Expm1D {
  static f64x2 eval(f64x2 x, u32x4& rare) {
    const f64x2 n = round(x * 184.66496523378731);
    const f64x2 u = x - n * 0x1.62e42fef8p-8, v0 = n * 1.2655086083325438e-13;
    const u64x2 whole = (u64x2)(u == x);
    const f64x2 u_hi = and_bits(u, whole | splat_u64(0xFFFFFFFFF8000000)), u_lo = u - u_hi;
    const f64x2 r = u - v0, r2 = r * r;
    const f64x2 p = r2 * ((0.4999999999999767 + 0.166666666666658 * r) +
                          r2 * (0.04166667939432669 + 0.008333335878830547 * r));
    f64x2 s_lo;
    const f64x2 s_hi = expm1_scale(n, test(x, rare), s_lo);
    return with_sign_of(x, expm1_sum(s_hi, s_lo, u_hi, (u_lo - v0) + p));
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dExpm1_V8HAynn(int n, const double* a, double* r) {
  ork::chunk<ork::Expm1HaD>(n, {{a}, {r}});
}
