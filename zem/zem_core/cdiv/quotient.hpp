#pragma once
// Quotients of pairs of doubles.
#include "cmul/exact.hpp"

namespace ork {

// A positive divisor high + low, split for quotients.
struct Divisor {
  f64x2 whole, low;  // the divisor
  f64x2 high, rest;  // of whole: 26 bits and 27
  f64x2 inverse;
  static constexpr u64x2 top_bits = {~uint64_t{0} << 27, ~uint64_t{0} << 27};

  __attribute__((always_inline)) explicit Divisor(const Pair2& d) {
    whole = fast_two_sum(d.high, d.low, low);
    high = and_bits(whole, top_bits);
    rest = whole - high;
    inverse = 1.0 / whole;
  }
  // n / d = high + low to 2^-77: q = n/d rounded, what q leaves of n, divided in its turn.
  __attribute__((always_inline)) Pair2 quotient(const Pair2& n) const {
    f64x2 n_low;
    const f64x2 n_high = fast_two_sum(n.high, n.low, n_low);
    const f64x2 q = n_high * inverse;
    const f64x2 top = and_bits(q, top_bits);
    const f64x2 left = ((n_high - top * high) - top * rest) - (q - top) * whole;
    return {q, ((left + n_low) - q * low) * inverse};
  }
};

}  // namespace ork
