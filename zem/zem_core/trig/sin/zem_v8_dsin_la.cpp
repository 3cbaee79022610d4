#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"
#include "trig/large.hpp"
#include "trig/scalar.hpp"

namespace ork::trig {

// Sine, double, LA: modulo pi, see pi_kernel.hpp, below 2^24; from there on by the digits of
// 1/(2 pi), see large.hpp. Bound 3.1 ulp.
struct SinLaD : Core<double> {
  static constexpr char name[] = "vdSin";
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    rare |= reaches<Sine::limit>(abs(x));
    return odd_sine<PiLaD>(reduce<Sine, PiLaD>(x));
  }
  static __attribute__((noinline)) f64x2 eval_rest(f64x2 x, f64x2 fast, u32x4& rare) {
    return replace_large<Sine::limit>(abs(x), fast, flip(large_sine(abs(x), 0), sign_of(x)), rare);
  }
  // What is finite has its result.
  static int special(const double* x, double* r) {
    *r = __builtin_isinf(*x) ? *x * 0.0 : *x * *x;
    return status_of(*x);
  }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_dSin_V8LAynn(int n, const double* a, double* r) {
  ork::chunk<ork::trig::SinLaD>(n, {{a}, {r}});
}
