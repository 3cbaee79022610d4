// LGamma and TGamma: special values, factorials, zeros, interval borders, denormal results.
#include <quadmath.h>

#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/directed.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

const Limits half_ulp = {{0.55, 0.55, 0.55}, {false, false, false}};
const Limits lgamma_d = {{0.7, 0.7, 0.7}, {false, false, false}};

template <class T>
std::vector<SpecialCase<T>> special_lgamma() {
  const T nan = quiet_nan<T>, none = std::numeric_limits<T>::signaling_NaN();
  const int pole = ZEM_STATUS_SINGULARITY;
  return {{nan, nan},
          {none, nan},
          {inf<T>, inf<T>},
          {-inf<T>, inf<T>},
          {T(0), inf<T>, pole},
          {-T(0), inf<T>, pole},
          {T(1), T(0)},
          {T(2), T(0)},
          {T(-1), inf<T>, pole},
          {T(-3), inf<T>, pole},
          {T(-4096), inf<T>, pole},
          {-T(1) / std::numeric_limits<T>::epsilon(), inf<T>, pole},
          {-largest<T>, inf<T>, pole},
          {largest<T>, inf<T>, ZEM_STATUS_OVERFLOW}};
}

TEST(LGamma, SpecialDouble) {
  auto cases = special_lgamma<double>();
  cases.push_back({2.6e305, inf<double>, ZEM_STATUS_OVERFLOW});
  cases.push_back({from_bits<double>(0x7F5754D9278B51A8), inf<double>, ZEM_STATUS_OVERFLOW});
  cases.push_back({smallest_denormal<double>, 744.4400719213812});
  cases.push_back({-smallest_denormal<double>, 744.4400719213812});
  for (int level = 0; level < 3; ++level)
    check_special<double>({"LGamma", level, "vdLGamma", 0.75, 0, cases});
}
TEST(LGamma, SpecialSingle) {
  auto cases = special_lgamma<float>();
  cases.push_back({from_bits<float>(0x7C44AF8E), inf<float>, ZEM_STATUS_OVERFLOW});
  cases.push_back({from_bits<float>(0x7C44AF8D), from_bits<float>(0x7F7FFFFE)});
  cases.push_back({smallest_denormal<float>, 103.27893f});
  for (int level = 0; level < 3; ++level)
    check_special<float>({"LGamma", level, "vsLGamma", 0.75f, 0, cases});
}

template <class T>
std::vector<SpecialCase<T>> special_tgamma() {
  const T nan = quiet_nan<T>;
  const int domain = ZEM_STATUS_DOMAIN, over = ZEM_STATUS_OVERFLOW;
  return {{nan, nan},
          {inf<T>, inf<T>},
          {-inf<T>, nan, domain},
          {T(0), inf<T>, ZEM_STATUS_SINGULARITY},
          {-T(0), -inf<T>, ZEM_STATUS_SINGULARITY},
          {T(1), T(1)},
          {T(2), T(1)},
          {T(5), T(24)},
          {T(-1), nan, domain},
          {T(-2), nan, domain},
          {T(-200), nan, domain},
          {-largest<T>, nan, domain},
          {T(172), inf<T>, over},
          {largest<T>, inf<T>, over},
          {smallest_denormal<T>, inf<T>, over},
          {-smallest_denormal<T>, -inf<T>, over}};
}

TEST(TGamma, SpecialDouble) {
  auto cases = special_tgamma<double>();
  // The first double with a result beyond the range; the one below has one within it.
  cases.push_back({171.62437695630274, inf<double>, ZEM_STATUS_OVERFLOW});
  cases.push_back({-186.5, -0.0});
  cases.push_back({-185.5, 0.0});
  cases.push_back({-184.5, -0.0});
  cases.push_back({-4503599627370495.5, 0.0});
  for (int level = 0; level < 3; ++level)
    check_special<double>({"TGamma", level, "vdTGamma", 0.75, 0, cases});
}
TEST(TGamma, SpecialSingle) {
  const int under = ZEM_STATUS_UNDERFLOW;
  auto cases = special_tgamma<float>();
  cases.push_back({from_bits<float>(0x420C2910), inf<float>, ZEM_STATUS_OVERFLOW});
  cases.push_back({-45.5f, 0.0f, under});
  cases.push_back({-44.5f, -0.0f, under});
  cases.push_back({-4194303.5f, 0.0f, under});
  cases.push_back({-36.5f, float(tgammaq(-36.5Q)), under});  // denormal
  for (int level = 0; level < 3; ++level)
    check_special<float>({"TGamma", level, "vsTGamma", 0.75f, 0, cases});
}

// 170! and all below (single: 34!): the quad product, rounded once, is n! to the last place of
// a double.
TEST(TGamma, Factorials) {
  quad factorial = 1;
  for (int n = 1; n <= 170; ++n) {
    factorial *= n;
    const double x = n + 1;
    double r;
    _zemdTGamma_HA(1, &x, &r);
    EXPECT_EQ(r, double(factorial)) << n;
    if (n > 34) continue;
    const float s = float(x);
    float y;
    _zemsTGamma_HA(1, &s, &y);
    EXPECT_EQ(y, float(factorial)) << n;
  }
}

template <class T>
std::vector<T> without_poles(std::vector<T> points) {
  std::erase_if(points, [](T x) { return x <= 0 && x == std::floor(x); });
  return points;
}

// Both sides of each border between polynomials, of every integer and half of interest.
template <class T>
std::vector<T> borders(double step, double last) {
  std::vector<T> centres = {T(0.875), T(1.25), T(1.75), T(2.25), T(0.5), T(0.25)};
  for (double x = step; x <= last; x += step) centres.push_back(T(x));
  return neighbours(centres, 3);
}

