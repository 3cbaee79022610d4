// CdfNorm: ends, the complete underflow and denormals before it, borders of the rows.
#include "accuracy/inverse_error.hpp"
#include "support/bits.hpp"
#include "support/directed.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

const Limits limits_d = {{2.5, 0.6, 0x1p-26}, {false, false, true}};
const Limits limits_s = {{0.6, 0.55, 0x1p-14}, {false, false, true}};

template <class T>
void special(const char* name, T limit, T top) {
  const T nan = quiet_nan<T>;
  for (int level = 0; level < 3; ++level)
    check_special<T>({"CdfNorm",
                      level,
                      name,
                      T(0.75),
                      0,
                      {{nan, nan},
                       {-nan, nan},
                       {inf<T>, T(1)},
                       {-inf<T>, T(0)},
                       {T(0), T(0.5)},
                       {-T(0), T(0.5)},
                       {smallest_denormal<T>, T(0.5)},
                       {-smallest_denormal<T>, T(0.5)},
                       {T(9), T(1)},
                       {largest<T>, T(1)},
                       {top, T(1)},
                       {limit, smallest_denormal<T>},
                       {std::nextafter(limit, -inf<T>), T(0), ZEM_STATUS_UNDERFLOW},
                       {T(-40), T(0), ZEM_STATUS_UNDERFLOW},
                       {-largest<T>, T(0), ZEM_STATUS_UNDERFLOW}}});
}
TEST(CdfNorm, SpecialDouble) { special<double>("vdCdfNorm", -38.485408335567335, 38.4921875); }
TEST(CdfNorm, SpecialSingle) { special<float>("vsCdfNorm", -14.1701851f, 14.171875f); }

// Denormal results are silent.
TEST(CdfNorm, DenormalsReportNothing) {
  const double a[] = {-38, -37.6, -38.3, 1, -38.48};
  for (int level = 0; level < 3; ++level) {
    double r[5];
    EXPECT_TRUE(record_events([&] { ork_zem_kernel_dCdfNorm_ttab[level](5, a, r); }).empty());
    EXPECT_TRUE(r[0] > 0 && r[0] < smallest_normal<double>);
  }
}

template <class T>
void directed(const Limits& limits, T limit, int steps) {
  std::vector<T> centres = {T(-37.519379347144504), T(8.3)};
  for (int j = 0; j < -limit * steps - 1; ++j) centres.push_back(T(-(j + 0.5) / steps));
  std::vector<T> points =
      neighbours(centres, 1) + spread<T>(limit, 0, 3000) + spread<T>(-5, 9, 2000);
  for (T x = 1; x > 0; x *= T(0.3)) points.push_back(x), points.push_back(-x);
  check_directed<T>("CdfNorm", exact::cdfnorm, points, limits);
}
TEST(CdfNorm, DirectedDouble) { directed<double>(limits_d, -38.485408335567335, 128); }
TEST(CdfNorm, DirectedSingle) { directed<float>(limits_s, -14.1701851f, 64); }

}  // namespace
