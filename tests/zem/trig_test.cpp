// Sine, cosine, both and tangent, every kernel: special values, borders of the fast ranges, the
// doubles next to multiples of pi/2, published hard cases, blocks of mixed sizes.
#include <quadmath.h>

#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/directed.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

using quad = __float128;

// A function's name in error reports by level, and the bounds of its errors in LA and HA, in ulp;
// EP is held to half the mantissa.
struct Function {
  const char* name;
  quad (*first)(quad);
  quad (*second)(quad);
  const char* reports_d[3];
  const char* reports_s[3];
  double la_d, ha_d, la_s, ha_s;
};
const Function functions[] = {{"Sin",
                               sinq,
                               nullptr,
                               {"vdSin", "vdSin", "vdSin"},
                               {"sSin_LA", "sSin_HA", "sSin_A11"},
                               3.1,
                               0.6,
                               2,
                               0.85},
                              {"Cos",
                               cosq,
                               nullptr,
                               {"vdCos", "vdCos", "vdCos"},
                               {"sCos_LA", "sCos_HA", "sCos_A11"},
                               3.1,
                               0.6,
                               2,
                               0.85},
                              {"SinCos",
                               sinq,
                               cosq,
                               {"dSinCos_LA", "vdSinCos", "vdSinCos"},
                               {"sSinCos_LA", "sSinCos_HA", "sSinCos_A11"},
                               2,
                               0.6,
                               2,
                               0.55},
                              {"Tan",
                               tanq,
                               nullptr,
                               {"dTan_LA", "dTan_HA", "dTan_A11"},
                               {"sTan_LA", "sTan_HA", "sTan_A11"},
                               2,
                               0.6,
                               2,
                               0.55}};

template <class T>
const char* report_name(const Function& f, int level) {
  return sizeof(T) == 8 ? f.reports_d[level] : f.reports_s[level];
}

template <class T>
Call<T> kernel(const char* function, int level) {
  for (const Slot& slot : slots)
    if (slot.type == (sizeof(T) == 8 ? 'd' : 's') && strcmp(slot.function, function) == 0)
      return {&slot, level};
  ADD_FAILURE() << function;
  return {};
}

template <class T>
class Trig : public testing::Test {};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(Trig, Types);

TYPED_TEST(Trig, SpecialValues) {
  using T = TypeParam;
  const T nan = quiet_nan<T>, tiny = smallest_denormal<T>;
  for (const Function& f : functions)
    for (int level = 0; level < 3; ++level) {
      const bool both = f.second != nullptr, cosine = f.first == cosq;
      SpecialTable<T> table{f.name, level, report_name<T>(f, level), T(0.75), 0, {}};
      table.cases = {{.a = inf<T>, .r = nan, .status = ZEM_STATUS_DOMAIN, .r2 = nan},
                     {.a = -inf<T>, .r = nan, .status = ZEM_STATUS_DOMAIN, .r2 = nan},
                     {.a = nan, .r = nan, .r2 = nan},
                     {.a = from_bits<T>(sizeof(T) == 8 ? 0x7FF0000000000001 : 0x7F800001),
                      .r = nan,
                      .r2 = nan}};
      // cos 0 is exact at HA; the others promise their bound only.
      if (!both && (!cosine || level == 1))
        for (const T x : {T(0), T(-0.0), tiny, -tiny})
          table.cases.push_back({.a = x, .r = cosine ? T(1) : x});
      if (both && level == 1)
        for (const T x : {T(0), T(-0.0), tiny, -tiny})
          table.cases.push_back({.a = x, .r = x, .r2 = T(1)});
      check_special<T>(table);
    }
}

// Error of `got` in ulp of its type, or relative.
template <class T>
double error_of(T got, quad exact, bool relative) {
  using L = std::numeric_limits<T>;
  const quad difference = fabsq(quad(got) - exact);
  if (difference == 0) return 0;
  if (relative) return double(difference / fmaxq(fabsq(exact), quad(L::min())));
  return double(scalbnq(difference, L::digits - 1 - std::max(ilogbq(exact), L::min_exponent - 1)));
}

