// Asinh, double, HA: ln(|x| + sqrt(x^2 + 1)) on the x87 unit in two passes, the sign of x.
// Fast range: 0.125 <= |x| < 2^1020; below it an odd series in extended precision, so that y's
// rounding does not count; above it ln x + ln 2. Bound: 0.52 ulp.
#include "areas/two_pass.hpp"

namespace ork {
namespace {

struct AsinhHa : TwoPassCore {
  static constexpr char name[] = "vdAsinh";
  static bool is_fast(uint64_t image) {
    return (uint32_t)(image >> 32 & 0x7FFFFFFF) - 0x3FC00000 < 0x7FB00000 - 0x3FC00000;
  }
  static long double first(long double a) { return a + __builtin_sqrtl(a * a + 1.0L); }
  static double last(long double ln_y) { return (double)ln_y; }

  static int special(const double* x, double* r) {
    const uint64_t magnitude = as<uint64_t>(*x) & ~0ull >> 1;
    if (magnitude >= 0x7FF0000000000000 || magnitude == 0) {
      *r = *x + *x;
      return 0;
    }
    const long double a = *x;
    if (magnitude < 0x3FC0000000000000) {
      constexpr double c[] = {
#include "areas/asinh/near_zero_d.inc"
      };
      const long double z = a * a;
      long double p = c[7];
      for (int i = 6; i >= 0; --i) p = c[i] + z * p;
      *r = (double)(a + a * (z * p));
      return 0;
    }
    const Extended y = {__builtin_fabsl(a) * 0x1p-200L};
    *r = __builtin_copysign((double)(ln_extended(y) + 201 * 0.693147180559945309417232L), *x);
    return 0;
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dAsinh_W7HAynn(int n, const double* a, double* r) {
  ork::two_pass<ork::AsinhHa>(n, a, r);
}
