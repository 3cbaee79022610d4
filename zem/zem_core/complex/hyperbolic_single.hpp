#pragma once
// Circular and hyperbolic functions of single-precision complex vectors, in double: sinh and cosh
// of one part from one exponential, sine and cosine of the other by table (table_kernel.hpp), each
// product rounded once to single. Rare lanes go to the scalars: parts that are zero, infinite or
// NaNs, a hyperbolic argument from 87.34 on, where results may overflow, an angle from 90112 on.
#include "exponentials/exp_d.hpp"
#include "frame/block.hpp"
#include "heap/complex/element.hpp"
#include "trig/single.hpp"
#include "trig/table_kernel.hpp"

namespace ork {

// Sine and cosine, or their hyperbolic counterparts: relative error below 2^-38.
struct Two {
  f64x2 s, c;
};
ORK_INLINE Two hyperbolic(f64x2 x) {
  u32x4 none{};
  // The bound, beyond all that is kept, spares rare lanes squares that overflow.
  const f64x2 a = _mm_min_pd(abs(x), splat(100.0)), e = 0.5 * ExpD<ExpLa>::eval(a, none),
              inverse = 0.25 / e;
  // Below 2^-8 the difference loses bits; x^5/120 is below 2^-38 of the result there.
  const f64x2 near = a + a * a * a * ratio<1, 6>;
  const f64x2 s = select((u64x2)(a < 0.00390625), near, e - inverse);
  return {or_bits(s, as<u64x2>(x) & sign_f64x2), e + inverse};
}
ORK_INLINE Two circular(f64x2 y) {
  using namespace trig;
  const Reduced reduced = reduce_pi64(abs(y));
  const Polynomials p = taylor(reduced.z);
  const f64x2 z = reduced.z + reduced.low;
  const f64x2 s = table_sine_la(gather(rows_pi64, reduced.rows), z, p);
  return {flip(s, sign_of(y)), table_sine_la(gather(rows_pi64 + quarter_turn, reduced.rows), z, p)};
}

// parts(hyperbolic, circular) gives both parts. turned: the angle is the real part, and the result
// is -i times that of iz, as `parts` has it.
template <auto parts, auto scalar, bool reports, bool turned>
struct HyperbolicS : OfScalar<float, scalar, reports> {
  static constexpr Csr csr = Csr::from_mode;
  static constexpr int vectors = 1;

  ORK_INLINE Planes<f32x4> eval(const Planes<f32x4>& z, u32x4& rare) {
    const f32x4 x = turned ? z.im : z.re, y = turned ? z.re : z.im;
    const u32x4 ax = as<u32x4>(ork::abs(x)), ay = as<u32x4>(ork::abs(y));
    rare |= (0x42AEAC4F - ax) | (0x47AFFFFF - ay) | (ax - splat_u32(1)) | (ay - splat_u32(1));
    const trig::Widened u = trig::widen(x), v = trig::widen(y);
    const Planes<f64x2> low = parts(hyperbolic(u.low), circular(v.low));
    const Planes<f64x2> high = parts(hyperbolic(u.high), circular(v.high));
    return {trig::narrow(low.re, high.re), trig::narrow(low.im, high.im)};
  }
};

// The denominator of tanh, sinh^2 x + cos^2 y, under both products.
ORK_INLINE Planes<f64x2> tanh_parts(Two h, Two c) {
  const f64x2 inverse = 1.0 / (h.s * h.s + c.c * c.c);
  return {h.s * h.c * inverse, c.s * c.c * inverse};
}

}  // namespace ork

// A function's kernel, with what HyperbolicS wants.
#define ORK_HYPERBOLIC(Name, parts, scalar, reports, turned)                          \
  namespace {                                                                         \
  struct Name##S : ork::HyperbolicS<parts, scalar, reports, turned> {                 \
    static constexpr char name[] = "vc" #Name;                                        \
  };                                                                                  \
  }                                                                                   \
  ORK_EXPORT void ork_zem_kernel_c##Name##_PXHAynn(int n, const float* a, float* r) { \
    ork::block<Name##S>(n, {{ork::pairs(a)}, {ork::pairs(r)}});                       \
  }
