#pragma once
// The 80-bit format of the x87 unit: fields, sums and products in two words, series. All of it
// counts on the control word being at extended precision, to nearest; the functions here leave
// MXCSR and the vector state alone.
#include "base/pair.hpp"
#include "base/round.hpp"

namespace ork::extended {

constexpr int bias = 16383;
constexpr int special_exponent = 32767;

// (x + shifter) - shifter is x without fraction; the others leave that many bits behind the point.
constexpr long double shifter = integer_shifter<long double>;
constexpr long double shifter_26 = 0x1.8p37L, shifter_31 = 0x1.8p32L;

// Only the 16 bits that are wanted are loaded: a wider load behind the store of x would stall.
ORK_INLINE int sign_and_exponent(long double x) {
  uint16_t word;
  __builtin_memcpy(&word, (const char*)&x + 8, 2);
  return word;
}
ORK_INLINE int exponent(long double x) { return sign_and_exponent(x) & 0x7FFF; }
ORK_INLINE bool negative(long double x) { return sign_and_exponent(x) >> 15; }
ORK_INLINE uint32_t low_word(long double x) {
  uint32_t word;
  __builtin_memcpy(&word, &x, 4);
  return word;
}
ORK_INLINE uint32_t high_word(long double x) {
  uint32_t word;
  __builtin_memcpy(&word, (const char*)&x + 4, 4);
  return word;
}
ORK_INLINE bool is_nan(long double x) { return x != x; }
ORK_INLINE long double size(long double x) { return __builtin_fabsl(x); }
ORK_INLINE long double with_sign(long double size, bool negative) {
  return negative ? -size : size;
}

// A value of which the compiler knows nothing: arithmetic with it happens, and raises its flags.
ORK_INLINE long double opaque(long double x) {
  asm volatile("" : "+t"(x));
  return x;
}
ORK_INLINE void drop(long double x) { asm volatile("" : : "t"(x)); }
// Raising its flag on the way: overflow, underflow, invalid (a NaN), division by zero.
ORK_INLINE long double overflow() {
  const long double x = opaque(0x1p10000L);
  return x * x;
}
ORK_INLINE long double underflow() {
  const long double x = opaque(0x1p-10000L);
  return x * x;
}
ORK_INLINE long double invalid() { return opaque(__builtin_infl()) * 0.0L; }
ORK_INLINE long double pole() { return 1 / opaque(0.0L); }
// A NaN comes out quiet.
ORK_INLINE long double quieted(long double x) { return x + x; }

// x where f(x) rounds to it: to nearest, so that directions don't matter; inexact is raised, and
// zeros, which are exact, keep their sign.
ORK_INLINE long double tiny(long double x) {
  if (x == 0) return x;
  drop(opaque(1.0L) + x);
  if (exponent(x) == 0) drop(underflow());
  return x;
}

// 2^n as a float, |n| <= 126: four bytes are stored and loaded again without a stall.
ORK_INLINE float power_of_two(int n) { return as<float>((uint32_t)(127 + n) << 23); }
// x 2^n for |n| <= 4000, in factors that are floats; they don't wait for x.
ORK_INLINE long double scale_near(long double x, int n) {
  long double wide = power_of_two(n >> 5);
  wide *= wide;
  wide *= wide;
  wide *= wide;
  wide *= wide;
  wide *= wide;
  return x * (wide * power_of_two(n & 31));
}

// 2^n, -16382 <= n <= 16383.
ORK_INLINE long double wide_power_of_two(int n) {
  struct __attribute__((packed)) {
    uint64_t significand;
    uint16_t exponent;
    uint16_t unused;
  } const image = {1ull << 63, (uint16_t)(n + bias), 0};
  return __builtin_bit_cast(long double, image);
}

using Pair = ork::Pair<long double>;

// a + b for |a| >= |b|, or where a is 0 or a multiple of b's last bit.
ORK_INLINE Pair fast_sum(long double a, long double b) { return exact_sum(a, b); }
ORK_INLINE Pair two_sum(long double a, long double b) {
  const long double s = a + b, c = s - a;
  return {s, (a - (s - c)) + (b - c)};
}
// The upper 32 bits and the rest: products of halves are exact. |x| below 2^16350.
ORK_INLINE Pair halves(long double x) {
  const long double t = x * 0x1.00000001p32L, high = t - (t - x);
  return {high, x - high};
}
ORK_INLINE Pair product(long double a, long double b) {
  const Pair x = halves(a), y = halves(b);
  const long double p = a * b;
  return {p, (((x.high * y.high - p) + x.high * y.low) + x.low * y.high) + x.low * y.low};
}
ORK_INLINE Pair square(long double a) {
  const Pair x = halves(a);
  const long double p = a * a;
  return {p, ((x.high * x.high - p) + 2 * x.high * x.low) + x.low * x.low};
}
ORK_INLINE Pair quotient(Pair n, Pair d) {
  const long double inverse = 1 / d.high, q = n.high * inverse;
  const Pair x = halves(q), y = halves(d.high);
  const long double rest = (((n.high - x.high * y.high) - x.high * y.low) - x.low * y.high) -
                           x.low * y.low + (n.low - q * d.low);
  return {q, rest * inverse};
}
ORK_INLINE long double square_root(long double x) {
  long double y;
  asm("fsqrt" : "=t"(y) : "0"(x));
  return y;
}
// x.high > 0.
ORK_INLINE Pair root(Pair x) {
  const long double s = square_root(x.high);
  const Pair y = halves(s);
  const long double rest =
      ((x.high - y.high * y.high) - 2 * y.high * y.low) - y.low * y.low + x.low;
  return {s, rest / (2 * s)};
}

// Coefficients, lowest power first; the later ones count so little that they can be doubles,
// which the unit takes from memory in the operation itself.
template <int wide, int narrow>
struct Series {
  static constexpr int count = wide + narrow;
  long double head[wide];
  double rest[narrow ? narrow : 1];
  __attribute__((always_inline)) constexpr long double at(int k) const {
    return k < wide ? head[k] : rest[k - wide];
  }
};

// The first `count` terms in two chains, of even and of odd powers.
template <int count, int wide, int narrow>
ORK_INLINE long double partial(const Series<wide, narrow>& s, long double x) {
  static_assert(count <= wide + narrow);
  if constexpr (count == 1) {
    return s.at(0);
  } else {
    const long double x2 = x * x;
    constexpr int top_even = (count - 1) & ~1, top_odd = (count - 2) | 1;
    long double even = s.at(top_even), odd = s.at(top_odd);
#pragma GCC unroll 16
    for (int k = top_even - 2; k >= 0; k -= 2) even = even * x2 + s.at(k);
#pragma GCC unroll 16
    for (int k = top_odd - 2; k >= 0; k -= 2) odd = odd * x2 + s.at(k);
    return even + x * odd;
  }
}
template <int wide, int narrow>
ORK_INLINE long double value(const Series<wide, narrow>& s, long double x) {
  return partial<wide + narrow>(s, x);
}
// x + x^3 s(x^2).
template <int count, int wide, int narrow>
ORK_INLINE long double odd_partial(const Series<wide, narrow>& s, long double x) {
  const long double z = x * x;
  return x + x * z * partial<count>(s, z);
}
// The same below 2^-7, or a border named by the caller: four terms, two below 2^-12, one below
// 2^-18 and none below 2^-75.
template <int wide, int narrow>
ORK_INLINE long double odd_small(const Series<wide, narrow>& s, long double x, int four = 16371,
                                 int two = 16365) {
  const int e = exponent(x);
  if (e >= four) return odd_partial<4>(s, x);
  if (e >= two) return odd_partial<2>(s, x);
  if (e >= 16308) return odd_partial<1>(s, x);
  return tiny(x);
}

}  // namespace ork::extended
