#pragma once
// The exponential step, which the hyperbolic functions share.
#include "heap/real/extended.hpp"
#include "ork/zem_extended.h"

namespace ork::extended {

#include "heap/real/exp.inc"

// exp(x) = (high + low) 2^m, high a row of the table, |low| < 2^-9 high, for |x| < 11500: x is
// reduced to |r| <= ln 2 / 512. Within 2^-72 of the value.
struct Power {
  long double high, low;
  int m;
};
ORK_INLINE Power exp_step(long double x) {
  const long double shifted = x * per_256th + shifter, n = shifted - shifter;
  const int count = (int)low_word(shifted), j = (int8_t)count;
  const long double r = (x - n * ln2_256_high) - n * ln2_256_low;
  const double* row = ork_zem_core_expl_table_256[j + 128];
  const long double p = r + r * r * value(exp_step_series, r);
  return {row[0], row[1] + (row[0] + (long double)row[1]) * p, (count - j) >> 8};
}

// exp(x) for |x| < 2^11, tiers by exponent; the argument isn't a NaN or infinity.
ORK_INLINE long double exp_moderate(long double x) {
  const int e = exponent(x);
  if (__builtin_expect(e >= 16378, 1)) {
    const Power p = exp_step(x);
    return scale_near(p.high + p.low, p.m);
  }
  if (e < 16316) return 1 + x;
  const long double head = 1 + x, lost = x - (head - 1);
  if (e >= 16372) return head + (lost + x * x * value(exp_small, x));
  if (e >= 16365) return head + (lost + x * x * partial<4>(exp_small, x));
  if (e >= 16357) return head + (lost + x * x * partial<2>(exp_small, x));
  return head + (lost + x * x * 0.5L);
}

// sinh and cosh in two words, |x| in [1/2, 32): from 2^m and 2^-m times rows j and -j.
struct Hyperbolic {
  Pair sinh, cosh;
};
ORK_INLINE Hyperbolic hyperbolic_step(long double x) {
  const long double shifted = x * per_256th + shifter, n = shifted - shifter;
  const int count = (int)low_word(shifted), j = (int8_t)count, m = (count - j) >> 8;
  const long double r = (x - n * ln2_256_high) - n * ln2_256_low, z = r * r;
  const long double c = z * value(cosh_step, z), s = r + r * z * value(sinh_step, z);
  const double *up = ork_zem_core_expl_table_256[128 + j],
               *down = ork_zem_core_expl_table_256[128 - j];
  // Half of exp(n step) and of its inverse.
  const float a = power_of_two(m - 1), b = power_of_two(-m - 1);
  const Pair rise = {up[0] * (long double)a, up[1] * (long double)a};
  const Pair fall = {down[0] * (long double)b, down[1] * (long double)b};
  const Pair sum = fast_sum(rise.high, fall.high), gap = fast_sum(rise.high, -fall.high);
  const long double sum_lo = sum.low + (rise.low + fall.low),
                    gap_lo = gap.low + (rise.low - fall.low);
  const long double whole = sum.high + sum_lo, difference = gap.high + gap_lo;
  // sinh(a + r) = sinh a cosh r + cosh a sinh r.
  return {{gap.high, (difference * c + whole * s) + gap_lo},
          {sum.high, (whole * c + difference * s) + sum_lo}};
}

// exp(|x|) / 2 for |x| >= 26.15, where the other exponential counts for less than 2^-75.
ORK_INLINE long double half_exp(long double a) {
  if (__builtin_expect(a < 2048, 1)) {
    const Power p = exp_step(a);
    return scale_near(p.high + p.low, p.m - 1);
  }
  if (a > 0xB.174DDC031AEC0EAp10L) return overflow();  // about 11357.2
  const Power p = exp_step(a);
  return (p.high + p.low) * 0x1p8191L * wide_power_of_two(p.m - 8192);
}

// Both for any finite or infinite argument; a NaN gives NaNs.
struct SinhCosh {
  long double sinh, cosh;
};
ORK_INLINE SinhCosh sinh_cosh(long double x) {
  const int e = exponent(x);
  const bool minus = negative(x);
  const long double a = size(x);
  if (__builtin_expect(e >= 16382, 1)) {
    if (__builtin_expect(e < 16388 && a < 26.15625L, 1)) {
      const Hyperbolic h = hyperbolic_step(a);
      return {with_sign(h.sinh.high + h.sinh.low, minus), h.cosh.high + h.cosh.low};
    }
    if (e == special_exponent) return {quieted(x), is_nan(x) ? quieted(x) : a};
    const long double both = half_exp(a);
    return {with_sign(both, minus), both};
  }
  if (e < 16308) return {tiny(x), 1};
  const long double z = x * x;
  if (e >= 16378) return {odd_partial<8>(sinh_middle, x), 1 + z * value(cosh_middle, z)};
  if (e >= 16372) return {odd_partial<4>(sinh_small, x), 1 + z * partial<4>(cosh_small, z)};
  if (e >= 16365) return {odd_partial<2>(sinh_small, x), 1 + z * partial<2>(cosh_small, z)};
  return {odd_partial<1>(sinh_small, x), 1 + z * 0.5L};
}

}  // namespace ork::extended
