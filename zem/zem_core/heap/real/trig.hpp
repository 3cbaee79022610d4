#pragma once
// Reduction modulo pi/2, sine and cosine in two words.
#include "heap/real/extended.hpp"

namespace ork::extended {

#include "heap/real/trig.inc"

// |x| = quarter pi/2 + r.
struct Reduced {
  Pair r;
  uint32_t quarter;
};
// Finite a >= 2^30: by the bits of 2/pi that matter.
Reduced reduce_large(long double a);

// a >= 0: the last part of pi/2 has 64 (48) bits behind those of the others; the products before
// it are exact, and the nearest arguments to multiples of pi/2 leave |r| > 2^-70.
template <int parts>
ORK_INLINE Pair subtract_quarters(long double a, long double n, const long double (&part)[parts]) {
  Pair r = {a - n * part[0], 0};
#pragma GCC unroll 4
  for (int i = 1; i < parts; ++i) {
    const Pair s = two_sum(r.high, -(n * part[i]));
    r = {s.high, r.low + s.low};
  }
  return fast_sum(r.high, r.low);
}
ORK_INLINE Reduced reduce(long double a) {
  const int e = exponent(a);
  if (__builtin_expect(e >= 16413, 0)) return reduce_large(a);
  if (a < 0.785398163397448309616L) return {{a, 0}, 0};
  const long double shifted = a * two_over_pi + shifter, n = shifted - shifter;
  if (__builtin_expect(e >= 16400, 0))
    return {subtract_quarters(a, n, half_pi_5), low_word(shifted)};
  return {subtract_quarters(a, n, half_pi_3), low_word(shifted)};
}

// |r| <= pi/4 and a little: sine and cosine. The squares of the upper 26 bits behind the point are
// exact, and so is their product with the first 11 bits of -1/6: what is rounded before the last
// sum is below 2^-3 of the result.
ORK_INLINE Pair sine_of(Pair r) {
  const long double head = (r.high + shifter_26) - shifter_26, rest = r.high - head;
  const long double z = r.high * r.high, z_head = head * head, z_rest = rest * (head + r.high);
  const long double t = z_rest * -0x1.554p-3L + z * value(sine, z);
  return {r.high, r.high * (z_head * -0x1.554p-3L) + (r.high * t + r.low * (1 - z * 0.5L))};
}
ORK_INLINE Pair cosine_of(Pair r) {
  const long double head = (r.high + shifter_26) - shifter_26, rest = r.high - head;
  const long double z = r.high * r.high;
  return {1 - head * head * 0.5L,
          z * z * value(cosine, z) - (rest * (head + rest * 0.5L) + r.high * r.low)};
}

struct SinCos {
  long double sin, cos;
};
// Any finite x.
ORK_INLINE SinCos sin_cos(long double x) {
  const int e = exponent(x);
  const bool minus = negative(x);
  if (__builtin_expect(e >= 16378, 1)) {
    const Reduced a = reduce(size(x));
    const Pair s = sine_of(a.r), c = cosine_of(a.r);
    long double first = s.high + s.low, second = c.high + c.low;
    if (a.quarter & 1) {
      const long double t = first;
      first = second, second = -t;
    }
    const bool half = a.quarter & 2;
    return {with_sign(first, half != minus), with_sign(second, half)};
  }
  if (e < 16308) return {tiny(x), 1};
  const long double z = x * x;
  if (e >= 16372) return {odd_partial<4>(sine_small, x), 1 + z * partial<4>(cosine_small, z)};
  if (e >= 16364) return {odd_partial<2>(sine_small, x), 1 + z * partial<2>(cosine_small, z)};
  return {odd_partial<1>(sine_small, x), 1 - z * 0.5L};
}

}  // namespace ork::extended
