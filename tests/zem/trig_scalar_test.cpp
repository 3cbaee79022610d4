// The exported scalar trigonometry: reduction, values, the array forms and their reports.
#include <quadmath.h>

#include "ork/zem_scalar.h"
#include "support/bits.hpp"
#include "support/control.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

using quad = __float128;

std::vector<double> arguments() {
  std::vector<double> x = {0x1.6c6cbc45dc8dep+5,   0x1.65a1dd290660fp+16,
                           0x1.d3ecce1f28274p+22,  0x1.b951f1572eba5p+23,
                           0x1.6ac5b262ca1ffp+849, 1e22,
                           1.7976931348623157e308, 1e-3,
                           0.7853981633974483,     0.7853981633974484,
                           2.356194490192345,      1.5707963267948966};
  for (int e = -3; e < 1024; ++e)  // every road of the reduction, every row of its table
    for (const double m : {1.0, 1.9999999999999998, 1.2732395447351628, 1.5 + e * 0x1p-20})
      x.push_back(std::ldexp(m, e));
  for (size_t i = 0, n = x.size(); i < n; ++i) x.push_back(-x[i]);
  return x;
}

// x = k pi/2 + r: sine and cosine of r, turned by k quarters, are those of x, and to far more
// digits than a double has: r is a sum of two.
TEST(ReducePio2d, QuadrantAndTwoParts) {
  for (const double x : arguments()) {
    double r[2] = {7, 7};
    const int k = ork_zem_kernel_reduce_pio2d(x, r);
    ASSERT_TRUE(k >= 0 && k < 4) << std::hexfloat << x;
    ASSERT_LE(std::fabs(r[0]), 0.7853981633974484) << std::hexfloat << x;
    ASSERT_EQ(r[0], r[0] + r[1]) << std::hexfloat << x;
    const quad sum = quad(r[0]) + r[1], s = sinq(sum), c = cosq(sum);
    const quad sine[4] = {s, c, -s, -c}, cosine[4] = {c, -s, -c, s};
    // Next to a multiple of pi/2 shows where the reduction ends: the parts of pi/4 at 2^-142 of n,
    // the sum of products at 2^-125.
    const double bound = std::fabs(x) < 0x1p30 ? 0x1p-59 : 0x1p-64;
    ASSERT_LT(double(fabsq(sine[k] / sinq(x) - 1)), bound) << std::hexfloat << x;
    ASSERT_LT(double(fabsq(cosine[k] / cosq(x) - 1)), bound) << std::hexfloat << x;
  }
}

TEST(ReducePio2d, WorksUnderAnyControlWord) {
  const StateGuard state;
  for (const unsigned short word : {0x007F, 0x027F, 0x0F7F}) {
    set_x87_control(word);
    double r[2];
    const int k = ork_zem_kernel_reduce_pio2d(1e22, r);
    EXPECT_EQ(x87_control(), word);
    set_x87_control(0x037F);
    ASSERT_EQ(k, 3);
    EXPECT_LT(double(fabsq(cosq(quad(r[0]) + r[1]) / -sinq(1e22) - 1)), 0x1p-75);
  }
}

double ulps(double got, quad exact) {
  return double(scalbnq(fabsq(got - exact), 52 - std::max(ilogbq(exact), -1022)));
}

TEST(ScalarTrig, Values) {
  for (const double x : arguments()) {
    double s, c;
    _dSinCos(x, &s, &c);
    EXPECT_EQ(bits(s), bits(_dSin(x)));
    EXPECT_EQ(bits(c), bits(_dCos(x)));
    ASSERT_LE(ulps(s, sinq(x)), 0.52) << std::hexfloat << x;
    ASSERT_LE(ulps(c, cosq(x)), 0.52) << std::hexfloat << x;
    ASSERT_LE(ulps(_dTan(x), tanq(x)), 0.55) << std::hexfloat << x;
  }
  for (const double x :
       {0.0, -0.0, 0x1p-1074, -0x1p-1074, 0x1p-1022, 0x1p-253, -0x1p-252, 0x1.8p-252}) {
    EXPECT_EQ(bits(_dSin(x)), bits(x));
    EXPECT_EQ(bits(_dTan(x)), bits(x));
    EXPECT_EQ(_dCos(x), 1.0);
  }
  for (const double x : {inf<double>, -inf<double>, quiet_nan<double>}) {
    double s, c;
    _dSinCos(x, &s, &c);
    for (const double r : {s, c, _dSin(x), _dCos(x), _dTan(x)}) EXPECT_TRUE(std::isnan(r));
  }
}

