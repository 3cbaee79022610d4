#pragma once
// What the complex scalars share: arguments of two doubles, looked at by their bits, results of
// two extended numbers, which are rounded once when they are stored.
#include "base/image.hpp"
#include "heap/real/extended.hpp"
#include "ork/zem_complex_scalar.h"

namespace ork::complex_scalar {

using namespace ork::extended;

// A part that is a normal number, by its high word alone: whole words of 64 bits would be put
// together in memory, and their loads would stall.
struct Usual {
  long double value;
  uint32_t high;
  __attribute__((always_inline)) int exponent() const { return (int)(high >> 20 & 0x7FF); }
  __attribute__((always_inline)) bool negative() const { return high >> 31; }
  __attribute__((always_inline)) Usual opposite() const { return {-value, high ^ 0x80000000}; }
  // `size` with this part's sign.
  __attribute__((always_inline)) long double sign(long double size) const {
    return negative() ? -size : size;
  }
};

// Any part: its value in 64 bits (a signalling NaN is quiet there) and its kind.
struct Part {
  long double value;
  uint64_t magnitude;
  bool negative;
  explicit Part(const double& x)
      : value(x), magnitude(ork::magnitude(&x)), negative(ork::sign(&x) != 0) {}

  int exponent() const { return (int)(magnitude >> 52); }
  bool nan() const { return magnitude > infinity_bits<double>; }
  bool infinite() const { return magnitude == infinity_bits<double>; }
  bool finite() const { return magnitude < infinity_bits<double>; }
  bool zero() const { return magnitude == 0; }
  bool denormal() const { return exponent() == 0 && !zero(); }
  bool ordinary() const { return finite() && !zero(); }
  bool below_one() const { return magnitude < 0x3FF0000000000000; }
  long double squared() const { return value * value; }
  // -x, but a NaN as it is.
  Part opposite() const {
    Part turned = *this;
    if (nan()) return turned;
    turned.value = -value;
    turned.negative = !negative;
    return turned;
  }
  long double sign(long double size) const { return negative ? -size : size; }
  Usual usual() const { return {value, (uint32_t)(magnitude >> 32) | (uint32_t)negative << 31}; }
};

struct Parts {
  long double re, im;
};

// What raises a flag although no part of the result comes from it.
ORK_INLINE void raise_underflow() {
  double x = 0x1p-1022;
  asm volatile("mulsd %0, %0" : "+x"(x));
}
ORK_INLINE void raise_inexact() { drop(opaque(0x1.fffffffffffffp1023L) - 0x1p-1022L); }
// The square of the largest double, stored as one: infinity, overflow raised.
ORK_INLINE long double beyond_double() {
  const long double x = opaque(0x1.fffffffffffffp1023L);
  const volatile double square = (double)(x * x);
  return square;
}

// Denormal, not zero; the high word sorts out most.
ORK_INLINE bool is_denormal(const double& x) {
  uint32_t high;
  __builtin_memcpy(&high, (const char*)&x + 4, 4);
  return __builtin_expect((high & 0x7FF00000) == 0, 0) && ork::magnitude(&x) != 0;
}
ORK_INLINE double* store(double* r, Parts z) {
  r[0] = (double)z.re;
  r[1] = (double)z.im;
  return r;
}
// The same, with underflow for a denormal part.
ORK_INLINE double* store_flagged(double* r, Parts z) {
  store(r, z);
  if (__builtin_expect(is_denormal(r[0]) || is_denormal(r[1]), 0)) raise_underflow();
  return r;
}

// A function of two parts: general() for ordinary ones, where those of the first have an exponent
// below `limit`, special() for all others. turned: of iz.
template <class F, bool turned>
__attribute__((noinline, cold)) Parts apply_special(double x, double y) {
  const Part a = turned ? Part(y).opposite() : Part(x), b = turned ? Part(x) : Part(y);
  if (a.ordinary() && b.ordinary() && a.exponent() < F::limit)
    return F::general(a.usual(), b.usual());
  return F::special(a, b);
}
template <class F, bool turned = false>
ORK_INLINE Parts apply(const double& x, const double& y) {
  uint32_t u, v;
  __builtin_memcpy(&u, (const char*)&x + 4, 4);
  __builtin_memcpy(&v, (const char*)&y + 4, 4);
  const auto normal = [](uint32_t high) { return (high & 0x7FFFFFFF) - 0x00100000 < 0x7FE00000; };
  const uint32_t first = turned ? v : u;
  if (__builtin_expect(!(normal(u) && normal(v) && (first >> 20 & 0x7FF) < F::limit), 0))
    return apply_special<F, turned>(x, y);
  const Usual a = {x, u}, b = {y, v};
  return turned ? F::general(b.opposite(), a) : F::general(a, b);
}
constexpr int no_limit = 2047;

// -i z, where a NaN keeps its sign.
ORK_INLINE Parts turned_back(Parts z) { return {z.im, is_nan(z.re) ? z.re : -z.re}; }

}  // namespace ork::complex_scalar
