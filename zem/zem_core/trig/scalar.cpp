// Sine, cosine and tangent of one double, any argument.
//   x = k pi/2 + r + r_lo (only from 2^17 on), r = j pi/32 + z + low, |z| <= pi/64,
//   sin(a + z + low) from a row for a and Taylor polynomials in z (below 2^-70 of the result)
// Bound: 0.52 ulp, tangent 0.55 ulp.
#include "trig/scalar.hpp"

#include "base/export.hpp"
#include "base/round.hpp"
#include "trig/table.hpp"

namespace ork::trig {
namespace {

constexpr int tiny = 771;    // biased exponent: below, sin x = tan x = x
constexpr int large = 1040;  // from here on, reduced first: 2^17

int biased_exponent(double x) { return (int)(as<uint64_t>(x) >> 52) & 0x7FF; }

// What pi/32 exceeds its three parts by: an ulp's fraction next to multiples of pi/2.
constexpr double fourth_part = 6.30365877242032e-39;

struct Split {
  unsigned j;
  double z, low, s_poly, c_poly;
};

Split split(double x, int exponent) {
  double r[2] = {x, 0};
  const unsigned quadrant = exponent >= large ? (unsigned)ork_zem_kernel_reduce_pio2d(x, r) : 0;

  constexpr double shifter = integer_shifter<double>;
  const double t = r[0] * 10.185916357881302 + shifter, n = t - shifter;
  const double u = r[0] - n * 0.09817477042088285, second = n * 3.798187816439979e-12;
  const double z1 = u - second;
  // Next to a multiple of pi/2 the third product is as large as z.
  const double third = n * 1.2639164054974691e-22, z = z1 - third;
  const double low = ((u - z1) - second) + ((z1 - z) - third) + (r[1] - n * fourth_part);

  const double z2 = z * z;
  const double c_poly =
      z2 * (-0.5 +
            z2 * (0.041666666666666664 + z2 * (-0.001388888888888889 + z2 * 2.48015873015873e-5)));
  const double s_poly =
      z2 * (-0.16666666666666666 + z2 * (0.008333333333333333 + z2 * (-0.0001984126984126984 +
                                                                      z2 * 2.7557319223985893e-6)));
  return {16 * quadrant + (unsigned)as<uint64_t>(t), z, low, s_poly, c_poly};
}

Pair<double> sine_of(const Split& x, unsigned turn) {
  const Row& row = rows_pi32[(x.j + turn) & 63];
  return table_sine(Angle<double>{row.c_lo, row.s_hi, row.s_lo, row.c_hi}, x.z, x.low, x.s_poly,
                    x.c_poly);
}
constexpr unsigned quarter = 16;  // rows

double value(const Pair<double>& p) { return p.high + p.low; }

// x with the inexact flag raised, and underflow where it applies.
double tiny_sine(double x) { return x == 0 ? x : (0x1p55 * x - x) * 0x1p-55; }
double not_finite(double x) { return __builtin_isinf(x) ? x * 0.0 : x * x; }

// s / c: the quotient of the high parts, and the remainder's share.
double ratio(Pair<double> s, Pair<double> c) {
  s = exact_sum(s.high, s.low);
  c = exact_sum(c.high, c.low);
  const double q = s.high / c.high;
  const Pair<double> p = exact_product(q, c.high);
  return q + (((s.high - p.high) - p.low) + (s.low - q * c.low)) / c.high;
}

}  // namespace
}  // namespace ork::trig

using namespace ork::trig;

ORK_EXPORT double _dSin(double x) {
  const int exponent = biased_exponent(x);
  if (exponent < tiny) return tiny_sine(x);
  if (exponent == 0x7FF) return not_finite(x);
  return value(sine_of(split(x, exponent), 0));
}

ORK_EXPORT double _dCos(double x) {
  const int exponent = biased_exponent(x);
  if (exponent < tiny) return 1.0 - __builtin_fabs(x);
  if (exponent == 0x7FF) return not_finite(x);
  return value(sine_of(split(x, exponent), quarter));
}

ORK_EXPORT void _dSinCos(double x, double* sine, double* cosine) {
  const int exponent = biased_exponent(x);
  if (exponent < tiny) {
    *sine = tiny_sine(x);
    *cosine = 1.0 - __builtin_fabs(x);
  } else if (exponent == 0x7FF) {
    *sine = *cosine = not_finite(x);
  } else {
    const Split s = split(x, exponent);
    *sine = value(sine_of(s, 0));
    *cosine = value(sine_of(s, quarter));
  }
}

ORK_EXPORT double _dTan(double x) {
  const int exponent = biased_exponent(x);
  if (exponent < tiny) return tiny_sine(x);
  if (exponent == 0x7FF) return not_finite(x);
  const Split s = split(x, exponent);
  return ratio(sine_of(s, 0), sine_of(s, quarter));
}
