// Natural logarithm of one double, in plain code: for loops that take it of few values, where
// a vector kernel's call and mode do not pay.
//
// x = 2^k z with z in [0.6875, 1.375), cut into 128 intervals; c is near 1/z and r = z c - 1,
// exactly, with |r| <= 2^-7: ln x = k ln 2 - ln c + ln(1 + r). Beside x = 1 c is 1, so the
// result has its full relative accuracy there: 0.52 ulp throughout.
#pragma once
#include <stdint.h>

#include "frame/vec.hpp"

namespace ork {

struct LnRow {
  double c, high, low;
};
static constexpr LnRow kLnRows[128] = {
#include "rua_sub_kernel/math/ln_rows.inc"
};

inline double ln(double x) {
  // ln 2 to a multiple of 2^-42, so that k of it and a row's high part add exactly.
  constexpr double ln2_high = 0x1.62E42FEFA38p-1, ln2_low = 0x1.EF35793C7673p-45;
  uint64_t image = as<uint64_t>(x);
  int k = 0;
  if (__builtin_expect(image - 0x0010000000000000 >= 0x7FE0000000000000, 0)) {
    // Not positive, normal and finite.
    if (image << 1 == 0) return -__builtin_inf();
    if (image == 0x7FF0000000000000 || x != x) return x + x;
    if (image >> 63) return __builtin_nan("");
    image = as<uint64_t>(x * 0x1p54);
    k = -54;
  }
  const uint32_t high_word = uint32_t(image >> 32), from_lowest = high_word - 0x3FE60000;
  k += int32_t(from_lowest) >> 20;
  const LnRow& row = kLnRows[from_lowest >> 13 & 127];
  const uint64_t z_image = uint64_t(high_word - (from_lowest & 0xFFF00000)) << 32 | uint32_t(image);
  const double z = as<double>(z_image), z_high = as<double>(z_image & 0xFFFFFFFF00000000);
  // Every step is exact: c has 8 bits, z_high 21.
  const double r = (z_high * row.c - 1) + (z - z_high) * row.c;
  const double rr = r * r;
  // ln(1 + r) = r + r^2 q; the first term left out is r^9/9, below 2^-59 of r.
  const double q =
      (-1.0 / 2 + r * 0x1.5555555555555p-2) +
      rr * ((-1.0 / 4 + r * 0x1.999999999999Ap-3) +
            rr * ((-0x1.5555555555555p-3 + r * 0x1.2492492492492p-3) - rr * (1.0 / 8)));
  const double whole = k * ln2_high + row.high;
  const double sum = whole + r;  // |whole| > |r| or 0
  const double rest = (whole - sum) + r + (k * ln2_low + row.low);
  return sum + (rest + rr * q);
}

}  // namespace ork