// Every kernel of `f` at the points; exact[k] are the values of its k-th result.
template <class T>
void check_points(const Function& f, const std::vector<T>& points,
                  const std::vector<quad> exact[2]) {
  const uint32_t mode = ork_zem_kernel_SetMode(ORK_ZEM_ERRMODE_IGNORE);
  for (int level = 0; level < 3; ++level) {
    const Call<T> call = kernel<T>(f.name, level);
    const double bounds[3] = {sizeof(T) == 8 ? f.la_d : f.la_s, sizeof(T) == 8 ? f.ha_d : f.ha_s,
                              sizeof(T) == 8 ? 0x1p-26 : 0x1p-12};
    std::vector<T> r[2] = {std::vector<T>(points.size()), std::vector<T>(points.size())};
    call(int(points.size()), points.data(), nullptr, r[0].data(), r[1].data());
    for (int k = 0; k < call.outputs(); ++k) {
      if (exact[k].empty()) continue;
      double worst = -1;
      size_t at = 0;
      for (size_t i = 0; i < points.size(); ++i) {
        const double error = error_of(r[k][i], exact[k][i], level == 2);
        if (!(error <= worst)) worst = error, at = i;
      }
      EXPECT_LE(worst, bounds[level]) << call.slot->name(level) << " result " << k << " at "
                                      << std::hexfloat << points[at] << ": " << r[k][at];
    }
  }
  ork_zem_kernel_SetMode(mode);
}

// Borders of fast ranges and of the reductions' ranges; multiples of pi/2 and the numbers of the
// type closest to any of them (by continued fractions, the double one below 2^1024 included).
TYPED_TEST(Trig, BordersAndMultiplesOfHalfPi) {
  using T = TypeParam;
  std::vector<T> centres;
  for (const double x : {0x1p-252, 0x1p-27, 0.1, 1.0, 90112.0, 10000.0, 9999.0, 10001.0, 128000.0,
                         0x1p17, 1e7, 0x1p22, 0x1p23, 0x1p24, 0x1p29, 0x1p30, 1e10, 1e22, 3.4e38})
    centres.push_back(T(x));
  for (int k = 1; k < 2000; k = k < 20 ? k + 1 : k + 37)
    centres.push_back(T(double(k) * 1.5707963267948966));
  if (sizeof(T) == 8) {
    for (const double x : {0x1.6c6cbc45dc8dep+5,   0x1.67e57cdd4dc54p+15,  0x1.635e3d74befcap+15,
                           0x1.65a1dd290660fp+16,  0x1.9eb7148f354d6p+22,  0x1.d3ecce1f28274p+22,
                           0x1.d3ecce1f28274p+23,  0x1.b951f1572eba5p+23,  0x1.39c6fd67805a7p+18,
                           0x1.9eb7148f354d6p+20,  0x1.b951f1572eba5p+24,  0x1.065c829d68730p+39,
                           0x1.7512069b7430dp+47,  0x1.504cac51f1eafp+131, 0x1.e7e44a78ac18cp+197,
                           0x1.c45cd11154dfdp+295, 0x1.8b28676cdcc5bp+555, 0x1.4c96c11134d36p+577,
                           0x1.83009e2e9e2ebp+614, 0x1.6ac5b262ca1ffp+849, 0x1.e009c53148be1p+991,
                           1.7976931348623157e308})
      centres.push_back(T(x));
    for (int e = 30; e < 1024; e += 7) centres.push_back(T(std::ldexp(1.0, e)));
  } else {
    // sin of 5419351 is 3.8e-8; the second is the float closest to a multiple of pi/2.
    for (const float x : {5419351.0f, 16367173.0f * 0x1p72f}) centres.push_back(T(x));
    for (int e = 10; e < 128; ++e) centres.push_back(T(std::ldexp(1.0, e)));
  }
  std::vector<T> points;
  for (const T centre : centres)
    for (int k = -3; k <= 3; ++k)
      if (const T x = from_bits<T>(bits(centre) + uint64_t(int64_t(k))); std::isfinite(x))
        points.push_back(x), points.push_back(-x);
  for (const Function& f : functions) {
    std::vector<quad> exact[2];
    for (const T x : points) {
      exact[0].push_back(f.first(x));
      if (f.second) exact[1].push_back(f.second(x));
    }
    check_points<T>(f, points, exact);
  }
}

TYPED_TEST(Trig, PublishedHardCases) {
  using T = TypeParam;
  for (const Function& f : functions) {
    std::string name = f.second ? "sin" : f.name;
    for (char& c : name) c = char(tolower(c));
    std::vector<T> points;
    std::vector<quad> exact[2];
    for (const auto& row : published_cases<T>(name)) {
      points.push_back(T(row.at(0)));
      exact[0].push_back(quad(row.at(1)) + row.at(2));
    }
    check_points<T>(f, points, exact);
  }
}

