// Sinh, Cosh, Tanh and their inverses: special values, borders of ranges, hard cases.
#include <quadmath.h>

#include <random>

#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/directed.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

template <class T>
constexpr bool wide = sizeof(T) == 8;

template <class T>
class Hyperbolic : public testing::Test {
 protected:
  StateGuard guard;
  static constexpr T tiny = smallest_denormal<T>, nan = quiet_nan<T>;
  // The type's half mantissa in the EP slot, where that holds a kernel of its own.
  static Limits limits(double la, double ha, bool ep_is_la = false) {
    return {{la, ha, ep_is_la ? la : 0x1p-12}, {false, false, !ep_is_la}};
  }
  // |x| where Sinh and Cosh overflow: the first value and the one before it.
  static T overflow() { return wide<T> ? T(710.4758600739440) : T(89.4159927368164); }
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(Hyperbolic, Types);

TYPED_TEST(Hyperbolic, SpecialValues) {
  using T = TypeParam;
  constexpr T tiny = TestFixture::tiny, nan = TestFixture::nan, over = wide<T> ? 711 : 90;
  const auto name = [](const char* d, const char* s) { return wide<T> ? d : s; };
  const T below_one = std::nextafter(T(1), T(0)), above_one = std::nextafter(T(1), T(2));
  for (int level = 0; level < 3; ++level) {
    check_special<T>({"Sinh",
                      level,
                      name("vdSinh", "vsSinh"),
                      T(0.7),
                      0,
                      {{0, 0},
                       {-T(0), -T(0)},
                       {tiny, tiny},
                       {-tiny, -tiny},
                       {inf<T>, inf<T>},
                       {-inf<T>, -inf<T>},
                       {nan, nan},
                       {over, inf<T>, 3},
                       {-over, -inf<T>, 3},
                       {largest<T>, inf<T>, 3}}});
    check_special<T>({"Cosh",
                      level,
                      name("vdCosh", "vsCosh"),
                      T(0.7),
                      0,
                      {{0, 1},
                       {-T(0), 1},
                       {tiny, 1},
                       {inf<T>, inf<T>},
                       {-inf<T>, inf<T>},
                       {nan, nan},
                       {over, inf<T>, 3},
                       {-over, inf<T>, 3},
                       {-largest<T>, inf<T>, 3}}});
    check_special<T>({"Tanh",
                      level,
                      "",
                      T(0.7),
                      0,
                      {{0, 0},
                       {-T(0), -T(0)},
                       {tiny, tiny},
                       {-tiny, -tiny},
                       {20, 1},
                       {-20, -1},
                       {largest<T>, 1},
                       {inf<T>, 1},
                       {-inf<T>, -1},
                       {nan, nan}}});
    check_special<T>({"Asinh",
                      level,
                      "",
                      T(0.7),
                      0,
                      {{0, 0},
                       {-T(0), -T(0)},
                       {tiny, tiny},
                       {-tiny, -tiny},
                       {inf<T>, inf<T>},
                       {-inf<T>, -inf<T>},
                       {nan, nan}}});
    check_special<T>({"Acosh",
                      level,
                      name("vdAcosh", "vsAcosh"),
                      T(1.7),
                      0,
                      {{1, 0},
                       {below_one, nan, 1},
                       {0, nan, 1},
                       {-T(0), nan, 1},
                       {-1, nan, 1},
                       {-largest<T>, nan, 1},
                       {-inf<T>, nan, 1},
                       {inf<T>, inf<T>},
                       {nan, nan}}});
    check_special<T>({"Atanh",
                      level,
                      name("vdAtanh", "vsAtanh"),
                      T(0.7),
                      0,
                      {{0, 0},
                       {-T(0), -T(0)},
                       {tiny, tiny},
                       {-tiny, -tiny},
                       {1, inf<T>, 2},
                       {-1, -inf<T>, 2},
                       {above_one, nan, 1},
                       {-above_one, nan, 1},
                       {inf<T>, nan, 1},
                       {-inf<T>, nan, 1},
                       {nan, nan}}});
  }
}

// The largest arguments with a finite result: there e^x itself would overflow.
TYPED_TEST(Hyperbolic, FiniteUpToTheLastArgument) {
  using T = TypeParam;
  const T last = std::nextafter(TestFixture::overflow(), T(0));
  for (const auto& call : elementwise_kernels<T>()) {
    const bool sinh = !strcmp(call.slot->function, "Sinh");
    if (!sinh && strcmp(call.slot->function, "Cosh") != 0) continue;
    const T x[4] = {last, -last, std::nextafter(last, inf<T>), T(1)};
    T r[4];
    const auto events = record_events([&] { call(4, x, nullptr, r, nullptr); });
    EXPECT_TRUE(std::isfinite(r[0]) && r[0] > largest<T> / 2)
        << call.slot->name(call.level) << " " << r[0];
    EXPECT_EQ(r[1], sinh ? -r[0] : r[0]);
    EXPECT_EQ(r[2], inf<T>);
    ASSERT_EQ(events.size(), 1u);
    EXPECT_EQ(events[0].index, 2);
  }
}

TYPED_TEST(Hyperbolic, DirectedPoints) {
  using T = TypeParam;
  const auto limits = [](double la, double ha, bool same = false) {
    return TestFixture::limits(la, ha, same);
  };
  const T last = std::nextafter(TestFixture::overflow(), T(0));
  std::vector<T> knots{T(0.125), T(0.5), T(1), T(20), T(-0.125), std::ldexp(T(1), -12)};
  for (int i = 1; i < 200; ++i) knots.push_back(T(i) * T(0.6931471805599453) / 128);
  const auto near = neighbours<T>(knots, 2) + spread<T>(-3, 3, 2001);
  const auto far = near + spread<T>(-double(last), double(last), 2001) +
                   neighbours<T>({wide<T> ? T(708.4) : T(87.33655)}, 40);
  check_directed<T>("Sinh", sinhq, far, limits(2.5, wide<T> ? 0.6 : 0.55, wide<T>));
  check_directed<T>("Cosh", coshq, far, limits(2.5, wide<T> ? 0.6 : 0.55, wide<T>));
  std::vector<T> rows;
  for (int i = 0; i < 64; ++i) rows.push_back(std::ldexp(1 + T(i % 8) / 8, i / 8 - 3));
  check_directed<T>("Tanh", tanhq, near + neighbours<T>(rows, 2) + spread<T>(-22, 22, 1001),
                    limits(2, wide<T> ? 0.76 : 0.55, wide<T>));
  const auto wide_range = [] {
    std::vector<T> points;
    for (int e = std::numeric_limits<T>::min_exponent; e < std::numeric_limits<T>::max_exponent;
         e += 7)
      points.push_back(std::ldexp(T(1.7), e));
    return points;
  }();
  check_directed<T>("Asinh", asinhq, near + wide_range + neighbours<T>({largest<T>}, 0),
                    limits(2.5, wide<T> ? 0.52 : 0.51, wide<T>));
  std::vector<T> above = neighbours<T>({T(1.0004887580871582), T(2), T(1.5)}, 20) +
                         spread<T>(1, 1.001, 500) + spread<T>(1, 9, 999);
  for (T x = std::numeric_limits<T>::epsilon(); x < 1; x *= 3) above.push_back(1 + x);
  for (const T x : wide_range)
    if (x > 1) above.push_back(x);
  Limits acosh = limits(2.5, wide<T> ? 0.6 : 0.51, wide<T>);
  check_directed<T>("Acosh", acoshq, above + std::vector<T>{largest<T>}, acosh);
  std::vector<T> inside = neighbours<T>({std::ldexp(T(1), -8), std::ldexp(T(1), -12), T(0.5)}, 20) +
                          spread<T>(-0.9999, 0.9999, 2001);
  for (T x = 1; x > std::numeric_limits<T>::epsilon(); x /= 3)
    inside.push_back(1 - x), inside.push_back(x / 2);
  check_directed<T>("Atanh", atanhq, inside, limits(2.5, wide<T> ? 0.6 : 0.51, wide<T>));
}

struct Hard {
  const char *function, *file;
  double la, ha_d, ha_s;
};
class HardCases : public testing::TestWithParam<Hard> {
  StateGuard guard;
};
TEST_P(HardCases, Double) {
  const Hard& h = GetParam();
  check_worst_cases<double>(h.function, h.file, {{h.la, h.ha_d, h.la}, {false, false, false}});
}
TEST_P(HardCases, Single) {
  const Hard& h = GetParam();
  check_worst_cases<float>(h.function, h.file, {{h.la, h.ha_s, 0x1p-12}, {false, false, true}});
}
INSTANTIATE_TEST_SUITE_P(
    , HardCases,
    testing::Values(Hard{"Sinh", "sinh", 2.5, 0.6, 0.55}, Hard{"Cosh", "cosh", 2.5, 0.6, 0.55},
                    Hard{"Tanh", "tanh", 2, 0.76, 0.55}, Hard{"Asinh", "asinh", 2.5, 0.52, 0.51},
                    Hard{"Acosh", "acosh", 2.5, 0.6, 0.51}, Hard{"Atanh", "atanh", 2.5, 0.6, 0.51}),
    [](const auto& info) { return info.param.function; });

// The rounding in two words and the extended format behind it: results are a double next to the
// exact value, to 2^-62 of the logarithm's steps, and not just below the kernels' bounds.
TEST(InverseHyperbolic, HaRoundsAsExtendedDoes) {
  StateGuard guard;
  struct Row {
    const char* function;
    quad (*exact)(quad);
    double low, high;        // arguments, spread by their logarithms
    double fixed, relative;  // what may be lacking beside the half ulp
  };
  const Row rows[] = {{"Asinh", asinhq, 0x1p-60, 0.125, 0, 0x1p-60},
                      {"Asinh", asinhq, 0.125, 0x1p520, 0x1.2p-62, 0x1p-62},
                      {"Asinh", asinhq, 0.125, 4, 0x1.2p-62, 0x1p-62},
                      {"Acosh", acoshq, 1.0005, 0x1p520, 0x1.4p-62, 0x1p-62},
                      {"Acosh", acoshq, 1.0005, 4, 0x1.4p-62, 0x1p-62},
                      {"Atanh", atanhq, 0x1p-60, 0x1p-8, 0, 0x1.2p-63},
                      {"Atanh", atanhq, 0x1p-8, 1, 0x1.2p-64, 0x1p-62}};
  std::minstd_rand random;
  std::uniform_real_distribution<double> unit;
  for (const auto& call : elementwise_kernels<double>())
    for (const Row& row : rows) {
      if (strcmp(call.slot->kernels[call.level], "W7HA") ||
          strcmp(call.slot->function, row.function))
        continue;
      std::vector<double> x(20000), r(x.size());
      for (double& v : x) v = row.low * std::pow(row.high / row.low, unit(random));
      call(int(x.size()), x.data(), nullptr, r.data(), nullptr);
      int bad = 0;
      for (size_t i = 0; i < x.size() && bad < 5; ++i) {
        const quad exact = row.exact(x[i]);
        const double half_ulp = std::ldexp(1.0, std::max(std::ilogb(double(exact)), -1022) - 53);
        const double error = double(fabsq(r[i] - exact));
        if (error > half_ulp + row.fixed + row.relative * double(exact))
          ADD_FAILURE() << row.function << "(" << x[i] << "): " << error / half_ulp / 2 << " ulp "
                        << ++bad;
      }
    }
}

}  // namespace
