// ErfInv, ErfcInv and CdfNormInv: ends and middles of the domains, borders of the tables,
// tails down to the smallest denormal.
#include "accuracy/inverse_error.hpp"
#include "ork/zem_erf_scalar.h"
#include "support/bits.hpp"
#include "support/directed.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

const Limits limits_d = {{2.5, 0.6, 0x1p-26}, {false, false, true}};
const Limits limits_s = {{0.6, 0.51, 0x1p-14}, {false, false, true}};

template <class T>
void special(const char* function, const char* name, const std::vector<SpecialCase<T>>& own) {
  const T nan = quiet_nan<T>;
  std::vector<SpecialCase<T>> cases = {{nan, nan},
                                       {-nan, nan},
                                       {inf<T>, nan, ZEM_STATUS_DOMAIN},
                                       {-inf<T>, nan, ZEM_STATUS_DOMAIN},
                                       {largest<T>, nan, ZEM_STATUS_DOMAIN},
                                       {T(2.5), nan, ZEM_STATUS_DOMAIN},
                                       {T(-1.5), nan, ZEM_STATUS_DOMAIN}};
  cases.insert(cases.end(), own.begin(), own.end());
  for (int level = 0; level < 3; ++level)
    check_special<T>({function, level, name, T(0.75), 0, cases});
}

template <class T>
void special_erfinv(const char* name, T above_one) {
  special<T>("ErfInv", name,
             {{T(1), inf<T>, ZEM_STATUS_SINGULARITY},
              {T(-1), -inf<T>, ZEM_STATUS_SINGULARITY},
              {above_one, quiet_nan<T>, ZEM_STATUS_DOMAIN},
              {-above_one, quiet_nan<T>, ZEM_STATUS_DOMAIN},
              {T(0), T(0)},
              {-T(0), -T(0)},
              {smallest_denormal<T>, smallest_denormal<T>},
              {-smallest_denormal<T>, -smallest_denormal<T>},
              {3 * smallest_denormal<T>, 3 * smallest_denormal<T>},      // 2.66
              {13 * smallest_denormal<T>, 12 * smallest_denormal<T>}});  // 11.52
}
TEST(ErfInv, SpecialDouble) { special_erfinv<double>("vdErfInv", 1.0000000000000002); }
TEST(ErfInv, SpecialSingle) { special_erfinv<float>("vsErfInv", 1.0000001f); }

// The ends and the middle of [0, end], `at_zero` the infinity at 0.
template <class T>
void special_between(const char* function, const char* name, T end, T at_zero, T tail_end) {
  special<T>(function, name,
             {{T(0), at_zero, ZEM_STATUS_SINGULARITY},
              {-T(0), at_zero, ZEM_STATUS_SINGULARITY},
              {end, -at_zero, ZEM_STATUS_SINGULARITY},
              {end / 2, T(0)},
              {std::nextafter(end, inf<T>), quiet_nan<T>, ZEM_STATUS_DOMAIN},
              {-smallest_denormal<T>, quiet_nan<T>, ZEM_STATUS_DOMAIN},
              {smallest_denormal<T>, tail_end}});
}
TEST(ErfcInv, Special) {
  special_between<double>("ErfcInv", "vdErfcInv", 2, inf<double>, 27.21329321081295);
  special_between<float>("ErfcInv", "vsErfcInv", 2, inf<float>, 10.0198342658846f);
}
TEST(CdfNormInv, Special) {
  special_between<double>("CdfNormInv", "vdCdfNormInv", 1, -inf<double>, -38.467405617144344);
  special_between<float>("CdfNormInv", "vsCdfNormInv", 1, -inf<float>, -14.1214266133505f);
}

// All borders of parts of binades of the distance `unit` w to the ends 0 and `end`.
template <class T>
std::vector<T> borders(T end, bool both_signs) {
  std::vector<T> points;
  for (int e = 1; e <= std::numeric_limits<T>::digits; ++e)
    for (int part = 0; part < 16; ++part) {
      const T w = std::ldexp(T(1 + part / 16.0), -e) * (both_signs ? 1 : end / 2);
      const T near_end = both_signs ? 1 - w : w;
      points.push_back(near_end);
      const T far = both_signs ? -near_end : end - w;
      if (far != end && near_end != 1) points.push_back(far);
    }
  return points;
}

// Numbers of every binade from `top` down to the smallest denormal.
template <class T>
std::vector<T> downward(T top) {
  std::vector<T> points;
  for (T x = top; x > 0; x *= T(0.37)) points.push_back(x);
  return points;
}

template <class T>
std::vector<T> inside(const std::vector<T>& points, T low, T high) {
  std::vector<T> kept;
  for (const T x : points)
    if (x > low && x < high) kept.push_back(x);
  return kept;
}

template <class T>
void directed_erfinv(const Limits& limits) {
  const std::vector<T> tiny = downward<T>(T(0.9));
  check_directed<T>("ErfInv", exact::erfinv,
                    inside(neighbours(borders<T>(1, true), 1) + neighbours<T>({T(0x1p-35)}, 3) +
                               spread<T>(-1, 1, 1500),
                           T(-1), T(1)) +
                        tiny,
                    limits);
}
TEST(ErfInv, DirectedDouble) { directed_erfinv<double>(limits_d); }
TEST(ErfInv, DirectedSingle) {
  directed_erfinv<float>({{0.8, 0.51, 0x1p-14}, {false, false, true}});
}

template <class T>
void directed_between(const char* function, quad (*exact)(quad), T end, const Limits& limits) {
  check_directed<T>(function, exact,
                    inside(neighbours(borders<T>(end, false), 1) + downward<T>(end / 2) +
                               spread<T>(0, end, 1500) + spread<T>(end * 0.499, end * 0.501, 500),
                           T(0), end),
                    limits);
}
TEST(ErfcInv, DirectedDouble) { directed_between<double>("ErfcInv", exact::erfcinv, 2, limits_d); }
TEST(ErfcInv, DirectedSingle) { directed_between<float>("ErfcInv", exact::erfcinv, 2, limits_s); }
TEST(CdfNormInv, DirectedDouble) {
  directed_between<double>("CdfNormInv", exact::cdfnorminv, 1, limits_d);
}
TEST(CdfNormInv, DirectedSingle) {
  directed_between<float>("CdfNormInv", exact::cdfnorminv, 1, limits_s);
}

// The tails by themselves, from where their header starts them: through erfc and back.
TEST(CdfNormInv, TailsRoundTrip) {
  for (double p = 0x1.9p-23; p > 0; p *= 0.47) {
    const double x = _mm_cvtsd_f64(dErfcInv_Tail(_mm_set_sd(p)));
    const double z = _mm_cvtsd_f64(dCdfNormInv_Tail(_mm_set_sd(p)));
    // Relative error of y times 2 y^2 is that of the probability.
    EXPECT_LT(double(fabsq(erfcq(quad(x)) - p) / p), 2.01 * x * x * 0x1.4p-53) << p;
    EXPECT_LT(double(fabsq(exact::cdfnorm(quad(z)) - p) / p), 1.01 * z * z * 0x1.4p-53) << p;
  }
}

}  // namespace