TEST(LGamma, Positive) {
  std::vector<double> points = borders<double>(0.5, 40) +
                               neighbours<double>({64, 128, 256, 512, 2.5e305}, 5) +
                               spread<double>(0, 5, 3000) + spread<double>(4, 600, 3000);
  std::vector<float> singles = borders<float>(0.5, 40) +
                               neighbours<float>({64, 1024, 4096, 8192, 4e36f}, 5) +
                               spread<float>(0, 5, 3000) + spread<float>(4, 9000, 3000);
  for (int e = -1074; e <= 1013; e += 7) points.push_back(std::ldexp(1.37, e));
  for (int e = -149; e <= 120; ++e) singles.push_back(std::ldexp(1.37f, e));
  check_directed<double>("LGamma", lgammaq, without_poles<double>(points), half_ulp);
  check_directed<float>("LGamma", lgammaq, without_poles<float>(singles), half_ulp);
}

// ln |Gamma(x)| beside a zero by the recurrence from 1 + d, d the distance from the integer -n:
// no large terms cancel, and quad precision has 60 bits to spare.
quad lgamma_negative(quad x) {
  const quad n = -rintq(x), d = x + n;
  quad product = d;
  for (quad k = 1; k <= n; k += 1) product *= d - k;
  return lgammaq(1 + d) - logq(fabsq(product));
}

TEST(LGamma, Negative) {
  std::vector<double> zeros = {-2.4570247382208006, -2.7476826467274127};
  for (int n = 3; n <= 17; ++n)
    for (const int side : {-1, 1}) {
      quad d = n == 3 ? (side > 0 ? 0.2523Q : 0.1435Q) : 1 / tgammaq(n + 1);
      for (int i = 0; i < 60; ++i) d *= expq(lgamma_negative(-n + side * d) / 2);
      zeros.push_back(double(-n + side * d));
    }
  // From the zero outwards, past the border of the polynomial around it.
  std::vector<double> points = neighbours(zeros, 4);
  for (const double zero : zeros) {
    const double pole = std::nearbyint(zero);
    for (int k = -40; k <= 40; ++k)
      if (const double x = zero + k / 128.0 * (zero - pole); x != pole) points.push_back(x);
  }
  check_directed<double>("LGamma", lgamma_negative,
                         without_poles<double>(points + spread<double>(-12, -1e-3, 5000)),
                         lgamma_d);
  std::vector<float> singles(zeros.begin(), zeros.begin() + 14);
  check_directed<float>(
      "LGamma", lgamma_negative,
      without_poles<float>(neighbours(singles, 4) + spread<float>(-8.9, -1e-3, 5000)), half_ulp);
  check_directed<double>(
      "LGamma", lgammaq,
      without_poles<double>(neighbours<double>({-600.5, -1e6 - 0.25, -1e12 - 0.5}, 2)), lgamma_d);
}

TEST(TGamma, Positive) {
  std::vector<double> tiny;
  for (int e = -1023; e < 0; e += 9)
    tiny.push_back(std::ldexp(1.37, e)), tiny.push_back(-std::ldexp(1.37, e));
  check_directed<double>(
      "TGamma", tgammaq,
      without_poles<double>(borders<double>(0.5, 171.5) + tiny +
                            neighbours<double>({171.62437695630274 - 6 * 0x1p-45}, 5) +
                            spread<double>(0, 171.6, 5000)),
      half_ulp);
  check_directed<float>(
      "TGamma", tgammaq,
      without_poles<float>(borders<float>(0.5, 34.5) + spread<float>(0, 35, 5000)), half_ulp);
}

// Into the denormals, where the result is rounded once, and to zero.
TEST(TGamma, Negative) {
  std::vector<double> points = spread<double>(-185, -160, 5000) + spread<double>(-160, -0.1, 5000);
  std::vector<float> singles = spread<float>(-45, -30, 3000) + spread<float>(-30, -0.1, 5000);
  for (int n = 1; n < 184; ++n)
    points.push_back(std::nextafter(-n, 0)), points.push_back(std::nextafter(-n, -200));
  for (float n = 1; n < 45; ++n)
    singles.push_back(std::nextafter(-n, 0.0f)), singles.push_back(std::nextafter(-n, -99.0f));
  check_directed<double>("TGamma", tgammaq, without_poles<double>(points), half_ulp);
  check_directed<float>("TGamma", tgammaq, without_poles<float>(singles), half_ulp);
}

// The result does not hang on the caller's rounding or x87 precision, and both stay.
TEST(LGamma, ControlWords) {
  const double x[] = {-2.6, 0.3, 1.1, 7.3, 700, -186.5, -30.2, 2.6e305};
  double expected[2][8], got[2][8];
  _zemdLGamma(8, x, expected[0]);
  _zemdTGamma(8, x, expected[1]);
  unsigned short saved, word = 0x0C7F, after;  // single precision, towards zero
  asm volatile("fnstcw %0" : "=m"(saved));
  asm volatile("fldcw %0" : : "m"(word));
  _zemdLGamma(8, x, got[0]);
  _zemdTGamma(8, x, got[1]);
  asm volatile("fnstcw %0" : "=m"(after));
  asm volatile("fldcw %0" : : "m"(saved));
  EXPECT_EQ(after, word);
  for (int f = 0; f < 2; ++f)
    for (int i = 0; i < 8; ++i)
      EXPECT_EQ(bits(got[f][i]), bits(expected[f][i])) << f << " " << x[i];
}

}  // namespace
