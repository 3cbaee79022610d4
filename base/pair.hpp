#pragma once
// Numbers in two words, and the sums and products that lose nothing. V is a scalar or a vector.
// Rounding is to nearest; a low word below the normal range is lost where such numbers count as 0.
#include "base/vec.hpp"

namespace ork {

// high + low, |low| small against high.
template <class V>
struct Pair {
  V high, low;
};

// x + y; exact where |x| >= |y| or x = 0 (Dekker 1971).
template <class V>
ORK_INLINE Pair<V> exact_sum(V x, V y) {
  const V s = x + y;
  return {s, (x - s) + y};
}

// x + y, or x - y, of any two (Knuth).
template <bool minus = false, class V>
ORK_INLINE Pair<V> exact_sum_of_any(V x, V y) {
  const V sum = minus ? x - y : x + y, z = sum - x;
  return {sum, minus ? (x - (sum - z)) - (y + z) : (x - (sum - z)) + (y - z)};
}

// x y of any two doubles (Dekker 1971); |x|, |y| below 2^996.
template <class V>
ORK_INLINE Pair<V> exact_product(V x, V y) {
  constexpr double splitter = 134217729.0;  // 2^27 + 1
  const V xs = x * splitter, ys = y * splitter;
  const V xh = xs - (xs - x), yh = ys - (ys - y), xl = x - xh, yl = y - yh;
  const V p = x * y;
  return {p, ((xh * yh - p) + xh * yl + xl * yh) + xl * yl};
}

// The upper 26 bits; what is left has 27.
ORK_INLINE f64x2 upper_half(f64x2 x) { return and_bits(x, splat_u64(~0ull << 27)); }

// whole = high + low, high the upper half: for numbers that take part in several products.
struct Upper {
  f64x2 whole, high, low;
  __attribute__((always_inline)) explicit Upper(f64x2 x)
      : whole(x), high(upper_half(x)), low(x - high) {}
};
// x y; x has at most 26 bits.
ORK_INLINE Pair<f64x2> exact_short_product(f64x2 x, const Upper& y) {
  const f64x2 p = x * y.whole;
  return {p, (x * y.high - p) + x * y.low};
}

// whole = high + low, both of 26 bits, high the nearest: products of these are exact.
struct Halves {
  f64x2 whole, high, low;
  ORK_INLINE Halves of(f64x2 x) {
    const u64x2 rounded = as<u64x2>(x) + splat_u64(uint64_t{1} << 26);
    const f64x2 high = as<f64x2>(rounded & splat_u64(~uint64_t{0} << 27));
    return {x, high, x - high};
  }
};
ORK_INLINE Pair<f64x2> exact_product(const Halves& x, const Halves& y) {
  const f64x2 p = x.whole * y.whole;
  return {p, ((x.high * y.high - p) + (x.high * y.low + x.low * y.high)) + x.low * y.low};
}

}  // namespace ork
