// Pow and Powx: special values in all combinations, statuses, the exponents that other functions
// serve, results at the ends of the range, published hard cases.
#include <quadmath.h>

#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/directed.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

template <class T>
constexpr bool wide = sizeof(T) == 8;

template <class T>
std::vector<Call<T>> kernels(const std::string& function) {
  std::vector<Call<T>> found;
  for (const auto& call : elementwise_kernels<T>())
    if (function == call.slot->function) found.push_back(call);
  return found;
}

template <class T>
class Powers : public testing::Test {
 protected:
  StateGuard guard;
  const T signalling = from_bits<T>(wide<T> ? 0x7FF0000000000001 : 0x7F800001);
  const T huge_even = std::ldexp(T(1), wide<T> ? 60 : 30);
  const T largest_odd = std::ldexp(T(1), wide<T> ? 53 : 24) - 1;

  static bool is_ha(const Call<T>& call) { return call.slot->kernels[call.level][2] != 'E'; }

  static void check(const Call<T>& call, T a, T b) {
    T r;
    call(1, &a, &b, &r, &r);
    const quad exact = powq(a, b);
    const T nearest = T(exact);
    const std::string where =
        call.slot->name(call.level) + "(" + std::to_string(a) + ", " + std::to_string(b) + ")";
    if (std::isinf(nearest) || std::isinf(r)) {
      // An overflow may begin half an ulp early or late.
      EXPECT_TRUE(r == nearest || fabsq(exact) > largest<T> / 2) << where << " gives " << r;
      return;
    }
    const quad ulp =
        std::max(T(std::fabs(std::nextafter(nearest, inf<T>) - nearest)), smallest_denormal<T>);
    const quad bound = is_ha(call) ? (wide<T> ? 0.6Q : 0.51Q) * ulp
                                   : fabsq(exact) * (wide<T> ? 0x1p-22 : 0x1p-12) + ulp;
    EXPECT_LE(double(fabsq(r - exact) / bound), 1.0) << where << " gives " << r;
  }
};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(Powers, Types);

// Against the C library's values; the statuses by their rule.
TYPED_TEST(Powers, SpecialValuesInAllCombinations) {
  using T = TypeParam;
  const T nan = quiet_nan<T>, dn = smallest_denormal<T>;
  const T values[] = {0,
                      -T(0),
                      1,
                      -1,
                      inf<T>,
                      -inf<T>,
                      nan,
                      -nan,
                      this->signalling,
                      dn,
                      -dn,
                      largest<T>,
                      -largest<T>,
                      2,
                      -2,
                      3,
                      -3,
                      T(0.25),
                      T(-0.25),
                      T(2.5),
                      T(-2.5),
                      this->huge_even,
                      -this->huge_even,
                      this->largest_odd,
                      -this->largest_odd,
                      T(0.75),
                      T(-0.75),
                      4,
                      -8};
  for (const std::string function : {"Pow", "Powx"})
    for (const auto& call : kernels<T>(function))
      for (const T a : values)
        for (const T b : values) {
          // Inv serves this one, and squares have no rare elements.
          if (function == "Powx" && (b == -1 || b == 2)) continue;
          // Not by the C library in T: its double function is off where a tie is near.
          const quad exact = powq(a, b);
          T expected = T(exact);
          if (std::isnan(a) && b == 0) expected = 1;  // signalling NaNs as well
          if (std::isnan(b) && a == 1) expected = 1;
          const int status = (a == 0 && b < 0) || (a < 0 && std::isfinite(a) && std::isfinite(b) &&
                                                   b != std::trunc(b))
                                 ? ZEM_STATUS_DOMAIN
                                 : 0;
          const T x[3] = {T(1.5), a, T(1.5)}, y[3] = {b, b, b};
          T r[3];
          const auto events = record_events([&] { call(3, x, y, r, r); });
          SCOPED_TRACE(call.slot->name(call.level) + "(" + std::to_string(a) + ", " +
                       std::to_string(b) + ")");
          if (std::isnan(expected)) {
            EXPECT_TRUE(std::isnan(r[1])) << r[1];
          } else if (expected == 0 || std::isinf(expected) || std::fabs(expected) == 1 ||
                     (this->is_ha(call) && exact == quad(expected))) {
            EXPECT_EQ(bits(r[1]), bits(expected)) << r[1] << " for " << expected;
          } else if (this->is_ha(call)) {
            const quad unit =
                scalbnq(1, std::max(ilogbq(exact), std::numeric_limits<T>::min_exponent - 1) + 1 -
                               std::numeric_limits<T>::digits);
            EXPECT_LE(double(fabsq(quad(r[1]) - exact) / unit), 0.6) << r[1] << " for " << expected;
          }
          ASSERT_EQ(events.size(), size_t(status != 0));
          if (status == 0) continue;
          EXPECT_EQ(events[0].status, status);
          EXPECT_EQ(events[0].index, 1);
          EXPECT_EQ(events[0].name, (wide<T> ? "vd" : "vs") + function);
          EXPECT_EQ(events[0].a1, a);
          EXPECT_EQ(events[0].a2, b);
        }
}

