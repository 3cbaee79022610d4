#pragma once
#include "complex/cdiv/special.hpp"
#include "frame/block.hpp"
#include "frame/interleaved.hpp"
#include "ork/zem_kernels.h"

namespace ork {

// Single, HA: a times the conjugate of b over |b|^2, in double, where products are exact: each part
// 0.5 ulp and 2^-27, however much cancels. Rare: results that are not finite.
struct QuotientHaC : Core<Complex<float>, 2> {
  static constexpr char name[] = "vcDiv";
  ORK_INLINE f32x4 eval(const float* a, const float* b) {
    const Planes<f64x2> y = widened_pair(b), p = plain_product<true>(widened_pair(a), y);
    const f64x2 inverse = 1.0 / (y.re * y.re + y.im * y.im);
    return _mm_unpacklo_ps(_mm_cvtpd_ps(p.re * inverse), _mm_cvtpd_ps(p.im * inverse));
  }
  static int special(const Complex<float>* a, const Complex<float>* b, Complex<float>* r) {
    return div_rare(a, b, r);
  }
};

// Double, HA: numerators and |b|^2 as exact sums of exact products, then quotients with their
// remainders (quotient.hpp): a part within 0.5 ulp and 2^-24, however much cancels.
// Fast: all parts in [2^-400, 2^400), so that no piece of a product or remainder is below the
// normal range: numerators that cancel to the last bit are above 2^-907, quotients too.
struct QuotientHaZ : Core<Complex<double>, 2> {
  static constexpr char name[] = "vzDiv";
  using V = Planes<f64x2>;
  ORK_INLINE u32x4 out_of_range(const V& z) {
    return outside(sizes(z.re, z.im), 0x26F00000, 0x58EFFFFF);
  }
  ORK_INLINE V eval(const V& a, const V& b, u32x4& rare) {
    rare |= by_lane(out_of_range(a) | out_of_range(b));
    const Halves x = Halves::of(a.re), y = Halves::of(a.im), u = Halves::of(b.re),
                 v = Halves::of(b.im);
    const Divisor d(sum_of_squares(u, v));
    const Pair<f64x2> p = d.quotient(sum_of(exact_product(x, u), exact_product(y, v)));
    const Pair<f64x2> q = d.quotient(sum_of<true>(exact_product(y, u), exact_product(x, v)));
    return {p.high + p.low, q.high + q.low};
  }
  static int special(const Complex<double>* a, const Complex<double>* b, Complex<double>* r) {
    return div_rare(a, b, r);
  }
};

// EP: plain arithmetic; single with the 12-bit estimate of 1/|b|^2. No status.
template <class R>
struct QuotientEp : Core<Complex<R>, 2> {
  static constexpr char name[] = "";
  static constexpr bool total = true;
  using V = Planes<vec_of<R>>;
  ORK_INLINE f32x4 inverse(f32x4 x) { return rcp_est(x); }
  ORK_INLINE f64x2 inverse(f64x2 x) { return 1.0 / x; }
  ORK_INLINE V eval(const V& a, const V& b, u32x4&) {
    const auto t = inverse(b.re * b.re + b.im * b.im);
    const V p = plain_product<true>(a, b);
    return {p.re * t, p.im * t};
  }
};

}  // namespace ork
