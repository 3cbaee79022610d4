// LGamma, HA, in extended precision. From 4 on a polynomial to the binade, as a product of
// quadratics; from 512 (single: 8192) on Stirling's series; below 4 polynomials by interval with
// the factor x - 1 or x - 2, so that the zeros keep their relative accuracy; close to 0
// lnG(x) = lnG(1 + x) - ln x. Negative x: lnG(x) = ln(pi / |x sin(pi x)|) - lnG(|x|), but beside
// the zeros, 2/7 of the way to the pole on either side, a polynomial around the zero.
// Within 0.52 ulp; between the zeros at negative x, where the difference cancels, 0.7.
#include "base/image.hpp"
#include "gamma/extended.hpp"
#include "gamma/lgamma/lgamma.hpp"
#include "ork/zem.h"

namespace ork {
namespace {

// C: the type of the coefficients. Those in double are memory operands of the arithmetic.
template <class C>
struct Factor {
  C p, q;
};
template <class C, int factors>
struct Binade {
  double middle, per_half;
  C scale;
  Factor<C> factor[factors];
};
template <class C, int factors>
struct Low {
  double middle, per_half;
  C scale;
  int zero;
  Factor<C> factor[factors];
};

template <class T>
struct Rows;
template <>
struct Rows<double> {
  static constexpr Binade<long double, 12> binades[] = {
#include "gamma/lgamma/binades_d.inc"
  };
  static constexpr Low<long double, 11> low[] = {
#include "gamma/lgamma/low_d.inc"
  };
  static constexpr double lowest = 0.875, stirling = 512.0;
  static constexpr uint64_t overflow = 0x7F5754D9278B51A7;
  static int binade(double x) { return (int)(image(&x) >> 52) - 0x401; }
  // Of 1 + u. Comparisons: nothing here may hang on the rounding mode.
  static int interval(double u) { return (u >= 0.25) + (u >= 0.75) + (u >= 1.25); }
};
template <>
struct Rows<float> {
  static constexpr Binade<double, 6> binades[] = {
#include "gamma/lgamma/binades_s.inc"
  };
  static constexpr Low<double, 5> low[] = {
#include "gamma/lgamma/low_s.inc"
  };
  static constexpr float lowest = 1.0f, stirling = 8192.0f;
  static constexpr uint32_t overflow = 0x7C44AF8D;  // of the next float the result is infinite
  static int binade(float x) { return (int)(image(&x) >> 23) - 0x81; }
  // Exact: u has a float's bits; the borders are 0.25, 0.5, 0.75 and 1.
  static int interval(float u) { return u < 1.0f ? (int)(4 * u) : 4; }
};

struct Root {
  double high;
  long double low, per_width, c[24];
};
constexpr Root roots[] = {
#include "gamma/lgamma/roots.inc"
};
static_assert(sizeof roots / sizeof *roots == 2 * (16 - 2 + 1));

template <class Row>
ORK_INLINE long double product(const Row& row, long double x) {
  constexpr int count = sizeof row.factor / sizeof *row.factor;
  const long double t = (x - row.middle) * row.per_half, t2 = t * t;
  long double y = row.scale;
#pragma GCC unroll 1  // unrolled, all coefficients would be loaded first, and spilled
  for (int k = 0; k < count; ++k) y *= (t2 + row.factor[k].q) + row.factor[k].p * t;
  return y;
}

// (x - 1/2) ln x - x + ln(2 pi)/2 + 1/(12 x) - 1/(360 x^3) + 1/(1260 x^5); what is left out is
// below 2^-85 of the sum from 512 on.
template <class T>
ORK_INLINE long double stirling(long double x) {
  constexpr long double half_ln_2pi = 0xEB3F8E4325F5A535p-64L;
  constexpr long double c1 = 1 / 12.0L, c3 = -1 / 360.0L, c5 = 1 / 1260.0L;
  const long double v = 1 / x, v2 = v * v;
  return (x - 0.5L) * ln_extended<T>(x) - x + half_ln_2pi + v * (c1 + v2 * (c3 + v2 * c5));
}

// ln Gamma(1 + u), u from lowest - 1 to 3.
template <class T>
ORK_INLINE long double low(T u) {
  const auto& row = Rows<T>::low[Rows<T>::interval(u)];
  const long double wide = u;
  return product(row, wide) * (wide - row.zero);
}

// x >= lowest
template <class T>
ORK_INLINE long double positive(T x) {
  if (x < 4) return low<T>(x - 1);  // x - 1 is exact
  if (x < Rows<T>::stirling) return product(Rows<T>::binades[Rows<T>::binade(x)], x);
  return stirling<T>(x);
}

// -x for x > 0 that is no integer.
template <class T>
ORK_INLINE long double negative(T x, const Split& split) {
  const long double f = split.f, wide = x;
  if (x < 16.5f && x >= 2) {
    const Root& root = roots[2 * ((int)split.n - 2) + (f < 0)];
    const long double t = ((-wide - root.high) - root.low) * root.per_width;
    if (root.high != 0 && t <= 1 && t >= -1) return t * polynomial(root.c, t);
  }
  const long double s = __builtin_fabsl(f * sine_ratio<T>(f));
  if (x < Rows<T>::lowest) return -ln_extended<T>(s) - low(x);
  return -ln_extended<T>(wide * s) - positive(x);
}

template <class T>
ORK_INLINE int rare(const T* a, T* r) {
  const X87Guard<x87_extended> extended;
  const bits_of<T> size = magnitude(a);
  volatile T zero = 0;
  if (size >= infinity_bits<T>) {
    *r = *a * *a;
    return ZEM_STATUS_NONE;
  }
  if (size == 0) {
    *r = 1 / zero;
    return ZEM_STATUS_SINGULARITY;
  }
  const T x = size_of(*a);
  if (!sign(a)) {
    if (size > Rows<T>::overflow) {
      volatile long double largest =
          sizeof(T) == 8 ? (long double)__DBL_MAX__ : (long double)__FLT_MAX__;
      *r = (T)(largest * largest);
      return ZEM_STATUS_OVERFLOW;
    }
    if (x == 1)
      *r = 0;
    else if (x >= Rows<T>::lowest)
      *r = (T)positive(x);
    else
      *r = (T)(low(x) - ln_extended<T>(x));
    return ZEM_STATUS_NONE;
  }
  if (x < T(sizeof(T) == 8 ? 0x1p52 : 0x1p23)) {
    const Split split(x);
    if (split.f != 0) {
      *r = (T)negative(x, split);
      return ZEM_STATUS_NONE;
    }
  }
  *r = 1 / zero;
  return ZEM_STATUS_SINGULARITY;
}

}  // namespace

int lgamma_rare(const double* a, double* r) { return rare(a, r); }
int lgamma_rare(const float* a, float* r) { return rare(a, r); }

}  // namespace ork