TYPED_TEST(Powers, CallbackReplacesInEveryLane) {
  using T = TypeParam;
  for (int level = 0; level < 3; ++level)
    check_special<T>({"Pow",
                      level,
                      wide<T> ? "vdPow" : "vsPow",
                      T(3),
                      T(2.5),
                      {{.a = -8, .r = quiet_nan<T>, .status = ZEM_STATUS_DOMAIN, .b = T(1) / 3},
                       {.a = 0, .r = inf<T>, .status = ZEM_STATUS_DOMAIN, .b = -1},
                       {.a = -T(0), .r = -inf<T>, .status = ZEM_STATUS_DOMAIN, .b = -3},
                       {.a = 1, .r = 1, .b = quiet_nan<T>},
                       {.a = 2, .r = inf<T>, .b = 1024}}});
}

// Bit for bit what the other function's HA kernel gives, statuses and names included.
TYPED_TEST(Powers, ExponentsOfOtherFunctions) {
  using T = TypeParam;
  const std::pair<double, const char*> rows[] = {{2.0, "Sqr"},
                                                 {0.5, "Sqrt"},
                                                 {-0.5, "InvSqrt"},
                                                 {-1.0, "Inv"},
                                                 {0.3333333333333333, "Cbrt"},
                                                 {-0.3333333333333333, "InvCbrt"},
                                                 {0.6666666666666666, "Pow2o3"},
                                                 {1.5, "Pow3o2"}};
  std::vector<T> x = {0,         -T(0), -1, inf<T>, -inf<T>, quiet_nan<T>, smallest_denormal<T>,
                      largest<T>};
  for (int i = 0; i < 1000; ++i) x.push_back(T(std::exp(0.1 * i - 50)));
  const int n = int(x.size());
  const Slot* powx = kernels<T>("Powx")[0].slot;
  for (const auto& [exponent, function] : rows) {
    const Slot* other = kernels<T>(function)[0].slot;
    std::vector<T> r(x.size()), want(x.size()), b(x.size(), T(exponent));
    const auto events = record_events([&] {
      Call<T>{powx, 1}(n, x.data(), b.data(), r.data(), r.data());
    });
    const auto wanted = record_events([&] {
      Call<T>{other, 1}(n, x.data(), x.data(), want.data(), want.data());
    });
    for (int i = 0; i < n; ++i) EXPECT_EQ(bits(r[i]), bits(want[i])) << function << " of " << x[i];
    ASSERT_EQ(events.size(), wanted.size()) << function;
    for (size_t i = 0; i < events.size(); ++i) {
      EXPECT_EQ(events[i].name, wanted[i].name);
      EXPECT_EQ(events[i].status, wanted[i].status);
      EXPECT_EQ(events[i].index, wanted[i].index);
    }
  }
}

// Overflow, denormal results, exponents of every size, next to 1, the borders of the tables.
TYPED_TEST(Powers, Errors) {
  using T = TypeParam;
  const double top = wide<T> ? 1024 : 128, bottom = wide<T> ? -1075 : -150;
  std::vector<T> bases = neighbours<T>({T(1), T(1.5), T(1.4995), T(2), largest<T>}, 3) +
                         spread<T>(0, 10, 40) +
                         std::vector<T>{smallest_denormal<T>, smallest_normal<T> / 3};
  for (int i = 0; i < 40; ++i) bases.push_back(T(1 + (i + 0.5) / 1024 + 1e-4));
  for (const auto& call : kernels<T>("Pow"))
    for (const T a : bases) {
      if (!(a > 0) || std::isinf(a)) continue;
      const double l = std::log2(double(a));
      if (l == 0) continue;
      for (int i = 0; i <= 40; ++i) {
        const T b = T((bottom + (top - bottom) * i / 40) / l);
        if (std::isfinite(b)) this->check(call, a, b);
      }
      for (const double q :
           {1e-300, 1e-20, -1e-9, top - 1e-3, bottom + 1e-3, bottom + 52.3, 999.9, -999.9, 1000.1})
        if (const T b = T(q / l); std::isfinite(b) && q < top && q > bottom)
          this->check(call, a, b);
    }
}

TYPED_TEST(Powers, ExactPowers) {
  using T = TypeParam;
  const int least = wide<T> ? -1074 : -149, most = wide<T> ? 1024 : 128;
  for (const auto& call : kernels<T>("Pow")) {
    if (!this->is_ha(call)) continue;
    for (int e = least; e < most; ++e) {
      const T a = e % 2 ? 2 : T(0.25), b = e % 2 ? T(e) : T(-e / 2);
      T r;
      call(1, &a, &b, &r, &r);
      ASSERT_EQ(r, std::ldexp(T(1), e)) << e;
    }
    const T a[4] = {-8, 3, 2, 2}, b[4] = {3, 5, T(least - 6), T(most)};
    T r[4];
    ork_zem_kernel_ClearErrStatus();
    call(4, a, b, r, r);
    EXPECT_EQ(r[0], -512);
    EXPECT_EQ(r[1], 243);
    EXPECT_EQ(bits(r[2]), bits(T(0)));
    EXPECT_EQ(r[3], inf<T>);
    EXPECT_EQ(ork_zem_kernel_GetErrStatus(), 0);
  }
}

TYPED_TEST(Powers, PublishedHardCases) {
  using T = TypeParam;
  const auto all = kernels<T>("Pow");
  for (const auto& row : published_cases<T>("pow"))
    if (row.at(0) > 0)
      for (const auto& call : all) this->check(call, T(row.at(0)), T(row.at(1)));
}

}  // namespace
