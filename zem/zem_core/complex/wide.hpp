#pragma once
// Numbers (high + low) 2^exponent: doubles of any size taken apart, sums of two products,
// quotients, and the one rounding back, into denormals too. For scalar routines: one number in a
// register.
#include "complex/exact.hpp"

namespace ork {

struct Wide {
  double high, low;  // |low| at most about half an ulp of high; |high| within 2^-110 and 2^10, or 0
  int exponent;
  double zero;  // what high = 0 stands for: a zero with its sign

  double rounded() const;
};

// x = significand 2^exponent, 1 <= |significand| < 2. By its bits: a denormal counts in full
// whatever the processor's mode. x finite, not 0.
struct Significand {
  double value;
  int exponent;
  explicit Significand(double x) {
    uint64_t bits = as<uint64_t>(x);
    const uint64_t sign = bits & sign_bit<double>;
    bits ^= sign;
    int shift = 0;
    if (bits < 0x0010000000000000) {
      shift = __builtin_clzll(bits) - 11;
      bits <<= shift;
      bits = (bits & 0x000FFFFFFFFFFFFF) | 0x0010000000000000;
    }
    exponent = (int)(bits >> 52) - 1023 - shift;
    value = as<double>(sign | 0x3FF0000000000000 | (bits & 0x000FFFFFFFFFFFFF));
  }
};

ORK_INLINE double power_of_two(int e) { return as<double>((uint64_t)(1023 + e) << 52); }

// The sum rounded to a double once.
inline double Wide::rounded() const {
  double h = high + low;
  if (h == 0) return zero;
  const double l = low - (h - high);
  const uint64_t bits = as<uint64_t>(h), sign = bits & sign_bit<double>;
  const int e = (int)(bits >> 52 & 0x7FF) - 1023, e_result = e + exponent;
  if (e_result >= 1024) return as<double>(sign | infinity_bits<double>);
  if (e_result >= -1022) return as<double>(bits + ((uint64_t)(int64_t)exponent << 52));
  if (e_result < -1080) return as<double>(sign);
  // Denormal: a sum whose last place is 2^-1074 counts these; what it leaves of |h| is exact, and
  // where that is half a unit, l decides.
  const double unit = power_of_two(-1074 - exponent), shifter = 0x1p52 * unit;
  const double size = __builtin_fabs(h), rest = sign != 0 ? -l : l;
  double counted = shifter + size;
  const double left = size - (counted - shifter);
  if (left == unit * 0.5 && rest > 0) counted += unit;
  if (left == unit * -0.5 && rest < 0) counted -= unit;
  return as<double>(sign | (as<uint64_t>(counted) - as<uint64_t>(shifter)));
}

// s1 t1 + s2 t2, finite numbers, to 2^-79 or better of the larger of result and cancelled product.
inline Wide product_sum(double s1, double t1, double s2, double t2) {
  const auto is_zero = [](double x) { return magnitude(&x) == 0; };
  const bool none1 = is_zero(s1) || is_zero(t1), none2 = is_zero(s2) || is_zero(t2);
  if (none1 && none2) return {0, 0, 0, s1 * t1 + s2 * t2};
  const double one = 1.0;
  const Significand a(none1 ? one : s1), b(none1 ? one : t1), c(none2 ? one : s2),
      d(none2 ? one : t2);
  const Pair<f64x2> both =
      exact_product(Halves::of(f64x2{a.value, c.value}), Halves::of(f64x2{b.value, d.value}));
  const int e1 = a.exponent + b.exponent, e2 = c.exponent + d.exponent;
  if (none2 || (!none1 && e1 - e2 > 79)) return {both.high[0], both.low[0], e1, 0};
  if (none1 || e2 - e1 > 79) return {both.high[1], both.low[1], e2, 0};
  const int e = e1 > e2 ? e1 : e2;
  const f64x2 scale = {power_of_two(e1 - e), power_of_two(e2 - e)};
  const f64x2 high = both.high * scale, low = both.low * scale;
  const Pair<f64x2> sum = sum_of({splat(high[0]), splat(low[0])}, {splat(high[1]), splat(low[1])});
  return {sum.high[0], sum.low[0], e, 0};
}

}  // namespace ork
