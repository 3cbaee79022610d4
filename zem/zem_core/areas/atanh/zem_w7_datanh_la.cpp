// Atanh, double, LA: ln(1 + 2 a/(1 - a))/2, a = |x|; the sign of x.
// Rare: |x| >= 1, NaN. Bound: 2.5 ulp.
#include "areas/atanh/atanh_rare.hpp"
#include "areas/log1p_la.hpp"

namespace ork {
namespace {

struct AtanhLa : Core<double> {
  static constexpr char name[] = "vdAtanh";
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    const f64x2 a = abs(x);
    rare |= 0x3FEFFFFF - as<u32x4>(a);
    return or_bits(0.5 * log1p_la((a + a) / (1.0 - a)), as<u64x2>(x) & sign_f64x2);
  }
  static int special(const double* x, double* r) { return atanh_rare(x, r); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dAtanh_W7LAynn(int n, const double* a, double* r) {
  ork::block<ork::AtanhLa>(n, {{a}, {r}});
}
