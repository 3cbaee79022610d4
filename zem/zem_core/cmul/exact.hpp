#pragma once
// Exact sums and products of doubles, and numbers kept as a pair and an exponent: what the double
// complex products and quotients are made of.
#include "base/image.hpp"
#include "frame/complex.hpp"

namespace ork {

// x + y, or x - y, = sum + error (D. E. Knuth).
template <bool minus = false>
ORK_INLINE f64x2 two_sum(f64x2 x, f64x2 y, f64x2& error) {
  const f64x2 sum = minus ? x - y : x + y, z = sum - x;
  error = minus ? (x - (sum - z)) - (y + z) : (x - (sum - z)) + (y - z);
  return sum;
}
// x + y where the exponent of x is not below that of y, or x = 0.
ORK_INLINE f64x2 fast_two_sum(f64x2 x, f64x2 y, f64x2& error) {
  const f64x2 sum = x + y;
  error = y - (sum - x);
  return sum;
}

// x = high + low, both of 26 bits, high the nearest: products of these are exact.
struct Halves {
  f64x2 whole, high, low;
  ORK_INLINE Halves of(f64x2 x) {
    const u64x2 rounded = as<u64x2>(x) + splat_u64(uint64_t{1} << 26);
    const f64x2 high = as<f64x2>(rounded & splat_u64(~uint64_t{0} << 27));
    return {x, high, x - high};
  }
};

// A sum of two doubles, the second at most about half an ulp of the first.
struct Pair2 {
  f64x2 high, low;
};

// x y, exactly (T. J. Dekker).
ORK_INLINE Pair2 two_product(const Halves& x, const Halves& y) {
  const f64x2 p = x.whole * y.whole;
  return {p, ((x.high * y.high - p) + (x.high * y.low + x.low * y.high)) + x.low * y.low};
}
// p + q, or p - q, to within 2^-100 of the exact value, however much of it cancels: where the heads
// cancel, their sum is exact, that of heads and tails nearly so, and what is left comes last.
template <bool minus = false>
ORK_INLINE Pair2 sum_of(const Pair2& p, const Pair2& q) {
  f64x2 head_error, tail_error, error;
  const f64x2 head = two_sum<minus>(p.high, q.high, head_error);
  const f64x2 tail = two_sum<minus>(p.low, q.low, tail_error);
  const f64x2 sum = fast_two_sum(head, tail, error);
  return {sum, error + (head_error + tail_error)};
}

// x^2 + y^2 to 2^-77.
ORK_INLINE Pair2 sum_of_squares(const Halves& x, const Halves& y) {
  f64x2 error;
  const f64x2 head = two_sum(x.high * x.high, y.high * y.high, error);
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
