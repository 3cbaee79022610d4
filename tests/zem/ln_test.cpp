// Ln, Log10 and Log1p: special values, denormals, both sides of 1, the borders of the
// reductions, published hard cases.
#include <quadmath.h>

#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/directed.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

// What the levels reach; zem_core/logarithms/*/claims.tsv gives the reasons.
const Limits ln_d = {{0.6, 0.6, 0x1p-19}, {false, false, true}};
const Limits ln_s = {{4.0, 1.0, 0x1p-10}, {false, false, true}};
const Limits log10_d = {{2.0, 0.6, 0x1p-19}, {false, false, true}};
const Limits log10_s = {{2.7, 0.65, 0x1p-14}, {false, false, true}};
const Limits log1p_d = {{2.0, 0.8, 0x1p-31}, {false, false, true}};
const Limits log1p_s = {{2.0, 0.65, 2.0}, {false, false, false}};

template <class T>
void special_log(const char* function, const char* name, T ln_smallest) {
  const T nan = quiet_nan<T>;
  for (int level = 0; level < 3; ++level)
    check_special<T>({function,
                      level,
                      name,
                      T(0.75),
                      0,
                      {{nan, nan},
                       {inf<T>, inf<T>},
                       {T(1), T(0)},
                       {T(0), -inf<T>, ZEM_STATUS_SINGULARITY},
                       {-T(0), -inf<T>, ZEM_STATUS_SINGULARITY},
                       {-inf<T>, nan, ZEM_STATUS_DOMAIN},
                       {T(-1), nan, ZEM_STATUS_DOMAIN},
                       {-largest<T>, nan, ZEM_STATUS_DOMAIN},
                       {-smallest_normal<T>, nan, ZEM_STATUS_DOMAIN},
                       {-smallest_denormal<T>, nan, ZEM_STATUS_DOMAIN},
                       {smallest_denormal<T>, ln_smallest}}});
}

TEST(Ln, SpecialDouble) { special_log<double>("Ln", "vdLn", -744.4400719213812); }
TEST(Ln, SpecialSingle) { special_log<float>("Ln", "vsLn", -103.27893f); }
TEST(Log10, SpecialDouble) { special_log<double>("Log10", "vdLog10", -323.3062153431158); }
TEST(Log10, SpecialSingle) { special_log<float>("Log10", "vsLog10", -44.85347f); }

// The double NaN of the high level: the input as it stands, and one image for the domain error.
TEST(Ln, NanImages) {
  for (const char* function : {"Ln", "Log10"})
    check_special<double>({function,
                           1,
                           function[1] == 'n' ? "vdLn" : "vdLog10",
                           0.75,
                           0,
                           {{.a = from_bits<double>(0xFFF800000000ABCD),
                             .r = from_bits<double>(0xFFF800000000ABCD),
                             .exact_nan = true},
                            {.a = from_bits<double>(0x7FF0000000000001),
                             .r = from_bits<double>(0x7FF0000000000001),
                             .exact_nan = true},
                            {.a = -2.0,
                             .r = from_bits<double>(0xFFF8000000000000),
                             .status = ZEM_STATUS_DOMAIN,
                             .exact_nan = true}}});
}

template <class T>
void special_log1p(const char* name, T of_largest) {
  const T nan = quiet_nan<T>;
  for (int level = 0; level < 3; ++level)
    check_special<T>({"Log1p",
                      level,
                      name,
                      T(0.75),
                      0,
                      {{nan, nan},
                       {inf<T>, inf<T>},
                       {T(0), T(0)},
                       {-T(0), -T(0)},
                       {smallest_denormal<T>, smallest_denormal<T>},
                       {-smallest_denormal<T>, -smallest_denormal<T>},
                       {smallest_normal<T>, smallest_normal<T>},
                       {T(-1), -inf<T>, ZEM_STATUS_SINGULARITY},
                       {-inf<T>, nan, ZEM_STATUS_DOMAIN},
                       {std::nextafter(T(-1), T(-2)), nan, ZEM_STATUS_DOMAIN},
                       {T(-2), nan, ZEM_STATUS_DOMAIN},
                       {-largest<T>, nan, ZEM_STATUS_DOMAIN},
                       {largest<T>, of_largest}}});
}
TEST(Log1p, SpecialDouble) { special_log1p<double>("vdLog1p", 709.782712893384); }
TEST(Log1p, SpecialSingle) { special_log1p<float>("vsLog1p", 88.72284f); }

