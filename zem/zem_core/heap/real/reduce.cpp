// Reduction modulo pi/4 and pi/2, of arguments of any size.
#include "base/export.hpp"
#include "heap/real/trig.hpp"
#include "ork/zem_extended.h"

namespace ork::extended {
namespace {

constexpr uint32_t two_over_pi_words[] = {
#include "heap/real/four_over_pi.inc"
};
constexpr Pair quarter = {0xC90FDAA22168C235p-64L, -0xECE675D1FC8F8CBBp-130L};  // pi/4
constexpr int window = 10;  // words of 2/pi that are multiplied: 320 bits

// a 4/pi modulo 2^32 in fixed point: its whole part and 192 bits behind the point.
struct Octants {
  uint32_t whole;
  uint32_t fraction[6];
};

// a = M 2^(E - 63), M its significand: bits of 2/pi with weights above 2^(65 - E) only make
// multiples of 8, those below the window change the fraction by less than 2^-220. The nearest
// argument to a multiple of pi/4 leaves a fraction above 2^-85.
Octants octants(long double a) {
  const int e = exponent(a) - bias;
  const int first = e > 65 ? (e - 65) / 32 : 0;
  const uint32_t m[2] = {low_word(a), high_word(a)};
  uint32_t p[window + 2] = {};  // M times the window, the lowest word first
  for (int i = 0; i < window; ++i) {
    const uint64_t word = two_over_pi_words[first + window - 1 - i];
    const uint64_t low = word * m[0] + p[i];
    const uint64_t high = word * m[1] + (low >> 32) + p[i + 1];
    p[i] = (uint32_t)low;
    p[i + 1] = (uint32_t)high;
    p[i + 2] = (uint32_t)(high >> 32);
  }
  // The binary point stands 64 + E - 62 - 32 first bits below the top.
  const int point = 2 + e - 32 * first;
  const auto bits_at = [&](int position) -> uint32_t {  // 32 bits from there on
    const int word = position >> 5, shift = position & 31;
    const auto at = [&](int k) { return k >= 0 && k < window + 2 ? p[window + 1 - k] : 0; };
    return (uint32_t)(((uint64_t)at(word) << 32 | at(word + 1)) >> (32 - shift));
  };
  Octants o;
  o.whole = bits_at(point - 32);
  for (int i = 0; i < 6; ++i) o.fraction[i] = bits_at(point + 32 * i);
  return o;
}

// pi/4 times a signed fraction whose 128 bits after the leading zeros count.
Pair radians(const uint32_t (&fraction)[6], bool minus) {
  uint32_t f[7] = {};
  uint32_t carry = minus;
  for (int i = 5; i >= 0; --i) {
    const uint64_t word = (uint64_t)(minus ? ~fraction[i] : fraction[i]) + carry;
    f[i] = (uint32_t)word;
    carry = (uint32_t)(word >> 32);
  }
  if (carry) return {-quarter.high, -quarter.low};  // an argument below 2^-190
  int skip = 0;
  while (skip < 3 && f[skip] == 0) ++skip;
  long double hi = 0, lo = 0, unit = wide_power_of_two(-32 * skip - 32);
  for (int i = skip; i < 6; ++i, unit *= 0x1p-32L) {
    const Pair s = fast_sum(hi, f[i] * unit);
    hi = s.high;
    lo += s.low;
  }
  const Pair r = product(hi, quarter.high);
  const Pair s = fast_sum(r.high, r.low + (hi * quarter.low + lo * quarter.high));
  return minus ? Pair{-s.high, -s.low} : s;
}

}  // namespace

Reduced reduce_large(long double a) {
  const Octants o = octants(a);
  return {radians(o.fraction, o.whole & 1), (o.whole + 1) >> 1};
}

}  // namespace ork::extended

using namespace ork::extended;

ORK_EXPORT int ork_zem_kernel_reduce_pi04l(long double x, int s, double* out) {
  if (x < 0.5L && !(s & 1)) {
    out[0] = (double)x;
    out[1] = (double)(x - out[0]);
    return 0;
  }
  const Octants o = octants(x);
  const uint32_t up = (o.whole + (uint32_t)s) & 1;
  const Pair r = radians(o.fraction, up);
  out[0] = (double)r.high;
  out[1] = (double)((r.high - out[0]) + r.low);
  return (int)(o.whole + up);
}
