#pragma once
// The frame of complex kernels whose rare elements show in the result: a part that is infinite or a
// NaN. Parts stay interleaved, as they lie in memory: a register holds two elements of c or one of
// z. What a core supplies differs from kernel.hpp:
//
//   vec eval(const R* a, const R* b)   one register's worth of results
//   int special(a, b, r)               also gives every ordinary element its value, to the bit as
//   eval
//                                      does: all elements of a block with a rare one go there, in
//                                      index order, and those after the last block
//
// Cores have two inputs.
#include "frame/kernel.hpp"

namespace ork {

// |x| by 16-bit words; of a number's words only the top one is looked at.
ORK_INLINE __m128i top_words(f32x4 x) { return as<__m128i>(abs(x)); }
ORK_INLINE __m128i top_words(f64x2 x) { return as<__m128i>(abs(x)); }

template <class C>
ORK_INLINE bool interleaved_block(const OperandsOf<C>& o, int first) {
  using R = typename C::real;
  constexpr int width = 16 / sizeof(R), registers = 4;
  const auto* a = reinterpret_cast<const R*>(o.in[0] + first);
  const auto* b = reinterpret_cast<const R*>(o.in[1] + first);
  vec_of<R> r[registers];
  __m128i top;
#pragma GCC unroll 4
  for (int k = 0; k < registers; ++k) {
    r[k] = C::eval(a + k * width, b + k * width);
    top = k == 0 ? top_words(r[0]) : _mm_max_epi16(top, top_words(r[k]));
  }
  // A sign bit where the largest exponent field is that of infinities and NaNs.
  const __m128i beyond = _mm_add_epi16(
      top, sizeof(R) == 4 ? _mm_set1_epi32(0x00800000) : _mm_set1_epi64x(0x0010000000000000));
  if (__builtin_expect(sign_mask<R>(as<u32x4>(beyond)) != 0, 0)) return false;
#pragma GCC unroll 4
  for (int k = 0; k < registers; ++k)
    store(reinterpret_cast<R*>(o.out[0] + first) + k * width, r[k]);
  return true;
}

template <class C>
__attribute__((noinline, cold)) void each_by_special(const OperandsOf<C>& o, int first, int end) {
  for (int i = first; i < end; ++i) {
    const typename C::type a = read_one(o.in[0] + i), b = read_one(o.in[1] + i);
    special_element(C{}, o, i, &a, &b);
  }
}

template <class C>
ORK_INLINE void interleaved(int n, const OperandsOf<C>& o) {
  if (n <= 0) return;
  const Control<C> control;
  constexpr int width = 4 * (16 / (int)sizeof(typename C::type));
  int i = 0;
  for (; i <= n - width; i += width)
    if (__builtin_expect(!interleaved_block<C>(o, i), 0)) each_by_special<C>(o, i, i + width);
  if (i < n) each_by_special<C>(o, i, n);
}

}  // namespace ork
