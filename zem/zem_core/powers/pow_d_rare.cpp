#include "powers/pow_d.hpp"

namespace ork {
namespace {

double power_of_two(int n) { return as<double>((uint64_t)(n + 1023) << 52); }

// a^b for finite a > 0, b != 0 with any exponents: the main path's logarithm and power, results
// outside the normal range rounded once. The flags are those of the last operation.
double pow_general(double a, double b, bool negative) {
  volatile double tiny = 0x1p-1022, huge = 0x1p1023;
  const double one = negative ? -1.0 : 1.0;
  const bool denormal = as<uint64_t>(a) < 0x0010000000000000;
  const Pair<f64x2> l = pow_log2(splat(denormal ? a * 0x1p54 : a), denormal ? 54 : 0);
  const auto exponent = [](double x) { return (int)(as<uint64_t>(x) >> 52 & 0x7FF); };
  const int size = exponent(b) + exponent(l.high[0]);
  if (size <= 1984) return one + tiny * one;  // |q| < 2^-60
  const bool grows = (b < 0) == (l.high[0] < 0);
  if (size >= 2057) return grows ? huge * huge * one : tiny * tiny * one;

  const f64x2 exponents = splat(b), high = upper_half(exponents);
  f64x2 t;
  const Pair<f64x2> r = pow_exp2(pow_product(exponents, high, exponents - high, l), t);
  const int n = (int32_t)as<u32x4>(t)[0] >> 7;
  const double hi = r.high[0], lo = r.low[0];
  if (n > 1024) return huge * huge * one;
  if (n < -1084) return tiny * tiny * one;
  if (n > 1000) return (hi + lo) * power_of_two(n - 1) * 2.0 * one;
  if (n > -1022 || (n == -1022 && hi + lo >= 1)) return (hi + lo) * power_of_two(n) * one;
  // The sum is rounded once, where the last bit of a denormal will be: at 2^-52.
  const double up = power_of_two(n + 1022), scaled = hi * up;
  const double sum = 1.0 + scaled, rest = scaled - (sum - 1.0) + lo * up;
  return (sum + rest - 1.0) * 0x1p-1022 * one + tiny * tiny * one;
}

}  // namespace

int pow_rare(const double* a, const double* b, double* r) {
  return pow_special(a, b, r, pow_general);
}

}  // namespace ork
