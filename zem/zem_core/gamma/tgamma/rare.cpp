// TGamma, HA, in extended precision, rounded once. n is the integer next to x, f = x - n,
// m the next of 3, 7, 11, ... (single: of 3, 4, 5, ...) from n on:
//   Gamma(x) = Gamma(m + f) / (x (x + 1) ... (x + m - n - 1)),
// Gamma(m + f) a polynomial in f, (m - 1)! at 0. Negative x: Gamma(x) = pi / (sin(pi x) Gamma(1 -
// x)). Within 0.51 ulp; factorials are correctly rounded.
#include "base/image.hpp"
#include "gamma/extended.hpp"
#include "gamma/tgamma/tgamma.hpp"
#include "ork/zem.h"

namespace ork {
namespace {

template <class T>
struct Limits;
template <>
struct Limits<double> {
  static constexpr int stride = 4;  // of m from row to row
  static constexpr long double rows[][25] = {
#include "gamma/tgamma/rows_d.inc"
  };
  static constexpr double overflow = 171.62437695630274, underflow = -185.0, largest = __DBL_MAX__;
  static constexpr double small = 9.332636185032189e-302;
  static constexpr double all_integers = 0x1p52;
  static constexpr bool reports_underflow = false;
};
template <>
struct Limits<float> {
  static constexpr int stride = 1;
  static constexpr double rows[][13] = {
#include "gamma/tgamma/rows_s.inc"
  };
  static constexpr float overflow = 0x1.18521ep+5f, underflow = -45.0f, largest = __FLT_MAX__;
  static constexpr float small = 0x1p-100f;
  static constexpr float all_integers = 0x1p23f;
  static constexpr bool reports_underflow = true;
};

// s x + c for the three factors of the denominator, by m - n; those not needed are 1.
constexpr float steps[4][3][2] = {{{0, 1}, {0, 1}, {0, 1}},
                                  {{1, 0}, {0, 1}, {0, 1}},
                                  {{1, 0}, {1, 1}, {0, 1}},
                                  {{1, 0}, {1, 1}, {1, 2}}};

// Gamma(m + f) as a product of quadratics: their sizes do not cancel as terms of one sum would.
template <class C, int count>
ORK_INLINE long double shifted(const C (&row)[count], long double f) {
  const long double f2 = f * f;
  long double y = row[0];
#pragma GCC unroll 12
  for (int k = 1; k < count; k += 2) y *= (1 + row[k + 1] * f2) + row[k] * f;
  return y;
}

// Gamma(x) = numerator / denominator; x = n + f >= 0.
struct Quotient {
  long double numerator, denominator;
  bool whole;  // the denominator is 1
};
template <class T>
ORK_INLINE Quotient gamma(long double x, int n, long double f) {
  constexpr int stride = Limits<T>::stride;
  const int m = stride == 4 ? n | 3 : n < 3 ? 3 : n;
  const long double y = shifted(Limits<T>::rows[(m - 3) / stride], f);
  if (stride == 1 && m == n) return {y, 1, true};
  const auto& s = steps[m - n];
  return {y, (s[0][0] * x + s[0][1]) * (s[1][0] * x + s[1][1]) * (s[2][0] * x + s[2][1]), false};
}

template <class T>
ORK_INLINE int rare(const T* a, T* r) {
  using L = Limits<T>;
  const X87Guard<x87_extended> extended;
  const bits_of<T> size = magnitude(a);
  const bool negative = sign(a) != 0;
  volatile T zero = 0;
  const auto domain = [&] {
    *r = zero / zero;
    return ZEM_STATUS_DOMAIN;
  };
  if (size >= infinity_bits<T>) {
    if (negative && size == infinity_bits<T>) return domain();
    *r = *a * *a;
    return ZEM_STATUS_NONE;
  }
  if (size == 0) {
    *r = 1 / *a;
    return ZEM_STATUS_SINGULARITY;
  }
  const T x = size_of(*a);
  if (!negative) {
    if (x > L::overflow) {
      volatile long double largest = L::largest;
      *r = (T)(largest * largest);
      return ZEM_STATUS_OVERFLOW;
    }
    const Split split(x);
    const Quotient y = gamma<T>(x, (int)split.n, split.f);
    *r = (T)(y.whole ? y.numerator : y.numerator / y.denominator);
  } else {
    if (x >= L::all_integers) return domain();
    const Split split(x);
    if (split.f == 0) return domain();
    const bool odd = (split.n & 1) != (split.f < 0);  // of the integer part of x
    if (x > -L::underflow) {
      volatile long double small = L::small;
      const long double square = small * small;
      *r = (T)(odd ? square : -square);
    } else {
      const Quotient y = gamma<T>(1 + (long double)x, (int)split.n + 1, split.f);
      const long double f = split.n & 1 ? split.f : -split.f;
      *r = (T)(y.denominator / (f * sine_ratio<T>(f) * y.numerator));
    }
  }
  // A tiny x has a result beyond the range.
  if (magnitude(r) == infinity_bits<T>) return ZEM_STATUS_OVERFLOW;
  if (L::reports_underflow && magnitude(r) < 0x00800000) return ZEM_STATUS_UNDERFLOW;
  return ZEM_STATUS_NONE;
}

}  // namespace

int tgamma_rare(const double* a, double* r) { return rare(a, r); }
int tgamma_rare(const float* a, float* r) { return rare(a, r); }

}  // namespace ork
