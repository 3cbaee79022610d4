// Expm1 of one element beyond the fast range: -1 below, e^x above, where e^x - 1 rounds to it.
#include "base/image.hpp"
#include "base/round.hpp"
#include "common/exp_tables.hpp"
#include "exponentials/expm1/expm1.hpp"

namespace ork {
namespace {

// x > 0, not above the overflow limit. N = 64, T_hi + (T_lo + (T_hi + T_lo) p): T_lo reaches
// 2^-45, so that its product with p counts. p is frozen, of degree 6: e^r to 2^-70.2 for
// |r| <= ln 2/128.
double exp_of_large(double x) {
  const double t = x * 92.33248261689366 + integer_shifter<double>, n = t - integer_shifter<double>;
  const double r = x - n * 0.010830424696223417 - n * 2.572804622327669e-14;
  const double p = r + r * r *
                           horner(r, 0.5, 0.1666666666665788, 0.04166666666677052,
                                  0.008333341995140497, 0.0013888870459233254);
  const uint32_t image = (uint32_t)as<uint64_t>(t);
  const double* const row = exp_split64_d[image & 63];
  const double v = row[0] + (row[1] + (row[0] + row[1]) * p);
  const uint64_t exponent = (image >> 6) + 1023;
  if (exponent >= 2047) return v * as<double>((exponent - 1) << 52) * 2.0;
  return v * as<double>(exponent << 52);
}

template <class T>
int rare(const T* a, T* out, T limit, T largest) {
  if (sign(a) && magnitude(a) <= infinity_bits<T>) {
    *out = T(-1);
    return 0;
  }
  const T x = *a;
  if (magnitude(a) >= infinity_bits<T>) {
    *out = x * x;
    return 0;
  }
  if (x > limit) {
    volatile T huge = largest;
    *out = huge * huge;
    return ZEM_STATUS_OVERFLOW;
  }
  *out = (T)exp_of_large(x);
  return 0;
}

}  // namespace

int expm1_rare(const double* a, double* out) { return rare(a, out, 709.782712893384, __DBL_MAX__); }
int expm1_rare(const float* a, float* out) { return rare(a, out, 88.72283172607422f, __FLT_MAX__); }

}  // namespace ork
