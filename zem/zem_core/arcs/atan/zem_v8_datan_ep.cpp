// Atan, double, EP: t P(t^2) with t = x for |x| <= 1; beyond it t = -1/|x| and pi/2 is added.
// No lane is rare: an infinity gives t = -0, a NaN flows through. Bound: 2^-26.
#include "arcs/atan_d.hpp"
#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"

namespace ork {
namespace {

struct AtanEp : Core<double> {
  static constexpr char name[] = "vdAtan";
  ORK_INLINE f64x2 eval(f64x2 x, u32x4&) {
    const f64x2 a = abs(x);
    const u64x2 large = as<u64x2>((f64x2)_mm_cmplt_pd(splat(1.0), a));
    const f64x2 t = select(large, splat(-1.0), a) / select(large, a, splat(1.0));
    return or_bits(and_bits(splat(pi_half), large) + atan_ep(t), as<u64x2>(x) & sign_f64x2);
  }
  static int special(const double*, double*) { return 0; }
};

}  // namespace
}  // namespace ork

ORK_EXPORT void ork_zem_kernel_dAtan_V8EPnnn(int n, const double* a, double* r) {
  ork::chunk<ork::AtanEp>(n, {{a}, {r}});
}
