#pragma once
// x^(3/2). x = 2^(2(q - q0) + odd) m, m = c_j (1 + r), c_j = 1 + (2j + 1)/64, |r| <= 2^-6:
// S T (1 + r P(r)), T = (c_j 2^odd)^(3/2), S = 2^(3(q - q0)), q = (exponent - 1) div 2.
#include "frame/level.hpp"
#include "ork/zem_kernels.h"
#include "roots/reduce.hpp"

namespace ork {

alignas(16) inline constexpr double pow3o2_rows[64][2] = {
#include "roots/pow3o2/rows.inc"
};
alignas(16) inline constexpr CbrtPair<double> pow3o2_pairs[64] = {
#include "roots/pow3o2/pairs.inc"
};

// Special values of both types. True if x is none of them.
template <class T>
ORK_INLINE bool pow3o2_is_positive(const T* x, T* r, int& status) {
  status = ZEM_STATUS_NONE;
  if (magnitude(x) > infinity_bits<T>) {
    *r = *x + *x;        // the input, quiet
  } else if (*x == 0) {  // also a denormal that counts as zero
    *r = 0;
  } else if (sign(x)) {
    const bits_of<T> nan = domain_nan<T>;
    __builtin_memcpy(r, &nan, sizeof nan);
    status = ZEM_STATUS_DOMAIN;
  } else {
    return true;
  }
  return false;
}

// Double. HA: T in two parts, P to degree 7; within 0.53 ulp. LA: T in one word, a fit of degree 5.
// EP: the first 3 terms, relative error 2^-29. The scale, a power of two, multiplies the sum: no
// part of it is denormal before.
// Fast: 2^-680 <= x < 2^681. special: the rest; above it the result is x^2, infinity.
template <Level level>
struct Pow3o2D : Core<double> {
  static constexpr char name[] = "vdPow3o2";
  static constexpr int vectors = 1;

  ORK_INLINE f64x2 eval(f64x2 x, u32x4& rare) {
    const u32x4 image = as<u32x4>(x);
    rare |= (image - 0x15700000) | (0x6A7FFFFF - image);
    f64x2 low, s;
    const f64x2 high = parts(x, low, s);
    return (high + low) * s;
  }
  // The result as a sum, T and the rest, times s.
  ORK_INLINE f64x2 parts(f64x2 x, f64x2& rest, f64x2& s) {
    // 32 exponent + j. The exponent less 1 is odd where the exponent is even.
    const u32x4 index = as<u32x4>(as<u64x2>(x) >> 47);
    const u32x4 row = (index ^ 32) & 63;
    const u64x2 q = as<u64x2>((index - u32x4{32, 0, 32, 0}) >> 6);
    s = as<f64x2>((q + q + q - splat_u64(510)) << 52);
    const f64x2 m = or_bits(and_bits(x, splat_u64(0x000FFFFFFFFFFFFF)), as<u64x2>(splat(1.0)));
    const f64x2 c = or_bits(and_bits(x, splat_u64(0x000F800000000000)), as<u64x2>(splat(1.015625)));
    const unsigned row0 = row[0], row1 = word<4>(row);
    if constexpr (level == Level::ha) {
      constexpr double k[] = {
#include "roots/pow3o2/series_ha.inc"
      };
      f64x2 high, low;
      gather_pairs(pow3o2_rows[row0], pow3o2_rows[row1], high, low);
      const f64x2 r = (m - c) * gather(&cbrt_reciprocals[row0 % 32], &cbrt_reciprocals[row1 % 32]);
      const f64x2 p = r * horner(r, 1.5, 0.375, -0.0625, 0.0234375, k[0], k[1], k[2], k[3]);
      rest = low + high * p;
      return high;
    }
    f64x2 value, reciprocal;
    gather_pairs(&pow3o2_pairs[row0].t, &pow3o2_pairs[row1].t, value, reciprocal);
    const f64x2 r = (m - c) * reciprocal;
    if constexpr (level == Level::la) {
      constexpr double k[] = {
#include "roots/pow3o2/series_la.inc"
      };
      rest = (value * r) * horner(r, k[0], k[1], k[2], k[3], k[4], k[5]);
    } else {
      rest = (value * r) * horner(r, 1.5, 0.375, -0.0625);
    }
    return value;
  }
  static int special(const double* x, double* r) {
    int status;
    if (!pow3o2_is_positive(x, r, status)) return status;
    const uint32_t high = (uint32_t)(image(x) >> 32);
    if (high < 0x132FF000 || high >= 0x6A800000) {
      *r = *x * *x;
    } else {
      // Below 2^-932 the sum is rounded where the last bit of a denormal will be, at 2^-984.
      f64x2 low, s;
      const double high = (parts(splat(*x * 0x1p60), low, s) * s)[0];
      const double small = (low * s)[0];
      const double grid = high + small < 0x1p-932 ? 0x1p-932 : 0.0;
      const double sum = grid + high, rest = (high - (sum - grid)) + small;
      *r = (sum + rest - grid) * 8.077935669463161e-28;  // 2^-90
    }
    return ZEM_STATUS_NONE;
  }
};

}  // namespace ork
