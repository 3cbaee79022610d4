// Statistics and splines through the public layer: bad arguments, and the same results as the
// entries behind it.
#include <algorithm>

#include "ork/front.h"
#include "status_rows.hpp"

namespace {

// ---- Statistics ----

template <class T>
struct Api {
  static constexpr auto create = __ruadSSNewTask;
  static constexpr auto edit = __ruadSSEditTask;
};
template <>
struct Api<float> {
  static constexpr auto create = __ruasSSNewTask;
  static constexpr auto edit = __ruasSSEditTask;
};

// Two variables of five observations. Integers are of 64 bits when `wide`.
template <class T>
struct Statistics {
  struct Output {
    int code;
    T value[2] = {7, 7};
  };
  bool wide;
  int64_t p = 2, n = 5, storage = ORK_SS_ROWS, orders = 1, one = 1;
  T x[10] = {1, 2, 3, 4, 10, 5, 4, 3, 2, 1}, order[1] = {0.5}, epsilon = T(0.01);
  Output mean{ORK_SS_EDIT_MEAN}, raw2{ORK_SS_EDIT_RAW2}, central2{ORK_SS_EDIT_CENTRAL2},
      sum{ORK_SS_EDIT_SUM}, least{ORK_SS_EDIT_MIN}, most{ORK_SS_EDIT_MAX},
      quantile{ORK_SS_EDIT_QUANTILES}, median{ORK_SS_EDIT_MEDIAN_ABS_DEV},
      away{ORK_SS_EDIT_MEAN_ABS_DEV}, streamed{ORK_SS_EDIT_STREAM_QUANTILES};
  Output* all[10] = {&mean, &raw2,     &central2, &sum,  &least,
                     &most, &quantile, &median,   &away, &streamed};
  ork_ss_task* task = nullptr;

