#pragma once
// The logarithm of the HA inverse hyperbolics, double, on the x87 unit: for the elements which
// two words leave open.
#include "areas/log_rows.hpp"
#include "base/vec.hpp"

namespace ork {

// ln(1 + r) = r + r^2 (c0 + ... + c4 r^4), frozen: off by at most 2^-69.1 for 0 <= r < 2^-8.
inline constexpr double ln_tail[] = {-0.4999999999999955, 0.33333333331983062, -0.24999998524219055,
                                     0.19999270610222492, -0.16500333306925632};

// ln y = k ln 2 + T_j + ln(1 + r), r = y 2^-k c_j - 1, for 1 <= y < 2^1022. Off by less than
// 2^-64 (y c is rounded at 1) and 3.4 * 2^-64 of the result.
inline long double ln_extended(long double y) {
  // The high half of the mantissa, and the exponent.
  struct {
    long double y;
  } image = {y};
  uint32_t mantissa;
  uint16_t exponent;
  __builtin_memcpy(&mantissa, (const char*)&image + 4, sizeof mantissa);
  __builtin_memcpy(&exponent, (const char*)&image + 8, sizeof exponent);
  const double* const row = log_rows_d[mantissa >> 23 & 0xFF];
  const int k = exponent - 0x3FFF;
  const long double r = y * (row[2] * as<double>((uint64_t)(1023 - k) << 52)) - 1.0L;
  const auto& c = ln_tail;
  const long double p = r * (c[0] + r * (c[1] + r * (c[2] + r * (c[3] + r * c[4]))));
  return (k * 0.693147180559945309417232L + row[0]) + ((r + r * p) + row[1]);
}

// ln 2y, for y too large for the function above: the scale comes out again.
inline long double ln_twice_extended(long double y) {
  return ln_extended(y * 0x1p-200L) + 201 * 0.693147180559945309417232L;
}

}  // namespace ork
