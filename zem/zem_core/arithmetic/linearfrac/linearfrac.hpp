#pragma once
// r = (scale_a a + shift_a) / (scale_b b + shift_b) with one division for four elements.
//
// The denominators d are taken apart into mantissas m of +-[1, 2) and exponents. Of the mantissas
// in the same lane of four vectors, P = (m0 m1)(m2 m3) and 1 / P = inv; then
// 1 / m0 = (inv (m2 m3)) m1, and so on. 2^-e brings the exponent back before the numerator
// comes in, which may be denormal: only the quotient is rounded into that range. A block with a
// denominator that is zero, denormal, infinite, a NaN, or so large that 1 / d would be denormal,
// divides element by element, as the tail does.
//
// The block's quotients carry up to five half-ulp errors more than a division would.
#include "frame/kernel.hpp"
#include "ork/zem_kernels.h"

namespace ork {

template <class T>
struct LinearFrac : Core<T> {
  using vec = vec_of<T>;
  static constexpr Csr csr = sizeof(T) == 8 ? Csr::cleared : Csr::from_mode;
  static constexpr int width = simd<T>::width, block = 4 * width;

  // What a lane's exponent field looks like in the words that hold one.
  static constexpr bool wide = sizeof(T) == 8;
  static constexpr uint32_t exponent = wide ? 0x7FF00000 : 0x7F800000;
  static constexpr uint32_t one_bit = wide ? 0x00100000 : 0x00800000;
  static constexpr u32x4 words(uint32_t x) { return wide ? u32x4{0, x, 0, x} : u32x4{x, x, x, x}; }

  T scale_a, shift_a, scale_b, shift_b;

  template <class V>
  ORK_INLINE V linear(V x, T scale, T shift) {
    if constexpr (sizeof(V) == sizeof(T))
      return scale * x + shift;
    else
      return splat(scale) * x + splat(shift);
  }

  // The numerator is the constant shift_a if scale_a is 0.
  template <bool constant>
  ORK_INLINE T element(const LinearFrac& s, T a, T b) {
    return (constant ? s.shift_a : linear(a, s.scale_a, s.shift_a)) /
           linear(b, s.scale_b, s.shift_b);
  }

  template <bool constant>
  ORK_INLINE void run(const LinearFrac& s, int n, const T* a, const T* b, T* r) {
    int i = 0;
    for (; i <= n - block; i += block) {
      vec m[4], scale[4];
      u32x4 rare{};
#pragma GCC unroll 4
      for (int k = 0; k < 4; ++k) {
        const vec d = linear(load(b + i + k * width), s.scale_b, s.shift_b);
        const u32x4 e = as<u32x4>(d) & words(exponent);
        m[k] = as<vec>((as<u32x4>(d) & ~words(exponent)) | as<u32x4>(splat(T(1))));
        scale[k] = as<vec>(words(exponent - one_bit) - e);
        // Fields 1 .. all ones less four are clean: 1 / m may be rounded to below 1/2.
        rare |= as<u32x4>(as<i32x4>(e - words(0x80000000 + one_bit)) >
                          as<i32x4>(words(exponent - 5 * one_bit - 0x80000000)));
      }
      if (__builtin_expect(sign_mask<T>(rare) != 0, 0)) {
        for (const int end = i + block; i < end; ++i)
          write_one(r + i, element<constant>(s, read_one(a + i), read_one(b + i)));
        i -= block;
        continue;
      }
      const vec p01 = m[0] * m[1], p23 = m[2] * m[3];
      const vec inv = splat(T(1)) / (p01 * p23);
      const vec i01 = inv * p23, i23 = inv * p01;
      const vec reciprocal[4] = {i01 * m[1], i01 * m[0], i23 * m[3], i23 * m[2]};
      vec quotient[4];
#pragma GCC unroll 4
      for (int k = 0; k < 4; ++k) {
        const vec numerator =
            constant ? splat(s.shift_a) : linear(load(a + i + k * width), s.scale_a, s.shift_a);
        quotient[k] = numerator * (reciprocal[k] * scale[k]);
      }
#pragma GCC unroll 4
      for (int k = 0; k < 4; ++k) store(r + i + k * width, quotient[k]);
    }
    for (; i < n; ++i) write_one(r + i, element<constant>(s, read_one(a + i), read_one(b + i)));
  }

  ORK_INLINE void constant_denominator(const LinearFrac& s, int n, const T* a, T* r) {
    int i = 0;
    for (; i <= n - width; i += width)
      store(r + i, linear(load(a + i), s.scale_a, s.shift_a) / splat(s.shift_b));
    for (; i < n; ++i) write_one(r + i, linear(read_one(a + i), s.scale_a, s.shift_a) / s.shift_b);
  }
};

template <class T>
ORK_INLINE void linear_frac(int n, const T* a, const T* b, const LinearFrac<T>& s, T* r) {
  if (n <= 0) return;
  const Control<LinearFrac<T>> control;
  if (s.scale_b == 0)
    LinearFrac<T>::constant_denominator(s, n, a, r);
  else if (s.scale_a == 0)
    LinearFrac<T>::template run<true>(s, n, a, b, r);
  else
    LinearFrac<T>::template run<false>(s, n, a, b, r);
}

}  // namespace ork
