// Atan, double, HA: atan b + (t + (low + t z Q)), with the sign of x; see atan_d.hpp. t is at
// most 1/32 of the result or exact, so its rounding errors count for little.
// Fast range: |x| < 2^54; beyond it atan_rare. Bound: 0.60 ulp.
#include "arcs/atan_d.hpp"
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

int atan_rare(const double* x, double* r) {
  const uint64_t magnitude = as<uint64_t>(*x) & ~0ull >> 1;
  if (magnitude > 0x7FF0000000000000)
    *r = *x + *x;
  else if (magnitude == 0x7FF0000000000000)
    *r = __builtin_copysign(pi_half + pi_half_low, *x);
  else
    *r = __builtin_copysign(pi_half, *x) - 1.0 / *x;
  return 0;
}

struct AtanHa : Core<double> {
  static constexpr char name[] = "vdAtan";
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    const f64x2 a = abs(x);
    rare |= splat_u32(0x434FFFFF) - as<u32x4>(a);
    f64x2 high, low;
    const f64x2 b = atan_break(a, high, low);
    const f64x2 t = (a - b) / (1.0 + a * b);
    return or_bits(high + (t + (low + atan_tail(t))), as<u64x2>(x) & sign_f64x2);
  }
  static int special(const double* x, double* r) { return atan_rare(x, r); }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dAtan_W7HAynn(int n, const double* a, double* r) {
  ork::block<ork::AtanHa>(n, {{a}, {r}});
}
