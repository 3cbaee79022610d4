// ErfInv of one element outside the table: the ends of the domain, and x sqrt(pi)/2 near 0.
#include "base/image.hpp"
#include "error_functions/erfinv/erfinv.hpp"

namespace ork {
namespace {

// x sqrt(pi)/2 for 0 < |x| < 2^-35, rounded once. The constant's parts: 0.88623046875 is short,
// so that its product with the high half of x is exact.
double scaled(const double* a) {
  const double x = *a * 0x1p256;
  const double x_hi = (x * 103079215105.0) - (x * 103079215104.0);  // 17 bits
  const double x_lo = x - x_hi;
  const double high = x_hi * 0.88623046875;
  const double low = x_lo * 0.88623046875 + x * -3.543297241986351e-6;
  const double sum = high + low;
  if (__builtin_fabs(sum) >= 2.5764595078388533e-231) return sum * 0x1p-256;
  // A denormal: rounded to a multiple of 2^-1074, scaled; what `sum` lost decides its ties.
  constexpr double place = 0x1p-818;
  const double lost = (high - sum) + low;
  const double unit = as<double>(sign(a) | 0x1010000000000000);  // 2^52 places
  const double whole = (unit + sum) - unit, left = sum - whole;
  const double step = left == place / 2 && lost > 0    ? place
                      : left == -place / 2 && lost < 0 ? -place
                                                       : 0;
  return (whole + step) * 0x1p-256;
}

}  // namespace

int erfinv_rare(const double* a, double* r) {
  const uint64_t m = magnitude(a);
  if (m == infinity_bits<double>) {
    *r = as<double>(domain_nan<double>);
    return ZEM_STATUS_DOMAIN;
  }
  if (m > infinity_bits<double>) {
    *r = *a + *a;
    return ZEM_STATUS_NONE;
  }
  if (m == 0) {
    *r = *a;
    return ZEM_STATUS_NONE;
  }
  if (m < 0x3DC0000000000000) {
    *r = scaled(a);
    return ZEM_STATUS_NONE;
  }
  if (m == 0x3FF0000000000000) {
    *r = as<double>(infinity_bits<double> | sign(a));
    return ZEM_STATUS_SINGULARITY;
  }
  *r = as<double>(domain_nan<double>);
  return ZEM_STATUS_DOMAIN;
}

int erfinv_rare(const float* a, float* r) {
  const uint32_t m = magnitude(a);
  if (m > infinity_bits<float>) {
    *r = *a + *a;
    return ZEM_STATUS_NONE;
  }
  if (m == 0x3F800000) {
    *r = as<float>(infinity_bits<float> | sign(a));
    return ZEM_STATUS_SINGULARITY;
  }
  *r = as<float>(domain_nan<float>);
  return ZEM_STATUS_DOMAIN;
}

}  // namespace ork
