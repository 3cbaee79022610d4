// Atanh, double, HA: ln((1 + |x|)/(1 - |x|))/2 on the x87 unit in two passes, the sign of x.
// Fast range: 2^-8 <= |x| < 1; below it the odd series in extended precision.
// Bound: 0.60 ulp.
#include "areas/atanh/atanh_rare.hpp"
#include "areas/two_pass.hpp"

namespace ork {
namespace {

struct AtanhHa : TwoPassCore {
  static constexpr char name[] = "vdAtanh";
  static bool is_fast(uint64_t image) {
    return (uint32_t)(image >> 32 & 0x7FFFFFFF) - 0x3F700000 < 0x3FF00000 - 0x3F700000;
  }
  static long double first(long double a) { return (1.0L + a) / (1.0L - a); }
  static double last(long double ln_y) { return (double)(0.5L * ln_y); }

  static int special(const double* x, double* r) {
    const uint64_t magnitude = as<uint64_t>(*x) & ~0ull >> 1;
    if (magnitude >= 0x3F70000000000000) return atanh_rare(x, r);
    const long double a = *x, z = a * a;  // the next term is below z^4/9 = 2^-67
    *r = (double)(a + a * (z * (1.0L / 3 + z * (0.2L + z * (1.0L / 7)))));
    return 0;
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dAtanh_W7HAynn(int n, const double* a, double* r) {
  ork::two_pass<ork::AtanhHa>(n, a, r);
}
