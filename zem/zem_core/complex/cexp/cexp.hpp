#pragma once
// Exp of complex vectors: e^x (cos y + i sin y) from the cores of the real functions. Rare lanes go
// to the scalar, which reports an overflow.
#include "base/pair.hpp"
#include "exponentials/exp_d.hpp"
#include "heap/complex/element.hpp"
#include "trig/table_kernel.hpp"

namespace ork {

template <class R>
struct ComplexExp : OfScalar<R, ork_zem_kernel_cexp_scalar, true> {
  static constexpr Csr csr = Csr::from_mode;
};

// A factor in two words; the product is rounded once, what is left out is below 2^-100.
struct Factor {
  f64x2 whole, head, rest, low;  // whole = head + rest, head of 26 bits
  __attribute__((always_inline)) explicit Factor(Pair<f64x2> x)
      : whole(x.high), head(upper_half(x.high)), rest(whole - head), low(x.low) {}
};
ORK_INLINE f64x2 operator*(const Factor& a, const Factor& b) {
  const f64x2 p = a.whole * b.whole;
  const f64x2 lost = ((a.head * b.head - p) + a.head * b.rest + a.rest * b.head) + a.rest * b.rest;
  return p + (lost + (a.whole * b.low + a.low * b.whole));
}

}  // namespace ork
