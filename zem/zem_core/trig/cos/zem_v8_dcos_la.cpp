#include "frame/chunk.hpp"
#include "ork/zem_kernels.h"
#include "trig/large.hpp"
#include "trig/scalar.hpp"

namespace ork::trig {

// Cosine, double, LA: modulo pi, see pi_kernel.hpp, below 2^23; from there on by the digits of
// 1/(2 pi), see large.hpp. Bound 3.1 ulp.
struct CosLaD : Core<double> {
  static constexpr char name[] = "vdCos";
  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    rare |= reaches<Cosine::limit>(abs(x));
    // At 0 the polynomial gives 1 - 2^-53.
    const f64x2 lift = and_bits(splat(0x1p-53), as<u64x2>(x == splat(0.0)));
    return odd_sine<PiLaD>(reduce<Cosine, PiLaD>(x)) + lift;
  }
  static __attribute__((noinline)) f64x2 eval_rest(f64x2 x, f64x2 fast, u32x4& rare) {
    return replace_large<Cosine::limit>(abs(x), fast, large_sine(abs(x), 1), rare);
  }
  // What is finite has its result.
  static int special(const double* x, double* r) {
    *r = __builtin_isinf(*x) ? *x * 0.0 : *x * *x;
    return status_of(*x);
  }
};

}  // namespace ork::trig

ORK_EXPORT void ork_zem_kernel_dCos_V8LAynn(int n, const double* a, double* r) {
  ork::chunk<ork::trig::CosLaD>(n, {{a}, {r}});
}
