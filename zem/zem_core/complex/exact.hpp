#pragma once
// Sums of products in two words: what the double complex products and quotients are made of.
#include "base/image.hpp"
#include "base/pair.hpp"
#include "frame/complex.hpp"

namespace ork {

// p + q, or p - q, to within 2^-100 of the exact value, however much of it cancels: where the heads
// cancel, their sum is exact, that of heads and tails nearly so, and what is left comes last.
template <bool minus = false>
ORK_INLINE Pair<f64x2> sum_of(const Pair<f64x2>& p, const Pair<f64x2>& q) {
  const auto [head, head_error] = exact_sum_of_any<minus>(p.high, q.high);
  const auto [tail, tail_error] = exact_sum_of_any<minus>(p.low, q.low);
  const auto [sum, error] = exact_sum(head, tail);
  return {sum, error + (head_error + tail_error)};
}

// x^2 + y^2 to 2^-77.
ORK_INLINE Pair<f64x2> sum_of_squares(const Halves& x, const Halves& y) {
  const auto [head, error] = exact_sum_of_any(x.high * x.high, y.high * y.high);
  return {head, error + (x.low * (x.whole + x.high) + y.low * (y.whole + y.high))};
}

// Range tests of two vectors at once, on the high words of |x| and |y|: a sign bit for each lane of
// each, which by_lane() puts together for the lanes of either.
ORK_INLINE u32x4 sizes(f64x2 x, f64x2 y) {
  return as<u32x4>(_mm_shuffle_ps(as<f32x4>(x), as<f32x4>(y), 0xDD)) & 0x7FFFFFFF;
}
ORK_INLINE u32x4 outside(u32x4 size, uint32_t low, uint32_t high) {
  return (size - low) | (high - size);
}
ORK_INLINE u32x4 by_lane(u32x4 marks) {
  const __m128i m = as<__m128i>(marks), both = m | _mm_shuffle_epi32(m, 0x4E);
  return as<u32x4>(_mm_unpacklo_epi32(both, both));
}

}  // namespace ork
