// Expm1: special values, both sides of n = 0, the limits of the fast range, published hard
// cases.
#include <quadmath.h>

#include "support/bits.hpp"
#include "support/directed.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

// LA: next to n = +-1 the roundings of two equal parts add up.
const Limits limits_d = {{3.1, 0.65, 0x1p-30}, {false, false, true}};
const Limits limits_s = {{0.6, 0.6, 0.6}, {false, false, false}};

template <class T>
void special(const char* name, T overflow) {
  for (int level = 0; level < 3; ++level)
    check_special<T>({"Expm1",
                      level,
                      name,
                      T(0.75),
                      0,
                      {{quiet_nan<T>, quiet_nan<T>},
                       {-quiet_nan<T>, quiet_nan<T>},
                       {inf<T>, inf<T>},
                       {-inf<T>, T(-1)},
                       {T(0), T(0)},
                       {-T(0), -T(0)},
                       {smallest_denormal<T>, smallest_denormal<T>},
                       {-smallest_denormal<T>, -smallest_denormal<T>},
                       {smallest_normal<T> / 2, smallest_normal<T> / 2},
                       {-smallest_normal<T>, -smallest_normal<T>},
                       {T(-800), T(-1)},
                       {-largest<T>, T(-1)},
                       {T(-90), T(-1)},
                       {overflow, inf<T>, ZEM_STATUS_OVERFLOW},
                       {T(800), inf<T>, ZEM_STATUS_OVERFLOW},
                       {largest<T>, inf<T>, ZEM_STATUS_OVERFLOW}}});
}

TEST(Expm1, SpecialDouble) { special<double>("vdExpm1", 709.7827128933841); }
TEST(Expm1, SpecialSingle) { special<float>("vsExpm1", 88.72283935546875f); }

TEST(Expm1, Directed) {
  const double step = 0.005415212348514943;
  std::vector<double> centres = {
      707.7032713517041, -707.7032713517041, -40, 1e-300, -1e-300, 1e-17};
  std::vector<float> centres_s = {86.6433945f, -86.6433945f, 1e-8f, 1e-40f};
  for (int i = -300; i < 300; ++i)
    centres.push_back((i + 0.5) * step), centres_s.push_back(float((i + 0.5) * step));
  check_directed<double>("Expm1", expm1q,
                         neighbours(centres, 20) + spread<double>(-40, 709.78, 10000) +
                             spread<double>(-1, 1, 10000) + spread<double>(-0.01, 0.01, 10000) +
                             spread<double>(707, 709.78, 2000),
                         limits_d);
  check_directed<float>("Expm1", expm1q,
                        neighbours(centres_s, 20) + spread<float>(-20, 88.72, 10000) +
                            spread<float>(-0.01, 0.01, 10000),
                        limits_s);
}

TEST(Expm1, WorstCasesDouble) { check_worst_cases<double>("Expm1", "expm1", limits_d); }
TEST(Expm1, WorstCasesSingle) { check_worst_cases<float>("Expm1", "expm1", limits_s); }

}  // namespace
