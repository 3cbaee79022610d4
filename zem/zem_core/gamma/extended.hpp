#pragma once
// What the gamma functions share, in the 64 significant bits of the x87 unit. To be called
// with the control word at extended precision, to nearest.
#include "base/control.hpp"

namespace ork {

// c[0] + c[1] x + ... in two chains, of even and of odd powers.
template <class C, int count>
ORK_INLINE long double polynomial(const C (&c)[count], long double x) {
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
#include "gamma/ln.inc"
};
// What depends on the result's type: ln(1 + r) / r for |r| <= 2^-7 and sin(pi f) / (pi f) for
// |f| <= 1/2, as a series in f^2. What is left out of the first is below 2^-66, single 2^-37.
// Constants in double can be memory operands.
template <class T>
struct Series;
template <>
struct Series<double> {
  static constexpr long double ln[] = {1,         -1 / 2.0L, 1 / 3.0L,  -1 / 4.0L, 1 / 5.0L,
                                       -1 / 6.0L, 1 / 7.0L,  -1 / 8.0L, 1 / 9.0L};
  static constexpr long double sine[] = {
#include "gamma/sine.inc"
  };
};
template <>
struct Series<float> {
  static constexpr double ln[] = {1, -ratio<1, 2>, ratio<1, 3>, -ratio<1, 4>, ratio<1, 5>};
  static constexpr double sine[] = {
#include "gamma/sine_s.inc"
  };
};

// x > 0: k ln 2 + T + ln(1 + r), x = 2^k m, r = m c - 1. Beside 1 c is 1, so that the result
// keeps its relative accuracy; elsewhere it is within 2^-63 + 2^-64 |ln x| (double). Twice as fast
// as the instruction, which serves where 2^k is no float.
template <class T>
ORK_INLINE long double ln_extended(long double x) {
  uint32_t mantissa;  // its high word
  uint16_t exponent;  // 16 bits alone were stored: a wider load would stall
  __builtin_memcpy(&mantissa, (const char*)&x + 4, 4);
  __builtin_memcpy(&exponent, (const char*)&x + 8, 2);
  int k = (int)(exponent & 0x7FFF) - 0x3FFF;
  if (__builtin_expect(k > 125 || k < -125, 0)) {
    long double y;
    asm("fyl2x" : "=t"(y) : "0"(x), "u"(ln2_extended) : "st(1)");
    return y;
  }
  const LnRow& row = ln_rows[mantissa >> 24 & 127];
  const float scale = as<float>((uint32_t)(127 - k) << 23);
  k += mantissa >= 0xB5000000;
  const long double r = x * scale * row.c - 1;
  return (k * ln2_extended + row.t) + r * polynomial(Series<T>::ln, r);
}

// |x| of a finite x, in its own register: a 64-bit image would be stored in halves, and its load
// would stall.
ORK_INLINE double size_of(double x) { return __builtin_fabs(x); }
ORK_INLINE float size_of(float x) { return __builtin_fabsf(x); }

// x >= 0, below 2^63: the nearest integer n and x - n, exactly.
struct Split {
  int64_t n;
  long double f;
  __attribute__((always_inline)) explicit Split(long double x) {
    long double whole;
    asm("fistpll %1\n\tfildll %1" : "=t"(whole), "=m"(n) : "0"(x));
    f = x - whole;
  }
};

// sin(pi f) / (pi f), |f| <= 1/2.
template <class T>
ORK_INLINE long double sine_ratio(long double f) {
  return polynomial(Series<T>::sine, f * f);
}

}  // namespace ork
