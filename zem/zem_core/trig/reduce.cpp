// Reduction modulo pi/2 in extended precision, for arguments of any size.
#include <stdint.h>

#include "base/control.hpp"
#include "base/export.hpp"
#include "ork/zem_scalar.h"

namespace ork {
namespace {

alignas(16) const double reduction_table[70] = {
#include "trig/reduction_table.inc"
};
const double* const sign_row = reduction_table + 2;
const double* const quarter_pi_two = reduction_table + 6;
const double* const quarter_pi_four = reduction_table + 10;
const double* const quarter_pi_five = reduction_table + 14;
const double* const four_over_pi = reduction_table + 20;

constexpr int part_limit = 1052;  // biased exponent: 2^29 <= |x| < 2^30
constexpr int four_limit = 1045;  // 2^22 <= |x| < 2^23

// An unevaluated sum; the second term takes the rounding errors of the first.
struct Wide {
  long double sum, error;
  void add(long double term) {
    const long double s = sum + term, part = s - sum;
    error += (sum - (s - part)) + (term - part);
    sum = s;
  }
};

int quadrant(int m, int sign) { return ((1 - 2 * sign) * ((m + 1) >> 1)) & 3; }

void store(double* reduced, long double high, long double low, int sign) {
  const double r = (double)(high + low);
  reduced[0] = r * sign_row[sign];
  reduced[1] = (double)((high - r) + low) * sign_row[sign];
}

// |x| < 2^30: n = the even integer next to |x| * 4/pi; |x| - n * pi/4 part by part.
int subtract_parts(double ax, int exponent, int sign, double* reduced) {
  const double y = ax * reduction_table[8];
  const uint64_t image = as<uint64_t>(y);
  const int y_exponent = (int)(image >> 52) - 1023;
  const uint32_t top = (uint32_t)(image >> 21) | 0x80000000u;
  const int m = y_exponent < 0 ? 0 : (int)(top >> (31 - y_exponent));
  const int n = m + (m & 1);

  const bool five = exponent > four_limit;
  const double* part = five ? quarter_pi_five : quarter_pi_four;
  Wide r{ax, 0};
  for (int k = 0; k < (five ? 5 : 4); ++k) r.add(-(long double)n * part[k]);
  store(reduced, r.sum, r.error, sign);
  return quadrant(m, sign);
}

// x - 8 * round(x / 8), exact for |x| < 2^65: 1.5 * 2^66 has an ulp of 8.
long double modulo_8(long double x) {
  constexpr long double shift = 0x1.8p66L;
  return x - ((x + shift) - shift);
}

// |x| >= 2^30, in units of pi/4: with x in two halves and 4/pi in chunks of 25 bits every
// product is exact. A chunk whose products are all multiples of 8 is left out, as is the one
// of the upper half with the first chunk.
int multiply(double ax, int exponent, int sign, double* reduced) {
  const double x = ax * 0x1p-200;
  const double high = as<double>(as<uint64_t>(x) & ~((uint64_t{1} << 27) - 1)), low = x - high;
  const double* chunk = four_over_pi + ((exponent - part_limit) * 83886 >> 21);

  Wide turn{modulo_8((long double)low * chunk[0]), 0};
  for (int k = 1; k <= 8; ++k) {
    turn.add(modulo_8((long double)high * chunk[k]));
    turn.add(modulo_8((long double)low * chunk[k]));
  }

  turn.sum = modulo_8(turn.sum);
  int m = (int)turn.sum;
  if (m > turn.sum) --m;  // floor
  const double even = m - reduction_table[m & 1];
  const long double top = turn.sum - even;  // exact
  const long double fraction = top + turn.error, rest = (top - fraction) + turn.error;

  const long double split = fraction * reduction_table[4];
  const long double head =
      split - (split - fraction);  // 38 bits: head * pi/4's first part is exact
  const long double tail = (fraction - head) + rest;
  store(reduced, head * quarter_pi_two[0],
        tail * quarter_pi_two[0] + (head + tail) * quarter_pi_two[1], sign);
  return quadrant(m & 7, sign);
}

// Apart from the entry, so that no arithmetic moves across the control-word change.
__attribute__((noipa)) int reduce(double x, double* reduced) {
  const uint64_t image = as<uint64_t>(x);
  const int exponent = (int)(image >> 52) & 0x7FF, sign = (int)(image >> 63);
  const double ax = __builtin_fabs(x);
  return exponent < part_limit ? subtract_parts(ax, exponent, sign, reduced)
                               : multiply(ax, exponent, sign, reduced);
}

}  // namespace
}  // namespace ork

ORK_EXPORT int ork_zem_kernel_reduce_pio2d(double x, double* reduced) {
  const ork::X87Guard<ork::x87_extended> x87;
  return ork::reduce(x, reduced);
}