// At 0 the cosine is 1, and nothing passes 1 anywhere: beside the extrema, of small arguments and
// of large ones, which have other paths.
TYPED_TEST(Trig, CosineOfZeroAndExtrema) {
  using T = TypeParam;
  std::vector<T> points;
  for (int k = 1; k < 3000; ++k) {
    const double extremum = (k < 1000 ? k : k < 2000 ? k * 1e4 : k * 1e12) * 1.5707963267948966;
    for (int i = 0; i < 24; ++i)
      points.push_back(
          T(extremum * (1 + (i % 2 ? 1 : -1) * std::ldexp(1.0 + k % 64 / 64.0, -8 - 2 * i))));
  }
  std::vector<T> r(points.size()), r2(points.size());
  for (const char* name : {"Sin", "Cos", "SinCos"})
    for (int level = 0; level < 3; ++level) {
      const Call<T> call = kernel<T>(name, level);
      call(int(points.size()), points.data(), nullptr, r.data(), r2.data());
      for (size_t i = 0; i < points.size(); ++i) {
        ASSERT_LE(std::fabs(r[i]), 1) << call.slot->name(level) << std::hexfloat << points[i];
        ASSERT_LE(std::fabs(r2[i]), 1) << call.slot->name(level) << std::hexfloat << points[i];
      }
      if (!strcmp(name, "Sin")) continue;
      for (const T zero : {T(0), -T(0)}) {
        T one[2];
        call(1, &zero, nullptr, one, one + 1);
        EXPECT_EQ(one[call.outputs() - 1], 1) << call.slot->name(level);
      }
    }
}

// A block's second vector path and scalar routine leave no trace on the lanes beside: the bits of
// every element are those of a call of its own, in place too, and events come in index order.
// 150 elements: more than two stages of the staged kernel.
TYPED_TEST(Trig, MixedSizes) {
  using T = TypeParam;
  constexpr int n = 150;
  const T pattern[] = {T(0.5),  T(-3e7), T(1e10), T(2), T(95000),     inf<T>,  T(-1e5), T(3e38),
                       T(-0.0), T(9e6),  T(1.5),  T(7), quiet_nan<T>, T(-2e4), T(0.1)};
  for (const Function& f : functions)
    for (int level = 0; level < 3; ++level) {
      const Call<T> call = kernel<T>(f.name, level);
      SCOPED_TRACE(call.slot->name(level));
      T a[n], r[n], r2[n], in_place[n], in_place2[n];
      std::vector<int> infinities;
      for (int i = 0; i < n; ++i) {
        // Runs of clean elements between, so that whole blocks are clean, rare or mixed.
        a[i] = in_place[i] = i % 40 < 25 ? pattern[i % 15] : T(i) / 8;
        if (std::isinf(a[i])) infinities.push_back(i);
      }
      const auto events = record_events([&] { call(n, a, nullptr, r, r2); });
      record_events([&] { call(n, in_place, nullptr, in_place, in_place2); });
      ASSERT_EQ(events.size(), infinities.size());
      for (size_t k = 0; k < events.size(); ++k) {
        EXPECT_EQ(events[k].index, infinities[k]);
        EXPECT_EQ(events[k].status, ZEM_STATUS_DOMAIN);
        EXPECT_EQ(events[k].name, report_name<T>(f, level));
      }
      for (int i = 0; i < n; ++i) {
        T one[2];
        record_events([&] { call(1, a + i, nullptr, one, one + 1); });
        ASSERT_EQ(bits(r[i]), bits(one[0])) << i;
        ASSERT_EQ(bits(in_place[i]), bits(one[0])) << i;
        if (call.outputs() == 2) {
          ASSERT_EQ(bits(r2[i]), bits(one[1])) << i;
          ASSERT_EQ(bits(in_place2[i]), bits(one[1])) << i;
        }
      }
    }
}

// tan of the double next to pi/2, and the single kernels at a border beside the rounded double.
TEST(TrigValues, Known) {
  const double x = 1.5707963267948966;
  for (int level = 0; level < 3; ++level) {
    double r;
    ork_zem_kernel_ClearErrStatus();
    kernel<double>("Tan", level)(1, &x, nullptr, &r, nullptr);
    EXPECT_NEAR(r, 1.633123935319537e16, 1.7e16 * 0x1p-26);
    EXPECT_EQ(ork_zem_kernel_GetErrStatus(), 0);
  }
  for (const float y : {9999.0f, 10001.0f}) {
    float r;
    kernel<float>("Sin", 1)(1, &y, nullptr, &r, nullptr);
    EXPECT_EQ(r, float(std::sin(double(y))));
  }
}

}  // namespace
