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

// x y; x has at most 26 bits.
ORK_INLINE Pair<f64x2> exact_short_product(f64x2 x, f64x2 y) {
  const f64x2 p = x * y, high = upper_half(y);
  return {p, (x * high - p) + x * (y - high)};
}

}  // namespace ork
