#pragma once
#include "complex/special.hpp"
#include "frame/arith.hpp"
#include "frame/block.hpp"
#include "frame/interleaved.hpp"
#include "ork/zem_kernels.h"

namespace ork {

template <class R, bool conj>
struct ProductName {
  static constexpr bool single = sizeof(R) == 4;
  static constexpr const char* name =
      conj ? (single ? "vcMulByConj" : "vzMulByConj") : (single ? "vcMul" : "vzMul");
};

// Single, HA: in double, where the products are exact, so that each part is the rounded difference
// or sum rounded once more: 0.5 ulp and 2^-30, however much cancels. Rare: results that are not
// finite.
template <bool conj>
struct ProductHaC : Core<Complex<float>, 2>, ProductName<float, conj> {
  ORK_INLINE f32x4 eval(const float* a, const float* b) {
    const Planes<f64x2> p = plain_product<conj>(widened_pair(a), widened_pair(b));
    return _mm_unpacklo_ps(_mm_cvtpd_ps(p.re), _mm_cvtpd_ps(p.im));
  }
  static int special(const Complex<float>* a, const Complex<float>* b, Complex<float>* r) {
    return mul_rare<conj>(a, b, r);
  }
};

// Double, HA: the four products as exact pairs, their sums to 2^-100: a part within 0.5 ulp and
// 2^-47, however much cancels. Fast: all parts in [2^-459, 2^511 sqrt(2)), so that no piece of a
// product is below the normal range and no sum overflows.
template <bool conj>
struct ProductHaZ : Core<Complex<double>, 2>, ProductName<double, conj> {
  using V = Planes<f64x2>;
  ORK_INLINE u32x4 out_of_range(const V& z) {
    return outside(sizes(z.re, z.im), 0x23400000, 0x5FD6A09D);
  }
  ORK_INLINE V eval(const V& a, const V& b, u32x4& rare) {
    rare |= by_lane(out_of_range(a) | out_of_range(b));
    const Halves x = Halves::of(a.re), y = Halves::of(a.im), u = Halves::of(b.re),
                 v = Halves::of(b.im);
    const Pair<f64x2> re = sum_of<!conj>(exact_product(x, u), exact_product(y, v));
    const Pair<f64x2> im = sum_of<conj>(exact_product(y, u), exact_product(x, v));
    return {re.high + re.low, im.high + im.low};
  }
  static int special(const Complex<double>* a, const Complex<double>* b, Complex<double>* r) {
    return mul_rare<conj>(a, b, r);
  }
};

// EP: plain arithmetic in the type itself, no status.
template <class R, bool conj>
struct ProductEp : Core<Complex<R>, 2>, ProductName<R, conj> {
  using V = Planes<vec_of<R>>;
  static constexpr bool total = true;
  ORK_INLINE V eval(const V& a, const V& b, u32x4&) { return plain_product<conj>(a, b); }
};

// The same for a b in single precision, on interleaved parts: two elements in a register.
struct InterleavedProduct {
  ORK_INLINE f32x4 eval(f32x4 a, f32x4 b) {
    const f32x4 turned = _mm_shuffle_ps(b, b, 0xB1);
    return _mm_addsub_ps(_mm_moveldup_ps(a) * b, _mm_movehdup_ps(a) * turned);
  }
};

}  // namespace ork