  explicit Statistics(bool wide = false, bool observed = true) : wide(wide) {
    EXPECT_EQ(
        Api<T>::create(&task, at(p), observed ? at(n) : nullptr, observed ? at(storage) : nullptr,
                       observed ? x : nullptr, nullptr, nullptr, wide),
        0);
    for (Output* o : all) EXPECT_EQ(Api<T>::edit(task, o->code, o->value), 0);
    Api<T>::edit(task, ORK_SS_EDIT_QUANTILE_ORDERS, order);
    Api<T>::edit(task, ORK_SS_EDIT_STREAM_ORDERS, order);
    Api<T>::edit(task, ORK_SS_EDIT_STREAM_PARAMS, &epsilon);
    set(ORK_SS_EDIT_QUANTILE_COUNT, orders);
    set(ORK_SS_EDIT_STREAM_ORDER_COUNT, orders);
    set(ORK_SS_EDIT_STREAM_PARAM_COUNT, one);
  }
  ~Statistics() { __ruaSSDeleteTask(&task); }
  static int32_t* at(int64_t& value) { return reinterpret_cast<int32_t*>(&value); }
  void set(int code, int64_t& value) { EXPECT_EQ(__ruaiSSEditTask(task, code, at(value)), 0); }
  bool untouched() const {
    return std::all_of(std::begin(all), std::end(all),
                       [](const Output* o) { return o->value[0] == 7 && o->value[1] == 7; });
  }
  int compute(uint64_t estimates, uint64_t method, const ork_threader* threader = nullptr) {
    return ork_ss_compute(task, estimates, method, threader);
  }
};

constexpr uint64_t some = ORK_SS_MEAN | ORK_SS_CENTRAL2 | ORK_SS_MIN | ORK_SS_MAX |
                          ORK_SS_QUANTILES | ORK_SS_MEDIAN_ABS_DEV;
// Each computation, by what of it reads observations.
const struct {
  uint64_t estimate, method;
} readers[] = {{ORK_SS_MEAN, ORK_SS_FAST},
               {ORK_SS_MEAN, ORK_SS_TWO_PASS},
               {ORK_SS_MIN, ORK_SS_FAST},
               {ORK_SS_MAX, ORK_SS_ONE_PASS},
               {ORK_SS_QUANTILES, ORK_SS_FAST},
               {ORK_SS_QUANTILES, ORK_SS_STREAM},
               {ORK_SS_MEDIAN_ABS_DEV, ORK_SS_FAST},
               {ORK_SS_MEAN_ABS_DEV, ORK_SS_FAST},
               {ORK_SS_MEAN_ABS_DEV, ORK_SS_TWO_PASS}};

template <class T>
struct FrontStatistics : testing::Test {};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(FrontStatistics, Types);

TYPED_TEST(FrontStatistics, EachEstimateByTheMethodThatServesIt) {
  for (const ork_threader* threader :
       {&ork_threader_serial, &ork_threader_parallel, (const ork_threader*)nullptr}) {
    Statistics<TypeParam> s;
    EXPECT_EQ(s.compute(0, 0, threader), 0) << "no estimate";
    EXPECT_EQ(s.compute(some, ORK_SS_FAST, threader), 0);
    EXPECT_TRUE(s.mean.value[0] == 4 && s.mean.value[1] == 3);
    EXPECT_EQ(s.central2.value[0], TypeParam(12.5));
    EXPECT_TRUE(s.least.value[0] == 1 && s.most.value[0] == 10);
    EXPECT_TRUE(s.quantile.value[0] == 3 && s.quantile.value[1] == 3);
    EXPECT_EQ(s.median.value[0], 1);
    EXPECT_TRUE(s.streamed.value[0] == 7 && s.away.value[0] == 7);
    EXPECT_EQ(s.compute(ORK_SS_QUANTILES, ORK_SS_STREAM, threader), 0);
    EXPECT_NEAR(s.streamed.value[0], 3, 1) << "a median of 1, 2, 3, 4, 10 by rank";
    s.n = 0;  // no new values: what was streamed still has its quantiles
    s.streamed.value[0] = 7;
    EXPECT_EQ(s.compute(ORK_SS_QUANTILES, ORK_SS_STREAM, threader), 0);
    EXPECT_NEAR(s.streamed.value[0], 3, 1);
  }
}

TYPED_TEST(FrontStatistics, MethodsAndArraysAreChecked) {
  EXPECT_EQ(ork_ss_compute(nullptr, ORK_SS_MEAN, ORK_SS_FAST, nullptr), ORK_SS_NULL_TASK);
  Statistics<TypeParam> s;
  const StatusRow refused[] = {
      {"no method", ORK_SS_BAD_METHOD, [&] { return s.compute(some, 0); }},
      {"an estimate unserved", ORK_SS_BAD_METHOD, [&] { return s.compute(some, ORK_SS_ONE_PASS); }},
      {"two methods for an estimate", ORK_SS_BAD_METHOD,
       [&] { return s.compute(some, ORK_SS_FAST | ORK_SS_ONE_PASS); }},
      {"unknown estimate", ORK_SS_BAD_METHOD,
       [&] { return s.compute(some | 1ull << 50, ORK_SS_FAST); }},
      {"array missing", ORK_SS_NULL_RAW4,
       [&] { return s.compute(ORK_SS_RAW4 | ORK_SS_MIN, ORK_SS_FAST); }}};
  expect_statuses(refused);
  EXPECT_TRUE(s.untouched());
}

// Kernels trust numbers and arrays; nothing is computed when one of the computations has to
// refuse.
TYPED_TEST(FrontStatistics, WhatAComputationReadsIsThere) {
  const int64_t high = int64_t{1} << 32, top = int64_t{1} << 31;
  for (const bool wide : {false, true})
    for (const auto& r : readers) {
      Statistics<TypeParam> s(wide), bare(wide, false);
      const auto refuse = [&](Statistics<TypeParam>& t, int status, const char* what) {
        EXPECT_EQ(t.compute(r.estimate, r.method), status) << what << " " << r.estimate;
        EXPECT_EQ(t.compute(r.estimate | ORK_SS_SUM, r.method | ORK_SS_ONE_PASS), status) << what;
        EXPECT_TRUE(t.untouched()) << what << " " << r.estimate;
      };
      for (const int64_t bad : {int64_t{0}, int64_t{-1}, wide ? top : -top, wide ? high : 0, -high})
        s.p = bad, refuse(s, ORK_SS_BAD_DIMENSION, "p");
      s.p = 2;
      for (const int64_t bad : {int64_t{-1}, wide ? top : -top}) {
        s.n = bad;
        refuse(s, ORK_SS_BAD_OBSERVATION_COUNT, "n");
      }
      s.n = 0;
      if (r.method != ORK_SS_STREAM) refuse(s, ORK_SS_BAD_OBSERVATION_COUNT, "n");
      s.n = 5;
      refuse(bare, ORK_SS_BAD_OBSERVATION_COUNT, "no n");
      bare.n = 1;
      bare.set(ORK_SS_EDIT_OBSERVATION_COUNT, bare.n);
      refuse(bare, ORK_SS_NULL_OBSERVATIONS, "no x");
      Api<TypeParam>::edit(bare.task, ORK_SS_EDIT_OBSERVATIONS, bare.x);
      refuse(bare, ORK_SS_NULL_STORAGE, "no layout");
      if (r.estimate == ORK_SS_QUANTILES)
        for (const int64_t bad : {int64_t{-1}, wide ? high : -1}) {
          s.orders = bad;
          refuse(s, r.method == ORK_SS_FAST ? ORK_SS_BAD_QUANTILES : ORK_SS_BAD_STREAM_ORDERS,
                 "orders");
        }
    }
  // From sums no observation is read, but all variables are.
  Statistics<TypeParam> sums(false, false);
  sums.sum.value[0] = 20, sums.sum.value[1] = 15;
  for (const int64_t bad : {0, -1}) {
    sums.p = bad;
    EXPECT_EQ(sums.compute(ORK_SS_MEAN, ORK_SS_FROM_SUMS), ORK_SS_BAD_DIMENSION);
  }
  sums.p = 2;
  EXPECT_EQ(sums.compute(ORK_SS_MEAN, ORK_SS_FROM_SUMS), ORK_SS_NULL_ACCUMULATED_WEIGHT);
  sums.set(ORK_SS_EDIT_OBSERVATION_COUNT, sums.n);
  EXPECT_EQ(sums.compute(ORK_SS_MEAN, ORK_SS_FROM_SUMS), 0);
  EXPECT_TRUE(sums.mean.value[0] == 4 && sums.mean.value[1] == 3);
}

// ---- Splines ----

struct Spline {
  // f(x) = x^3 - 2x on an uneven grid
  double x[6] = {0, 0.5, 1.5, 2, 3, 4}, y[6], coeffs[3 * 6 * 4] = {};
  ork_df_task* task = nullptr;
  static double f(double s) { return s * s * s - 2 * s; }
  Spline() {
    for (int i = 0; i < 6; ++i) y[i] = f(x[i]);
    EXPECT_EQ(ork_df_kernel_dNewTask1D(&task, 6, x, 0, 1, y, 0, 0), 0);
  }
  ~Spline() { ork_df_kernel_DeleteTask(&task); }
  int name(int order, int type, int bc, const double* bc_values, const double* ic_values) {
    return ork_df_kernel_dEditPPSpline1D(task, order, type, bc, bc_values, ic_values ? 1 : 0,
                                         ic_values, coeffs, 0);
  }
};

TEST(FrontSplines, ConstructByTheTasksKind) {
  const double second[] = {0, 24}, slopes[] = {-1, 5, 9, 20}, middle[] = {Spline::f(0.25)},
               bends[] = {3, 9, 12, 18}, first[] = {-2, 46};
  const struct {
    const char* what;
    int order, type, bc;
    const double *bc_values, *ic_values;
    ork_df_construct* entry;
  } rows[] = {
      {"linear", 2, 0, 0, nullptr, nullptr, ork_df_kernel_dDFLinearSpline1D},
      {"quadratic", 3, 0, 128, middle, nullptr, ork_df_kernel_dDFQuadraticSpline1D},
      {"default", 4, 0, 16 | 32, second, bends, ork_df_kernel_dDFDefaultCubicSpline1D},
      {"natural", 4, ORK_DF_TYPE_NATURAL, 16 | 32, second, nullptr,
       ork_df_kernel_dDFNaturalCubicSpline1D},
      {"Hermite", 4, 3, 4 | 8, first, slopes, ork_df_kernel_dDFHermiteCubicSpline1D},
      {"Bessel", 4, ORK_DF_TYPE_BESSEL, 4 | 8, first, nullptr,
       ork_df_kernel_dDFBesselCubicSpline1D},
      {"Akima", 4, ORK_DF_TYPE_AKIMA, 4 | 8, first, nullptr, ork_df_kernel_dDFAkimaCubicSpline1D}};
  std::vector<std::vector<double>> all;
  for (const auto& row : rows) {
    Spline by_front, by_entry;
    ASSERT_EQ(by_front.name(row.order, row.type, row.bc, row.bc_values, row.ic_values), 0)
        << row.what;
    ASSERT_EQ(by_entry.name(row.order, row.type, row.bc, row.bc_values, row.ic_values), 0);
    EXPECT_EQ(ork_dDFConstruct(by_front.task, nullptr), 0) << row.what;
    EXPECT_EQ(row.entry(by_entry.task, 0, 0, &ork_threader_serial), 0) << row.what;
    EXPECT_EQ(memcmp(by_front.coeffs, by_entry.coeffs, sizeof by_front.coeffs), 0) << row.what;
    for (const auto& other : all)
      EXPECT_NE(memcmp(other.data(), by_front.coeffs, sizeof by_front.coeffs), 0)
          << row.what << ": kinds differ";
    all.emplace_back(std::begin(by_front.coeffs), std::end(by_front.coeffs));
  }
}

TEST(FrontSplines, ValuesAndIntegralsOfACubic) {
  Spline s;
  const double second[] = {0, 24};
  ASSERT_EQ(s.name(4, ORK_DF_TYPE_NATURAL, 16 | 32, second, nullptr), 0);
  ASSERT_EQ(ork_dDFConstruct(s.task, &ork_threader_parallel), 0);
  const double ends[] = {0, 4}, left[] = {0, 1, 3.5}, right[] = {4, 1, 0.25};
  double value[9], integral[3];
  ASSERT_EQ(ork_dDFInterpolate(s.task, 9, ends, ORK_DF_SITES_UNIFORM, value, nullptr), 0);
  for (int j = 0; j < 9; ++j) EXPECT_NEAR(value[j], Spline::f(0.5 * j), 1e-12) << j;
  ASSERT_EQ(ork_dDFIntegrate(s.task, 3, left, right, integral, &ork_threader_parallel), 0);
  const auto primitive = [](double t) { return t * t * t * t / 4 - t * t; };
  for (int j = 0; j < 3; ++j)
    EXPECT_NEAR(integral[j], primitive(right[j]) - primitive(left[j]), 1e-12) << j;
}

// Linear splines in the plane, in single precision: functions 0, 1, 4, 9 and 1, 3, 5, 7.
struct Lines {
  float x[4] = {0, 1, 2, 3}, y[8] = {0, 1, 4, 9, 1, 3, 5, 7}, coeffs[12];
  ork_df_task* task = nullptr;
  explicit Lines(int64_t y_hint = 0, int64_t coeff_hint = 0, int order = 2, int type = 0) {
    EXPECT_EQ(ork_df_kernel_sNewTask1D(&task, 4, x, 0, 2, y, y_hint, 0), 0);
    EXPECT_EQ(ork_df_kernel_sEditPPSpline1D(task, order, type, 0, nullptr, 0, nullptr, coeffs,
                                            coeff_hint),
              0);
  }
  ~Lines() { ork_df_kernel_DeleteTask(&task); }
};

TEST(FrontSplines, SinglePrecisionTwins) {
  Lines s;
  const float site[2] = {0.5f, 2.5f}, left[2] = {0, 3}, right[2] = {1, 1};
  float value[4], integral[4];
  EXPECT_EQ(ork_sDFConstruct(s.task, nullptr), 0);
  EXPECT_EQ(ork_sDFInterpolate(s.task, 2, site, 0, value, nullptr), 0);
  EXPECT_EQ(ork_sDFIntegrate(s.task, 2, left, right, integral, nullptr), 0);
  const float values[] = {0.5f, 6.5f, 2, 6},
              integrals[] = {0.5f, -9, 2, -10};  // function by function
  for (int j = 0; j < 4; ++j)
    EXPECT_TRUE(value[j] == values[j] && integral[j] == integrals[j]) << j;
}

// Of rows apart the first comes with the task, the others one by one.
TEST(FrontSplines, RowsThatWereNeverSet) {
  const float site[] = {0.5f, 1.5f, 2.5f};
  float r[6] = {7};
  const struct {
    int y_hint, coeff_hint, order, type, status;
  } rows[] = {{ORK_DF_ROWS_APART, 0, 2, 0, ORK_DF_BAD_Y},
              {0, ORK_DF_ROWS_APART, 2, 0, ORK_DF_BAD_COEFFS},
              {ORK_DF_ROWS_APART, 0, 0, ORK_DF_TYPE_STEP_LEFT, ORK_DF_BAD_Y},
              {ORK_DF_ROWS_APART, 0, 0, ORK_DF_TYPE_STEP_RIGHT, ORK_DF_BAD_Y}};
  for (const auto& row : rows) {
    Lines s(row.y_hint, row.coeff_hint, row.order, row.type);
    const bool constructed = row.order != 0, ready = row.status == ORK_DF_BAD_Y && constructed;
    if (constructed) {
      EXPECT_EQ(ork_sDFConstruct(s.task, nullptr), row.status);
    }
    if (!ready) {
      for (const int n : {1, 3}) {
        EXPECT_EQ(ork_sDFInterpolate(s.task, n, site, 0, r, nullptr), row.status) << row.type;
        EXPECT_EQ(ork_sDFIntegrate(s.task, n, site, site + 1 - n / 2, r, nullptr), row.status)
            << row.type;
      }
    }
    EXPECT_EQ(r[0], 7);
    if (row.y_hint != 0)
      EXPECT_EQ(ork_df_kernel_sEditIdxPtr(s.task, ORK_DF_PTR_Y, 1, s.y + 4), 0);
    else
      EXPECT_EQ(ork_df_kernel_sEditIdxPtr(s.task, ORK_DF_PTR_COEFFS, 1, s.coeffs + 6), 0);
    if (constructed) {
      EXPECT_EQ(ork_sDFConstruct(s.task, nullptr), 0);
    }
    EXPECT_EQ(ork_sDFInterpolate(s.task, 3, site, 0, r, nullptr), 0);
    r[0] = 7;
  }
}

TEST(FrontSplines, BadArguments) {
  Spline s, unnamed, step;
  ASSERT_EQ(s.name(2, 0, 0, nullptr, nullptr), 0);
  ASSERT_EQ(step.name(0, ORK_DF_TYPE_DEFAULT, 0, nullptr, nullptr), 0);
  ASSERT_EQ(ork_dDFConstruct(s.task, nullptr), 0);
  Lines single;
  const double at[] = {1};
  const float at_single[] = {1};
  double r[1] = {7};
  float r_single[1] = {7};
  const StatusRow rows[] = {
      {"construct, other precision", ORK_DF_BAD_TYPE,
       [&] { return ork_dDFConstruct(single.task, nullptr); }},
      {"construct, other precision", ORK_DF_BAD_TYPE,
       [&] { return ork_sDFConstruct(s.task, nullptr); }},
      {"interpolate, other precision", ORK_DF_BAD_TYPE,
       [&] { return ork_dDFInterpolate(single.task, 1, at, 0, r, nullptr); }},
      {"interpolate, other precision", ORK_DF_BAD_TYPE,
       [&] { return ork_sDFInterpolate(s.task, 1, at_single, 0, r_single, nullptr); }},
      {"integrate, other precision", ORK_DF_BAD_TYPE,
       [&] { return ork_dDFIntegrate(single.task, 1, at, at, r, nullptr); }},
      {"integrate, other precision", ORK_DF_BAD_TYPE,
       [&] { return ork_sDFIntegrate(s.task, 1, at_single, at_single, r_single, nullptr); }},
      {"construct, null", -1000, [&] { return ork_dDFConstruct(nullptr, nullptr); }},
      {"construct, null, single", -1000, [&] { return ork_sDFConstruct(nullptr, nullptr); }},
      {"construct, order 0", ORK_DF_BAD_TYPE, [&] { return ork_dDFConstruct(step.task, nullptr); }},
      {"interpolate, null", -1000,
       [&] { return ork_dDFInterpolate(nullptr, 1, at, 0, r, nullptr); }},
      {"interpolate, negative count", -1004,
       [&] { return ork_dDFInterpolate(s.task, -1, at, 0, r, nullptr); }},
      {"interpolate, count of 33 bits", -1004,
       [&] { return ork_dDFInterpolate(s.task, int64_t{1} << 32 | 1, at, 0, r, nullptr); }},
      {"interpolate, no sites", -1005,
       [&] { return ork_dDFInterpolate(s.task, 1, nullptr, 0, r, nullptr); }},
      {"interpolate, no result", -1037,
       [&] { return ork_dDFInterpolate(s.task, 1, at, 0, nullptr, nullptr); }},
      {"interpolate, nothing", 0,
       [&] { return ork_dDFInterpolate(s.task, 0, nullptr, 0, nullptr, nullptr); }},
      {"integrate, null", -1000, [&] { return ork_dDFIntegrate(nullptr, 1, at, at, r, nullptr); }},
      {"integrate, negative count", -1004,
       [&] { return ork_dDFIntegrate(s.task, -1, at, at, r, nullptr); }},
      {"integrate, no left", -1005,
       [&] { return ork_dDFIntegrate(s.task, 1, nullptr, at, r, nullptr); }},
      {"integrate, no right", -1005,
       [&] { return ork_dDFIntegrate(s.task, 1, at, nullptr, r, nullptr); }},
      {"integrate, no result", -1037,
       [&] { return ork_dDFIntegrate(s.task, 1, at, at, nullptr, nullptr); }}};
  expect_statuses(rows);
  EXPECT_LT(ork_dDFConstruct(unnamed.task, nullptr), 0);
  EXPECT_LT(ork_dDFInterpolate(unnamed.task, 1, at, 0, r, nullptr), 0);
  EXPECT_LT(ork_dDFIntegrate(unnamed.task, 1, at, at, r, nullptr), 0);
  EXPECT_EQ(r[0], 7);
}

}  // namespace
