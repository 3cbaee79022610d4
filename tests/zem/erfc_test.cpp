// Erfc: ends, both limits of the underflow, borders of the rows, denormals rounded once.
#include <quadmath.h>

#include "support/bits.hpp"
#include "support/directed.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

const Limits limits_d = {{2.5, 0.65, 2.5}, {false, false, false}};
const Limits limits_s = {{1.5, 0.51, 0x1p-14}, {false, false, true}};

template <class T>
void special(const char* name, std::vector<SpecialCase<T>> cases) {
  const T nan = quiet_nan<T>;
  const std::vector<SpecialCase<T>> common = {{nan, nan},
                                              {-nan, nan},
                                              {inf<T>, T(0)},
                                              {-inf<T>, T(2)},
                                              {T(-28), T(2)},
                                              {-largest<T>, T(2)},
                                              {largest<T>, T(0), ZEM_STATUS_UNDERFLOW},
                                              {T(28), T(0), ZEM_STATUS_UNDERFLOW}};
  cases.insert(cases.end(), common.begin(), common.end());
  for (int level = 0; level < 3; ++level)
    check_special<T>({"Erfc", level, name, T(0.75), 0, cases});
}
TEST(Erfc, SpecialDouble) {
  special<double>("vdErfc", {{0., 1.},
                             {-0., 1.},
                             {-6., 2.},
                             {27.3, 0, ZEM_STATUS_UNDERFLOW},
                             {27.226017111108366, 0, ZEM_STATUS_UNDERFLOW},
                             {27.2, 2 * smallest_denormal<double>, ZEM_STATUS_UNDERFLOW}});
}
TEST(Erfc, SpecialSingle) {
  special<float>("vsErfc", {{-6.f, 2.f},
                            {10.06f, 0, ZEM_STATUS_UNDERFLOW},
                            {10.05f, smallest_denormal<float>, ZEM_STATUS_UNDERFLOW}});
}

// Status 4 from the first denormal result on, wherever the element stands.
TEST(Erfc, UnderflowByPlace) {
  for (int level = 0; level < 3; ++level)
    for (int place = 0; place < 11; ++place) {
      double a[11] = {26.5, 1, 2, 3, -27, 26.543258454250978, 4, -26.6, 26.5, 5, 6}, r[11];
      a[place] = 27;
      const auto events = record_events([&] { ork_zem_kernel_dErfc_ttab[level](11, a, r); });
      ASSERT_EQ(events.size(), 1u) << place;
      EXPECT_EQ(events[0].index, place);
      EXPECT_EQ(events[0].status, ZEM_STATUS_UNDERFLOW);
      EXPECT_TRUE(r[place] > 0 && r[place] < smallest_normal<double>);
      float s[11] = {9.1f, 1, 2, 3, -10, 9.19454f, 4, -9.5f, 9, 5, 6}, y[11];
      s[place] = from_bits<float>(0x41131CE0);
      EXPECT_EQ(record_events([&] { ork_zem_kernel_sErfc_ttab[level](11, s, y); }).size(), 1u);
    }
}

template <class T>
void directed(const Limits& limits, double reach, double normal) {
  std::vector<T> centres = {T(normal)};
  for (double e = 0.25; e < 32; e *= 2)
    for (int q = 4; q < 8; ++q)
      if (e * q / 4 < reach) centres.push_back(T(e * q / 4)), centres.push_back(T(-e * q / 4));
  std::vector<T> points = neighbours(centres, 10) + spread<T>(-6, 6, 3000) +
                          spread<T>(0, reach, 3000) + spread<T>(normal, reach, 300);
  for (T x = T(0.25); x > 0; x *= T(0.3)) points.push_back(x), points.push_back(-x);
  check_directed<T>("Erfc", erfcq, points, limits);
}
TEST(Erfc, DirectedDouble) { directed<double>(limits_d, 27.226, 26.543258454250978); }
TEST(Erfc, DirectedSingle) { directed<float>(limits_s, 10.054, 9.194549); }

}  // namespace
