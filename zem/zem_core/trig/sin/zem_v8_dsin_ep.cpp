#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"
#include "trig/pi_kernel.hpp"
#include "trig/scalar.hpp"

namespace ork::trig {

// Sine, double, EP: modulo pi, see pi_kernel.hpp. Fast range |x| < 2^24. Bound 2^-26.
struct SinEpD : Core<double> {
  static constexpr char name[] = "vdSin";
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    rare |= reaches<Sine::limit>(abs(x));
    return odd_sine<PiEpD>(reduce<Sine, PiEpD>(x));
  }
  static int special(const double* x, double* r) { return scalar<_dSin>(x, r); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_dSin_V8EPnnn(int n, const double* a, double* r) {
  ork::chunk<ork::trig::SinEpD>(n, {{a}, {r}});
}