#define NAMED(name)                                                                               \
  {                                                                                               \
    {#name "_HA", ork_zem_kernel_##name##_SC_HA}, {#name "_LA", ork_zem_kernel_##name##_SC_LA}, { \
#name "_A11", ork_zem_kernel_##name##_SC_A11                                                \
    }                                                                                             \
  }

template <class F>
struct Named {
  const char* report;
  F* call;
};

// r[index] alone is written, with the scalar's value; an infinity raises its event there, under
// the form's name, and a callback's result stands.
template <class T, class F>
void check_form(const Named<F>& form, double (*first)(double), double (*second)(double)) {
  SCOPED_TRACE(form.report);
  constexpr int index = 3;
  T a[5] = {1, 2, 3, T(0.75), 5}, r[5] = {}, r2[5] = {};
  const auto run = [&] {
    if constexpr (std::is_invocable_v<F, const T*, T*, T*, int>)
      form.call(a, r, r2, index);
    else
      form.call(a, r, index);
  };
  for (const T x : {T(0.75), T(-1e5), T(1e30), T(-0.0), quiet_nan<T>, inf<T>}) {
    a[index] = x;
    const double replacement = 42;
    const bool bad = std::isinf(x);
    const auto events = record_events(run, bad ? &replacement : nullptr);
    ASSERT_EQ(events.size(), size_t(bad));
    if (bad) {
      EXPECT_EQ(events[0].name, form.report);
      EXPECT_EQ(events[0].index, index);
      EXPECT_EQ(events[0].status, ZEM_STATUS_DOMAIN);
      EXPECT_EQ(events[0].a1, double(x));
      EXPECT_TRUE(std::isnan(events[0].r1) && std::isnan(events[0].r2));
      EXPECT_EQ(r[index], T(42));
      if (second) {
        EXPECT_EQ(r2[index], T(42));
      }
    } else if (std::isnan(x)) {
      EXPECT_TRUE(std::isnan(r[index]));
    } else {
      EXPECT_EQ(bits(r[index]), bits(T(first(x))));
      if (second) {
        EXPECT_EQ(bits(r2[index]), bits(T(second(x))));
      }
    }
    for (int i = 0; i < 5; ++i) EXPECT_TRUE(i == index || (r[i] == 0 && r2[i] == 0)) << i;
  }
}

TEST(ScalarTrig, ArrayForms) {
  using D = void(const double*, double*, int);
  using S = void(const float*, float*, int);
  using D2 = void(const double*, double*, double*, int);
  using S2 = void(const float*, float*, float*, int);
  for (const auto& f : std::vector<Named<D>> NAMED(dSin)) check_form<double>(f, _dSin, nullptr);
  for (const auto& f : std::vector<Named<D>> NAMED(dCos)) check_form<double>(f, _dCos, nullptr);
  for (const auto& f : std::vector<Named<D>> NAMED(dTan)) check_form<double>(f, _dTan, nullptr);
  for (const auto& f : std::vector<Named<D2>> NAMED(dSinCos)) check_form<double>(f, _dSin, _dCos);
  for (const auto& f : std::vector<Named<S>> NAMED(sSin)) check_form<float>(f, _dSin, nullptr);
  for (const auto& f : std::vector<Named<S>> NAMED(sCos)) check_form<float>(f, _dCos, nullptr);
  for (const auto& f : std::vector<Named<S>> NAMED(sTan)) check_form<float>(f, _dTan, nullptr);
  for (const auto& f : std::vector<Named<S2>> NAMED(sSinCos)) check_form<float>(f, _dSin, _dCos);
}

// The forms that take the name; in place; and the unit's control word as it was.
TEST(ScalarTrig, GivenName) {
  const StateGuard state;
  set_x87_control(0x0F7F);
  double a[2] = {inf<double>, 0.5}, r2[2];
  const auto events = record_events([&] {
    ork_zem_kernel_dSin_SC(a, a, 1, "unused");
    ork_zem_kernel_dCos_SC(a, a, 0, "cosine here");
    a[0] = inf<double>;
    ork_zem_kernel_dTan_SC(a, a, 0, "tangent here");
    a[0] = inf<double>;
    ork_zem_kernel_dSinCos_SC(a, a, r2, 0, "both here");
  });
  EXPECT_EQ(x87_control(), 0x0F7F);
  set_x87_control(0x037F);
  EXPECT_EQ(a[1], _dSin(0.5));
  ASSERT_EQ(events.size(), 3u);
  EXPECT_EQ(events[0].name, "cosine here");
  EXPECT_EQ(events[1].name, "tangent here");
  EXPECT_EQ(events[2].name, "both here");
  EXPECT_TRUE(std::isnan(a[0]) && std::isnan(r2[0]));
}

}  // namespace
