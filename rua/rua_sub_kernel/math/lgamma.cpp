// ln |Gamma(x)| in the 64 significant bits of the x87 unit. Between 0 and 2.5 a series around
// 2, so that the zeros at 1 and 2 keep their relative accuracy; elsewhere Stirling's series,
// from 16 on, where the recurrence takes smaller x. Worst error below 1 ulp but near the zeros
// at negative x, where it is below 2^-60 in absolute terms.
#include "base/control.hpp"
#include "base/export.hpp"
#include "ork/ss_math.h"

namespace ork {
namespace {

#include "rua_sub_kernel/math/lgamma_rows.inc"
constexpr long double kLn2 = 0xB17217F7D1CF79ACp-64L;

inline long double ln80(long double x) {
  long double y;
  asm("fyl2x" : "=t"(y) : "0"(x), "u"(kLn2) : "st(1)");
  return y;
}
// |x| below 1 - sqrt(1/2).
inline long double ln1p80(long double x) {
  long double y;
  asm("fyl2xp1" : "=t"(y) : "0"(x), "u"(kLn2) : "st(1)");
  return y;
}
inline long double sin80(long double x) {
  long double y;
  asm("fsin" : "=t"(y) : "0"(x));
  return y;
}

template <int n>
inline long double polynomial(const long double (&c)[n], long double t) {
  long double p = c[n - 1];
  for (int k = n - 2; k >= 0; --k) p = p * t + c[k];
  return p;
}

// ln Gamma(2 + t), |t| <= 1/2.
long double beside_two(long double t) { return t * (kOneLessEuler + t * polynomial(kNear, t)); }

// ln Gamma(1 + t), |t| <= 1/2.
long double beside_one(long double t) {
  const bool small = t > -0.25L && t < 0.25L;
  return beside_two(t) - (small ? ln1p80(t) : ln80(1 + t));
}

long double positive(long double x) {
  if (x < 0.5L) return beside_one(x) - ln80(x);
  if (x < 1.5L) return beside_one(x - 1);
  if (x < 2.5L) return beside_two(x - 2);
  long double product = 1;
  for (; x < 16; x += 1) product *= x;
  const long double v = 1 / x;
  const long double stirling =
      (x - 0.5L) * ln80(x) - x + (kHalfLnTwoPi + v * polynomial(kFar, v * v));
  return product == 1 ? stirling : stirling - ln80(product);
}

// Gamma(-x) = -pi / (x sin(pi x) Gamma(x)).
long double negative(long double x) {
  x = -x;
  if (x >= 0x1p63L) return __builtin_infl();
  const long double r = x - (long double)(int64_t)x;  // [0, 1)
  if (r == 0) return __builtin_infl();
  const long double s = sin80(kPi * (r <= 0.5L ? r : 1 - r));
  return ln80(kPi / (x * s)) - positive(x);
}

}  // namespace

ORK_EXPORT double __ruadLGamma(double x) {
  const X87Guard<x87_extended> extended;
  asm volatile("" : "+m"(x));  // nothing of what follows may come before the control word
  if (x != x) return x + x;
  if (x == 0 || x - x != 0) return __builtin_inf();
  double y = double(x > 0 ? positive(x) : negative(x));
  asm volatile("" : "+m"(y));
  return y;
}

}  // namespace ork
