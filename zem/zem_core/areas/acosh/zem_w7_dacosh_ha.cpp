// Acosh, double, HA: ln(x + sqrt((x - 1)(x + 1))) on the x87 unit in two passes; the factors
// are exact, x^2 - 1 would not be. Fast range: 1.0004887580871582 <= x < 2^1020; below it
// sqrt(2 t) (1 + c1 t + ...), t = x - 1; above it ln x + ln 2. Bound: 0.60 ulp.
#include "areas/two_pass.hpp"

namespace ork {
namespace {

struct AcoshHa : TwoPassCore {
  static constexpr char name[] = "vdAcosh";
  static constexpr uint64_t least = __builtin_bit_cast(uint64_t, 1.0004887580871582);
  static bool is_fast(uint64_t image) { return image - least < 0x7FB0000000000000 - least; }
  static long double first(long double x) { return x + __builtin_sqrtl((x - 1.0L) * (x + 1.0L)); }
  static double last(long double ln_y) { return (double)ln_y; }

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
    if (image < least) {
      constexpr double c[] = {
#include "areas/acosh/near_one_d.inc"
      };
      const long double t = (long double)*x - 1.0L;
      const long double p = t * (-0.083333333332859 + t * (c[0] + t * (c[1] + t * c[2]))),
                        root = __builtin_sqrtl(2.0L * t);
      *r = (double)(root + root * p);
      return 0;
    }
    const Extended y = {*x * 0x1p-200L};
    *r = (double)(ln_extended(y) + 201 * 0.693147180559945309417232L);
    return 0;
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dAcosh_W7HAynn(int n, const double* a, double* r) {
  ork::two_pass<ork::AcoshHa>(n, a, r);
}
