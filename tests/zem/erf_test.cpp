// Erf: ends, borders of the rows, both sides of the odd series, denormals rounded once, flags.
#include <quadmath.h>
#include <xmmintrin.h>

#include "support/bits.hpp"
#include "support/directed.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

const Limits limits_d = {{2.5, 0.6, 0x1p-26}, {false, false, true}};
const Limits limits_s = {{0.6, 0.51, 0x1p-20}, {false, false, true}};

template <class T>
void special(const char* name) {
  const T nan = quiet_nan<T>, tiny = smallest_denormal<T>;
  for (int level = 0; level < 3; ++level)
    check_special<T>({"Erf",
                      level,
                      name,
                      T(0.75),
                      0,
                      {{nan, nan},
                       {-nan, nan},
                       {inf<T>, T(1)},
                       {-inf<T>, T(-1)},
                       {largest<T>, T(1)},
                       {-largest<T>, T(-1)},
                       {T(0), T(0)},
                       {-T(0), -T(0)},
                       {T(5.9921875), T(1)},
                       {T(-6), T(-1)},
                       {tiny, tiny},
                       {-tiny, -tiny},
                       {4 * tiny, 5 * tiny},       // 4.51
                       {-3 * tiny, -3 * tiny}}});  // 3.39
}
TEST(Erf, SpecialDouble) { special<double>("vdErf"); }
TEST(Erf, SpecialSingle) { special<float>("vsErf"); }

template <class T>
void directed(const Limits& limits) {
  std::vector<T> centres = {T(0.02734375), T(-0.02734375), T(5.9921875), smallest_normal<T>,
                            smallest_normal<T> / T(1.128)};
  for (int j = 0; j < 770; ++j) centres.push_back(T((j + 0.5) / 128));
  std::vector<T> points =
      neighbours(centres, 1) + spread<T>(-6, 6, 3000) + spread<T>(-0.04, 0.04, 1000) +
      spread<T>(0, 2 * double(smallest_normal<T>), 200) +
      spread<T>(0.87 * double(smallest_normal<T>), 0.89 * double(smallest_normal<T>), 200);
  for (T x = 1; x > 0; x *= T(0.37)) points.push_back(x);
  check_directed<T>("Erf", erfq, points, limits);
}
TEST(Erf, DirectedDouble) { directed<double>(limits_d); }
TEST(Erf, DirectedSingle) { directed<float>(limits_s); }

// Not one of these has a result below the normal range, so nothing may underflow.
TEST(Erf, SquaresRaiseNoUnderflow) {
  const double a[] = {1e-200, -1e-160, 1e-300, 1e-78, 0, 1, 2, 1e-155};
  for (int level = 0; level < 3; ++level) {
    double r[8];
    _mm_setcsr(0x1F80);
    ork_zem_kernel_dErf_ttab[level](8, a, r);
    EXPECT_EQ(_mm_getcsr() & _MM_EXCEPT_UNDERFLOW, 0u) << level;
  }
}

}  // namespace
