#pragma once
// What the gamma functions share, in the 64 significant bits of the x87 unit. To be called
// with the control word at extended precision, to nearest.
#include "frame/control.hpp"

namespace ork {

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

inline constexpr long double ln2_extended = 0xB17217F7D1CF79ACp-64L;

struct LnRow {
  float c;
  long double t;
};
inline constexpr LnRow ln_rows[128] = {
#include "lgamma/ln.inc"
};
// ln(1 + r) / r, |r| <= 2^-7; what is left out is below 2^-66.
inline constexpr long double ln_series[] = {1,         -1 / 2.0L, 1 / 3.0L,  -1 / 4.0L, 1 / 5.0L,
                                            -1 / 6.0L, 1 / 7.0L,  -1 / 8.0L, 1 / 9.0L};

// x > 0: k ln 2 + T + ln(1 + r), x = 2^k m, r = m c - 1. Beside 1 c is 1, so that the result
// keeps its relative accuracy; elsewhere it is within 2^-63 + 2^-64 |ln x|. Twice as fast as the
// instruction, which serves where 2^k is no float.
ORK_INLINE long double ln_extended(long double x) {
  uint32_t word[3];
  __builtin_memcpy(word, &x, 12);
  int k = (int)(word[2] & 0x7FFF) - 0x3FFF;
  if (__builtin_expect(k > 125 || k < -125, 0)) {
    long double y;
    asm("fyl2x" : "=t"(y) : "0"(x), "u"(ln2_extended) : "st(1)");
    return y;
  }
  const LnRow& row = ln_rows[word[1] >> 24 & 127];
  const float scale = as<float>((uint32_t)(127 - k) << 23);
  k += word[1] >= 0xB5000000;
  const long double r = x * scale * row.c - 1;
  return (k * ln2_extended + row.t) + r * polynomial(ln_series, r);
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

// sin(pi f) / (pi f), |f| <= 1/2.
inline constexpr long double sine_series[10] = {
#include "lgamma/sine.inc"
};
ORK_INLINE long double sine_ratio(long double f) { return polynomial(sine_series, f * f); }

}  // namespace ork
