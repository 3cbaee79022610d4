#include "frame/of_parts.hpp"
#include "roots/hypot_d_ha.hpp"

namespace ork {
namespace {

// The root of the sum of squares, each rounded once. Fast: both parts below 2^511, one of
// them above 2^-485, so that no square counts that is below the normal range. special: as at HA.
// Bound 1.5 ulp.
struct AbsLaZ : Core<double, 2> {
  ORK_INLINE f64x2 eval(f64x2 x, f64x2 y, u32x4& rare) {
    const u32x4 ax = as<u32x4>(abs(x)), ay = as<u32x4>(abs(y));
    rare |= (0x5FE00000 - ax) | (0x5FE00000 - ay) | ((ax - 0x21A00000) & (ay - 0x21A00000));
    return sqrt(x * x + y * y);
  }
  static int special(const double* x, const double* y, double* r) {
    const X87Guard<x87_extended> x87;
    return HypotHaD::special(x, y, r);
  }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_zAbs_V8LAynn(int n, const double* a, double* r) {
  ork::block<ork::OfParts<ork::AbsLaZ>>(n, {{ork::pairs(a)}, {r}});
}
