#pragma once
// What the gamma functions share, in the 64 significant bits of the x87 unit. To be called
// with the control word at extended precision, to nearest.
#include "frame/control.hpp"

namespace ork {

inline constexpr long double ln2_extended = 0xB17217F7D1CF79ACp-64L;

// x > 0; below 2^-63 in relative terms.
ORK_INLINE long double ln_extended(long double x) {
  long double y;
  asm("fyl2x" : "=t"(y) : "0"(x), "u"(ln2_extended) : "st(1)");
  return y;
}

// x >= 0, below 2^63: the nearest integer n and x - n, exactly.
struct Split {
  int64_t n;
  long double f;
  __attribute__((always_inline)) explicit Split(long double x) {
    asm("fistpll %0" : "=m"(n) : "t"(x) : "st");
    f = x - (long double)n;
  }
};

// c[0] + c[1] x + ... in two chains, of even and of odd powers.
template <int count>
ORK_INLINE long double polynomial(const long double (&c)[count], long double x) {
  const long double x2 = x * x;
  long double even = c[(count - 1) & ~1], odd = c[(count - 2) | 1];
#pragma GCC unroll 16
  for (int k = ((count - 1) & ~1) - 2; k >= 0; k -= 2) even = even * x2 + c[k];
#pragma GCC unroll 16
  for (int k = ((count - 2) | 1) - 2; k >= 0; k -= 2) odd = odd * x2 + c[k];
  return even + x * odd;
}

// sin(pi f) / (pi f), |f| <= 1/2.
inline constexpr long double sine_series[10] = {
#include "lgamma/sine.inc"
};
ORK_INLINE long double sine_ratio(long double f) { return polynomial(sine_series, f * f); }

}  // namespace ork
