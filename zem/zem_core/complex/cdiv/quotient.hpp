#pragma once
// Quotients of pairs of doubles.
#include "complex/exact.hpp"

namespace ork {

// A positive divisor high + low, split for quotients.
struct Divisor {
  Upper top;
  f64x2 low, inverse;

  __attribute__((always_inline)) explicit Divisor(const Pair<f64x2>& d)
      : Divisor(exact_sum(d.high, d.low), 0) {}
  // n / d = high + low to 2^-77: q = n/d rounded, what q leaves of n, divided in its turn.
  __attribute__((always_inline)) Pair<f64x2> quotient(const Pair<f64x2>& n) const {
    const auto [n_high, n_low] = exact_sum(n.high, n.low);
    const Upper q(n_high * inverse);
    const f64x2 left = ((n_high - q.high * top.high) - q.high * top.low) - q.low * top.whole;
    return {q.whole, ((left + n_low) - q.whole * low) * inverse};
  }

 private:
  __attribute__((always_inline)) Divisor(const Pair<f64x2>& d, int)
      : top(d.high), low(d.low), inverse(1.0 / d.high) {}
};

}  // namespace ork