// Powers of ten that are exact in the type: within the level, and 3 exactly at the high one.
TEST(Log10, PowersOfTen) {
  std::vector<double> powers;
  std::vector<float> powers_s;
  for (int k = 1; k <= 22; ++k) powers.push_back(double(powq(10, k)));
  for (int k = 1; k <= 10; ++k) powers_s.push_back(float(powq(10, k)));
  check_directed<double>("Log10", log10q, powers, log10_d);
  check_directed<float>("Log10", log10q, powers_s, log10_s);
  const double x = 1000;
  double r;
  _zemdLog10_HA(1, &x, &r);
  EXPECT_EQ(r, 3.0);
}

// A double between the rows or exponents of a reduction, and next to 1.
template <class T>
std::vector<T> log_points() {
  std::vector<T> centres = {
      T(1),           T(1.4990234375),       T(0.74951171875),       T(4) / 3,
      T(2) / 3,       T(1.4142135623730951), T(0.70710678118654757), T(1 + 0x1p-9),
      T(1 - 0x1p-10), smallest_normal<T>,    largest<T> / 2,         smallest_normal<T> / 3};
  for (int j = 0; j < 512; ++j)
    centres.push_back(T(1 + (j + 0.5) / 512)), centres.push_back(T(37 + 37 * (j + 0.5) / 256));
  std::vector<T> points = neighbours(centres, 6) + spread<T>(0.9, 1.1, 10000) +
                          spread<T>(0.999, 1.001, 10000) + spread<T>(0.4, 3, 10000);
  for (int e = std::numeric_limits<T>::min_exponent - std::numeric_limits<T>::digits;
       e < std::numeric_limits<T>::max_exponent; ++e)
    for (const double m : {1.0, 1.17, 1.83}) points.push_back(T(std::ldexp(m, e)));
  return points;
}

TEST(Ln, Directed) {
  check_directed<double>("Ln", logq, log_points<double>(), ln_d);
  check_directed<float>("Ln", logq, log_points<float>(), ln_s);
}
TEST(Log10, Directed) {
  check_directed<double>("Log10", log10q, log_points<double>(), log10_d);
  check_directed<float>("Log10", log10q, log_points<float>(), log10_s);
}

template <class T>
std::vector<T> log1p_points() {
  std::vector<T> centres;
  for (int e = -60; e <= 0; ++e)
    centres.push_back(T(std::ldexp(1.0, e))), centres.push_back(T(std::ldexp(-0.9999, e)));
  for (int j = 0; j < 512; ++j)
    centres.push_back(T((j + 0.5) / 512)), centres.push_back(T(-0.5 * (j + 0.5) / 512));
  const T top = sizeof(T) == 8 ? T(8.78e304) : T(3.32306999e+35);
  return neighbours(centres, 6) + spread<T>(-0.01, 0.01, 10000) +
         spread<T>(-0.0011, 0.0011, 10000) + spread<T>(-0.9999, 10, 10000) +
         neighbours<T>({top, T(1e30)}, 20);
}
TEST(Log1p, Directed) {
  check_directed<double>("Log1p", log1pq, log1p_points<double>(), log1p_d);
  check_directed<float>("Log1p", log1pq, log1p_points<float>(), log1p_s);
}

TEST(Ln, WorstCasesDouble) { check_worst_cases<double>("Ln", "log", ln_d); }
TEST(Ln, WorstCasesSingle) { check_worst_cases<float>("Ln", "log", ln_s); }
TEST(Log10, WorstCasesDouble) { check_worst_cases<double>("Log10", "log10", log10_d); }
TEST(Log10, WorstCasesSingle) { check_worst_cases<float>("Log10", "log10", log10_s); }
TEST(Log1p, WorstCasesDouble) { check_worst_cases<double>("Log1p", "log1p", log1p_d); }
TEST(Log1p, WorstCasesSingle) { check_worst_cases<float>("Log1p", "log1p", log1p_s); }

}  // namespace
