#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"
#include "trig/pi_kernel.hpp"
#include "trig/scalar.hpp"

namespace ork::trig {

// Sine and cosine, double, EP: each modulo pi, the bits of the two single functions. Fast range
// |x| < 2^23. Bound 2^-26.
struct SinCosEpD : Core<double, 1, 2> {
  static constexpr char name[] = "vdSinCos";
  ORK_INLINE f64x2 eval(f64x2 x, f64x2& cosine, u32x4& rare) {
    rare |= at_least<cosine_limit>(abs(x));
    cosine = odd_sine<PiEpD>(reduce_cosine<PiEpD>(x));
    return odd_sine<PiEpD>(reduce_sine<PiEpD>(x));
  }
  static int special(const double* x, double* r, double* r2) { return scalar_sincos(x, r, r2); }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_dSinCos_V8EPnnn(int n, const double* a, double* r, double* r2) {
  ork::chunk<ork::trig::SinCosEpD>(n, {{a}, {r, r2}});
}
