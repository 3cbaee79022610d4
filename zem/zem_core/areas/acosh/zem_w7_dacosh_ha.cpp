// Acosh, double, HA: ln(x + sqrt(x^2 - 1)) in two words, or on the x87 unit where these leave the
// rounding open, about one element of 200, and from 2^500 on (from 2^1020 ln x + ln 2). There
// the root is that of (x - 1)(x + 1), whose factors are exact: x^2 - 1 would not be.
// Below 1.0004887580871582 sqrt(2 t) (1 + c1 t + ...), t = x - 1. Bound: 0.60 ulp.
#include "areas/ln_pair.hpp"

namespace ork {
namespace {

struct AcoshHa : Core<double> {
  static constexpr char name[] = "vdAcosh";
  static constexpr int vectors = 1;  // a block with an open lane is done again
  static constexpr unsigned x87 = x87_extended;
  static constexpr uint64_t least = __builtin_bit_cast(uint64_t, 1.0004887580871582);
  // The fast range by high words: from the one above that of `least` to below 2^500.
  static constexpr uint32_t first = (least >> 32) + 1, limit = 0x5F300000;

  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    rare |= (as<u32x4>(x) - first) | (limit - 1 - as<u32x4>(x));
    // A rare lane must neither overflow nor divide by zero.
    const f64x2 a =
        _mm_max_pd(_mm_min_pd(x, splat(0x1p500)), as<f64x2>(splat_u64((uint64_t)first << 32)));
    // y = a + sqrt(a^2 - 1) solves y (2 a - y) = 1: one step of Newton's. The factor is exact.
    const f64x2 root = sqrt(a * a - 1.0);
    const Upper y(a + root), w((a + a) - y.whole);
    const Pair<f64x2> ln_y = ln_pair(y, lack_of_product(y, w) * (-0.5 / root));
    // In extended y is off by 3.5 * 2^-64, y c by 2^-64, the logarithm's sums by 3.4 * 2^-64 of it.
    return settled(ln_y, 0x1.28p-62 + ln_y.high * 0x1.b4p-63, rare);
  }

  static int special(const double* x, double* r) {
    constexpr uint64_t infinity = 0x7FF0000000000000;
    const uint64_t image = as<uint64_t>(*x);
    if ((image & ~0ull >> 1) > infinity || image == infinity) {
      *r = *x + *x;
      return 0;
    }
    if (*x < 1.0) {
      *r = as<double>(0xFFF8000000000000);
      return ZEM_STATUS_DOMAIN;
    }
    const long double a = *x;
    if (image < least) {
      constexpr double c[] = {
#include "areas/acosh/near_one_d.inc"
      };
      const long double t = a - 1.0L;
      const long double p = t * (-0.083333333332859 + t * (c[0] + t * (c[1] + t * c[2]))),
                        root = __builtin_sqrtl(2.0L * t);
      *r = (double)(root + root * p);
      return 0;
    }
    *r = (double)(image < 0x7FB0000000000000
                      ? ln_extended(a + __builtin_sqrtl((a - 1.0L) * (a + 1.0L)))
                      : ln_twice_extended(a));
    return 0;
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dAcosh_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::AcoshHa>(n, {{a}, {r}});
}
