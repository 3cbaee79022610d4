#pragma once
// Element types of the frames: reals, and complex numbers as pairs.
#include "base/vec.hpp"

namespace ork {

// One complex number, as std::complex and C's _Complex lie in memory. Arrays of it stand at any
// address: read_one and write_one.
template <class R>
struct Complex {
  R re, im;
};

// A vector of complex numbers: real parts in one register, imaginary parts in another. A lane is
// an element, so range tests, marks and the frames' loops are those of real elements.
template <class V>
struct Planes {
  V re, im;
};

// What an element type brings along: the type of its parts, their number, a vector's worth.
template <class E>
struct Element {
  using real = E;
  using vec = vec_of<E>;
  static constexpr int parts = 1;
};
template <class R>
struct Element<Complex<R>> {
  using real = R;
  using vec = Planes<vec_of<R>>;
  static constexpr int parts = 2;
};

ORK_INLINE Planes<f64x2> load(const Complex<double>* p) {
  const auto* x = reinterpret_cast<const double*>(p);
  const f64x2 a = load(x), b = load(x + 2);
  return {_mm_unpacklo_pd(a, b), _mm_unpackhi_pd(a, b)};
}
ORK_INLINE Planes<f32x4> load(const Complex<float>* p) {
  const auto* x = reinterpret_cast<const float*>(p);
  const f32x4 a = load(x), b = load(x + 4);
  return {_mm_shuffle_ps(a, b, 0x88), _mm_shuffle_ps(a, b, 0xDD)};
}
ORK_INLINE void store(Complex<double>* p, const Planes<f64x2>& x) {
  auto* y = reinterpret_cast<double*>(p);
  store(y, _mm_unpacklo_pd(x.re, x.im));
  store(y + 2, _mm_unpackhi_pd(x.re, x.im));
}
ORK_INLINE void store(Complex<float>* p, const Planes<f32x4>& x) {
  auto* y = reinterpret_cast<float*>(p);
  store(y, _mm_unpacklo_ps(x.re, x.im));
  store(y + 4, _mm_unpackhi_ps(x.re, x.im));
}
// As for reals: the first `count` lanes, the others repeat the first.
ORK_INLINE Planes<f64x2> load_part(const Complex<double>* p, int) {
  const Complex<double> x = read_one(p);
  return {splat(x.re), splat(x.im)};
}
ORK_INLINE Planes<f32x4> load_part(const Complex<float>* p, int count) {
  const Complex<float> first = read_one(p);
  Planes<f32x4> x = {splat(first.re), splat(first.im)};
  for (int k = 1; k < count; ++k) {
    const Complex<float> next = read_one(p + k);
    x.re[k] = next.re, x.im[k] = next.im;
  }
  return x;
}

// Sign bit of a lane (of a double: of its high word) set where x is infinite or a NaN.
ORK_INLINE u32x4 not_finite(f32x4 x) { return as<u32x4>(abs(x)) + splat_u32(0x00800000); }
ORK_INLINE u32x4 not_finite(f64x2 x) { return as<u32x4>(abs(x)) + splat_u32(0x00100000); }

}  // namespace ork
