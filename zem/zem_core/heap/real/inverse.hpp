#pragma once
// Arctangent and arcsine in two words.
#include "heap/real/extended.hpp"
#include "ork/zem_extended.h"

namespace ork::extended {

#include "heap/real/inverse.inc"

// The angle in [0, pi] of the point (x, y), y >= 0, with neither exponent near the format's ends
// and not both zero: the arc of the nearest row, j/128 = y/x or x/y, plus atan of what is left,
// a quotient in two words.
ORK_INLINE Pair angle(long double y, long double x) {
  const long double a = size(x);
  const bool steep = y > a, back = negative(x);
  const long double small = steep ? a : y, large = steep ? y : a;
  const long double shifted = small / large * 128 + shifter;
  const long double c = (shifted - shifter) * 0x1p-7L;
  const int j = (int)low_word(shifted);
  const Pair l = halves(large);  // c has 8 bits
  const long double turn = c * small;
  const Pair den = fast_sum(large, turn);
  const Pair s = quotient({(small - c * l.high) - c * l.low, 0}, den);
  const long double z = s.high * s.high, rest = s.low + s.high * z * value(atan_step, z);
  const double* row =
      ork_zem_core_atanl_table_128[steep ? (back ? 256 + j : 256 - j) : (back ? 512 - j : j)];
  const bool falling = steep != back;
  const Pair sum = fast_sum(row[0], falling ? -s.high : s.high);
  return {sum.high, sum.low + (row[1] + (falling ? -rest : rest))};
}

// Neither is a NaN, an infinity or zero; y > 0.
ORK_INLINE long double angle_scaled(long double y, long double x) {
  const int ey = exponent(y), ex = exponent(x);
  if (__builtin_expect(ey - ex > 66, 0)) return half_pi.high + half_pi.low;
  if (__builtin_expect(ex - ey > 66, 0)) return negative(x) ? pi.high - 0x1p-70L : y / x;
  if (__builtin_expect(ey > 24000 || ex > 24000, 0)) y *= 0x1p-8192L, x *= 0x1p-8192L;
  if (__builtin_expect(ey < 8000 || ex < 8000, 0)) y *= 0x1p8192L, x *= 0x1p8192L;
  const Pair p = angle(y, x);
  return p.high + p.low;
}

// asin x = x + x^3 c(x^2) as head and rest, |x| <= 1/2.
ORK_INLINE Pair asin_near(Pair x) {
  const long double z = x.high * x.high;
  return {x.high,
          x.low + x.high * z *
                      (exponent(x.high) >= 16381 ? value(asin_wide, z) : value(asin_middle, z))};
}
// asin sqrt((1 - a)/2) for 1/2 <= a < 1, whose double is acos a: the halved distance is exact, its
// root in two words.
ORK_INLINE Pair half_acos(long double a) {
  const Pair s = root({(1 - a) * 0.5L, 0});
  const long double z = s.high * s.high;
  return {s.high, s.low + s.high * z * value(asin_wide, z)};
}

// asin x, |x| < 1.
ORK_INLINE long double asin_inside(long double x) {
  const int e = exponent(x);
  if (e < 16376) return odd_small(asin_small, x);
  if (e >= 16382) {
    const Pair h = half_acos(size(x)), s = fast_sum(half_pi.high, -2 * h.high);
    return with_sign(s.high + (s.low + (half_pi.low - 2 * h.low)), negative(x));
  }
  const Pair s = asin_near({x, 0});
  return s.high + s.low;
}
// acos x, |x| < 1.
ORK_INLINE long double acos_inside(long double x) {
  const int e = exponent(x);
  if (e >= 16382) {
    const Pair h = half_acos(size(x));
    if (!negative(x)) return 2 * (h.high + h.low);
    const Pair s = fast_sum(pi.high, -2 * h.high);
    return s.high + (s.low + (pi.low - 2 * h.low));
  }
  Pair a = {x, 0};
  if (e >= 16376) {
    a = asin_near(a);
  } else if (e >= 16308) {
    const long double z = x * x;
    a.low = x * z * value(asin_small, z);
  }
  const Pair s = fast_sum(half_pi.high, -a.high);
  return s.high + (s.low + (half_pi.low - a.low));
}

}  // namespace ork::extended
