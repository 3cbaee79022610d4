// Asin, Acos, Atan and Atan2: special values, borders of ranges, hard cases.
#include <quadmath.h>

#include <array>
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
constexpr T pi = T(3.14159265358979323846L);
template <class T>
constexpr T tiny = wide<T> ? T(0x1p-30) : T(0x1p-14);

template <class T>
class InverseTrig : public testing::Test {
  StateGuard guard;
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(InverseTrig, Types);

TYPED_TEST(InverseTrig, SpecialValues) {
  using T = TypeParam;
  const T past_one = std::nextafter(T(1), T(2));
  const T nan = quiet_nan<T>, denormal = smallest_denormal<T>;
  for (int level = 0; level < 3; ++level) {
    const bool ep = level == 2;
    check_special<T>({"Asin",
                      level,
                      wide<T> ? "vdAsin" : "vsAsin",
                      T(0.3),
                      0,
                      {{0, 0},
                       {-T(0), -T(0)},
                       {denormal, denormal},
                       {-3 * denormal, -3 * denormal},
                       {1, pi<T> / 2},
                       {-1, -pi<T> / 2},
                       {nan, nan},
                       {past_one, nan, 1},
                       {-past_one, nan, 1},
                       {inf<T>, nan, 1},
                       {-inf<T>, nan, 1}}});
    check_special<T>({"Acos",
                      level,
                      wide<T> ? "vdAcos" : "vsAcos",
                      T(0.3),
                      0,
                      {{0, pi<T> / 2},
                       {-T(0), pi<T> / 2},
                       {denormal, pi<T> / 2},
                       {-denormal, pi<T> / 2},
                       {1, 0},
                       {-1, pi<T>},
                       {nan, nan},
                       {past_one, nan, 1},
                       {-past_one, nan, 1},
                       {inf<T>, nan, 1},
                       {-inf<T>, nan, 1}}});
    SpecialTable<T> atan{"Atan",
                         level,
                         "",
                         T(0.3),
                         0,
                         {{0, 0},
                          {-T(0), -T(0)},
                          {inf<T>, pi<T> / 2},
                          {-inf<T>, -pi<T> / 2},
                          {nan, nan},
                          {largest<T>, pi<T> / 2},
                          {-largest<T>, -pi<T> / 2}}};
    if (!ep) {
      atan.cases.push_back({smallest_denormal<T>, smallest_denormal<T>});
      atan.cases.push_back({-3 * smallest_denormal<T>, -3 * smallest_denormal<T>});
    }
    check_special<T>(atan);
  }
}

TYPED_TEST(InverseTrig, QuadrantsAsInC99) {
  using T = TypeParam;
  const T nan = quiet_nan<T>, zero = 0;
  struct Row {
    T y, x, r;
  };
  const Row rows[] = {{zero, zero, zero},
                      {zero, -zero, pi<T>},
                      {zero, 1, zero},
                      {zero, -1, pi<T>},
                      {1, zero, pi<T> / 2},
                      {1, -zero, pi<T> / 2},
                      {inf<T>, 1, pi<T> / 2},
                      {inf<T>, -1, pi<T> / 2},
                      {1, inf<T>, zero},
                      {1, -inf<T>, pi<T>},
                      {zero, inf<T>, zero},
                      {zero, -inf<T>, pi<T>},
                      {inf<T>, zero, pi<T> / 2},
                      {inf<T>, inf<T>, pi<T> / 4},
                      {inf<T>, -inf<T>, T(2.356194490192345)},
                      {largest<T>, smallest_denormal<T>, pi<T> / 2},
                      {smallest_denormal<T>, -largest<T>, pi<T>},
                      {smallest_denormal<T>, largest<T>, zero}};
  for (int level = 0; level < 3; ++level) {
    SpecialTable<T> table{"Atan2", level, "", T(0.3), T(0.7), {}};
    for (const Row& row : rows) {
      table.cases.push_back({row.y, row.r, 0, row.x});
      table.cases.push_back({-row.y, -row.r, 0, row.x});
    }
    table.cases.push_back({nan, nan, 0, 1});
    table.cases.push_back({1, nan, 0, nan});
    table.cases.push_back({nan, nan, 0, inf<T>});
    table.cases.push_back({0, nan, 0, nan});
    check_special<T>(table);
  }
}

TYPED_TEST(InverseTrig, DirectedPoints) {
  using T = TypeParam;
  const auto inside = [](std::vector<T> points) {
    for (T& x : points) x = std::min(std::max(x, T(-1)), T(1));
    return points;
  };
  const auto unit =
      inside(neighbours<T>({T(0.5), T(-0.5), T(1), T(-1), tiny<T>}, 20) + spread<T>(-1, 1, 4001));
  if (wide<T>) {
    check_directed<T>("Asin", asinq, unit, {{2.5, 0.80, 0x1p-26}, {false, false, true}});
    check_directed<T>("Acos", acosq, unit, {{2.5, 0.80, 0x1p-26}, {false, false, true}});
  } else {
    check_directed<T>("Asin", asinq, unit, {{2.5, 0.51, 0x1p-12}, {false, false, true}});
    check_directed<T>("Acos", acosq, unit, {{2.5, 0.51, 0x1p-12}, {false, false, true}});
  }
  std::vector<T> borders{T(1), T(-1), T(0.4375), T(0.72), T(2.29), T(0x1p54)};
  for (int i = 0; i < 126; ++i) borders.push_back(std::ldexp(1 + T(i % 16) / 16, i / 16 - 3));
  const auto line = neighbours<T>(borders, 3) + spread<T>(-4, 4, 3001) + std::vector<T>{largest<T>};
  if (wide<T>)
    check_directed<T>("Atan", atanq, line, {{0.6, 0.6, 0x1p-26}, {false, false, true}});
  else
    check_directed<T>("Atan", atanq, line, {{3.6, 0.95, 0x1p-12}, {false, false, true}});
}

TYPED_TEST(InverseTrig, HardCasesAsin) {
  check_worst_cases<TypeParam>(
      "Asin", "asin", {{2.5, wide<TypeParam> ? 0.80 : 0.51, 0x1p-12}, {false, false, true}});
}
TYPED_TEST(InverseTrig, HardCasesAcos) {
  check_worst_cases<TypeParam>(
      "Acos", "acos", {{2.5, wide<TypeParam> ? 0.80 : 0.51, 0x1p-12}, {false, false, true}});
}
TYPED_TEST(InverseTrig, HardCasesAtan) {
  check_worst_cases<TypeParam>(
      "Atan", "atan", {{3.6, wide<TypeParam> ? 0.6 : 0.95, 0x1p-12}, {false, false, true}});
}

// Every octant, at distances from nearly level to nearly upright; near the ends of the range
// the quotient is denormal or the operands are.
TYPED_TEST(InverseTrig, Atan2InEveryOctant) {
  using T = TypeParam;
  std::vector<T> y, x;
  const int reach = std::numeric_limits<T>::max_exponent - 2;
  for (int e : {-2 * reach + 4, -reach, -60, -54, -53, -10, -1, 0, 1, 10, 53, 54, 60, reach})
    for (int i = 0; i < 16; ++i)
      for (const T s : {T(1), T(-1)})
        for (const T u : {T(1), T(-1)}) {
          const int half = e / 2;
          y.push_back(s * std::ldexp(1 + T(i) / 16, half)),
              x.push_back(u * std::ldexp(T(1.3), half - e));
        }
  std::vector<T> r(y.size());
  const double bounds[] = {2.5, 0.51, wide<T> ? 0x1p27 : 0x1p13};
  for (const auto& call : elementwise_kernels<T>()) {
    if (strcmp(call.slot->function, "Atan2") != 0) continue;
    call(int(y.size()), y.data(), x.data(), r.data(), nullptr);
    for (size_t i = 0; i < y.size(); ++i) {
      const quad exact = atan2q(y[i], x[i]);
      int e;
      frexpq(exact, &e);
      const int digits = std::numeric_limits<T>::digits;
      const quad ulp = ldexpq(1, std::max(e, std::numeric_limits<T>::min_exponent) - digits);
      ASSERT_LE(double(fabsq(r[i] - exact) / ulp), bounds[call.level])
          << call.slot->name(call.level) << "(" << y[i] << ", " << x[i] << ") = " << r[i];
    }
  }
}

// Of the single kernels in blocks |x| > 1 yields this very NaN, and a quiet NaN comes out as it
// went in.
TEST(InverseTrigSingle, AsinKeepsNanImages) {
  const float a[] = {
      2,    -2, inf<float>, -inf<float>, from_bits<float>(0x7FC01234), from_bits<float>(0xFFC00001),
      0.5f, 1};
  for (int level = 0; level < 3; ++level) {
    float r[8];
    ork_zem_kernel_sAsin_ttab[level](8, a, r);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(bits(r[i]), 0xFFC00000u) << level << " " << i;
    for (int i = 4; i < 6; ++i) EXPECT_EQ(bits(r[i]), bits(a[i])) << level << " " << i;
  }
}

// Double HA is what the x87's instruction gives, whichever way a lane went.
TEST(InverseTrigHa, Atan2EqualsTheInstruction) {
  std::mt19937_64 draw(5);
  std::vector<double> y, x;
  const auto number = [&](int spread) {
    const int e = int(draw() % unsigned(2 * spread)) - spread;
    const double d = std::ldexp(1 + double(draw() >> 12) * 0x1p-52, e);
    return draw() & 1 ? -d : d;
  };
  for (const int spread : {1, 3, 70, 420, 1020})
    for (int i = 0; i < 60000; ++i) y.push_back(number(spread)), x.push_back(number(spread));
  for (int k = 0; k <= 64; ++k)  // quotients at the steps and half-way between them
    for (int i = 1; i < 400; ++i) {
      const double width = std::ldexp(1.0 + double(i), i % 60 - 30);
      y.push_back((k + (i % 2) / 2.0) / 64 * width + std::ldexp(width, -10 - i % 50)),
          x.push_back(width);
    }
  std::vector<double> r(y.size());
  for (const auto& call : elementwise_kernels<double>()) {
    if (strcmp(call.slot->function, "Atan2") != 0 || call.level != 1) continue;
    call(int(y.size()), y.data(), x.data(), r.data(), nullptr);
    for (size_t i = 0; i < y.size(); ++i) {
      double exact;
      asm("fldl %1\n\tfldl %2\n\tfpatan\n\tfstpl %0" : "=m"(exact) : "m"(y[i]), "m"(x[i]));
      ASSERT_EQ(r[i], exact) << "(" << y[i] << ", " << x[i] << ")";
    }
  }
}

// Two events of a block come in index order, and the lanes between them are whole.
TYPED_TEST(InverseTrig, EventsInOrder) {
  using T = TypeParam;
  const T a[8] = {T(0.5), 2, T(0.25), -3, quiet_nan<T>, 1, inf<T>, T(0.5)};
  for (const auto& call : elementwise_kernels<T>()) {
    if (strcmp(call.slot->function, "Acos") != 0) continue;
    T r[8];
    const auto events = record_events([&] { call(8, a, nullptr, r, nullptr); });
    ASSERT_EQ(events.size(), 3u);
    for (int i = 0; i < 3; ++i) {
      EXPECT_EQ(events[size_t(i)].index, (std::array{1, 3, 6})[size_t(i)]);
      EXPECT_EQ(events[size_t(i)].status, ZEM_STATUS_DOMAIN);
    }
    EXPECT_EQ(r[0], r[7]);
    EXPECT_EQ(r[5], 0);
  }
}

}  // namespace
