// Statistics and splines through the public layer: bad arguments, and the same results as the
// entries behind it.
#include "ork/front.h"
#include "status_rows.hpp"

namespace {

// ---- Statistics ----

template <class T>
struct Statistics {
  static constexpr bool wide = sizeof(T) == 8;
  int p = 2, n = 5, storage = ORK_SS_ROWS, orders = 1;
  T x[10] = {1, 2, 3, 4, 10, 5, 4, 3, 2, 1}, mean[2], raw2[2], central2[2], least[2], most[2],
    quantile[2], deviation[2];
  T order[1] = {0.5};
  ork_ss_task* task = nullptr;

  static constexpr auto edit = [] {
    if constexpr (wide)
      return __ruadSSEditTask;
    else
      return __ruasSSEditTask;
  }();
  Statistics() {
    const auto make = [] {
      if constexpr (wide)
        return __ruadSSNewTask;
      else
        return __ruasSSNewTask;
    }();
    EXPECT_EQ(make(&task, &p, &n, &storage, x, nullptr, nullptr, 0), 0);
    const struct {
      int code;
      T* array;
    } outputs[] = {{ORK_SS_EDIT_MEAN, mean},
                   {ORK_SS_EDIT_RAW2, raw2},
                   {ORK_SS_EDIT_CENTRAL2, central2},
                   {ORK_SS_EDIT_MIN, least},
                   {ORK_SS_EDIT_MAX, most},
                   {ORK_SS_EDIT_QUANTILES, quantile},
                   {ORK_SS_EDIT_QUANTILE_ORDERS, order},
                   {ORK_SS_EDIT_MEDIAN_ABS_DEV, deviation}};
    for (const auto& o : outputs) EXPECT_EQ(edit(task, o.code, o.array), 0);
    EXPECT_EQ(__ruaiSSEditTask(task, ORK_SS_EDIT_QUANTILE_COUNT, &orders), 0);
    for (T* array : {mean, raw2, central2, least, most, quantile, deviation})
      array[0] = array[1] = 7;
  }
  ~Statistics() { __ruaSSDeleteTask(&task); }

  void check() {
    constexpr uint64_t all = ORK_SS_MEAN | ORK_SS_CENTRAL2 | ORK_SS_MIN | ORK_SS_MAX |
                             ORK_SS_QUANTILES | ORK_SS_MEDIAN_ABS_DEV;
    const StatusRow refused[] = {
        {"no method", ORK_SS_BAD_METHOD, [&] { return ork_ss_compute(task, all, 0, nullptr); }},
        {"one estimate unserved", ORK_SS_BAD_METHOD,
         [&] { return ork_ss_compute(task, all, ORK_SS_ONE_PASS, nullptr); }},
        {"two methods for one estimate", ORK_SS_BAD_METHOD,
         [&] { return ork_ss_compute(task, all, ORK_SS_FAST | ORK_SS_ONE_PASS, nullptr); }},
        {"unknown estimate", ORK_SS_BAD_METHOD,
         [&] { return ork_ss_compute(task, all | 1ull << 50, ORK_SS_FAST, nullptr); }},
        {"array missing", ORK_SS_NULL_RAW4,
         [&] { return ork_ss_compute(task, ORK_SS_RAW4 | ORK_SS_MIN, ORK_SS_FAST, nullptr); }}};
    expect_statuses(refused);
    for (const T* array : {mean, central2, least, most, quantile, deviation})
      EXPECT_EQ(array[0], 7);
    for (const ork_threader* threader :
         {&ork_threader_serial, &ork_threader_parallel, (const ork_threader*)nullptr}) {
      least[0] = least[1] = 100, most[0] = most[1] = -100;
      EXPECT_EQ(ork_ss_compute(task, all, ORK_SS_FAST, threader), 0);
      EXPECT_EQ(mean[0], 4);
      EXPECT_EQ(mean[1], 3);
      EXPECT_EQ(central2[0], T(12.5));
      EXPECT_TRUE(least[0] == 1 && most[0] == 10 && least[1] == 1 && most[1] == 5);
      EXPECT_TRUE(quantile[0] == 3 && quantile[1] == 3);
      EXPECT_EQ(deviation[0], 1);
    }
    EXPECT_EQ(ork_ss_compute(task, 0, 0, nullptr), 0) << "nothing asked for";
  }

  // A task without what extremes and quantiles read.
  void check_shape() {
    const auto refuse = [&](int status) {
      for (const uint64_t estimate : {ORK_SS_MIN, ORK_SS_MAX, ORK_SS_QUANTILES, ORK_SS_ORDER_STATS})
        EXPECT_EQ(ork_ss_compute(task, estimate, ORK_SS_FAST, nullptr), status);
    };
    p = 0, refuse(ORK_SS_BAD_DIMENSION), p = 2;
    n = -1, refuse(ORK_SS_BAD_OBSERVATION_COUNT), n = 5;
    __ruaSSDeleteTask(&task);
    const auto make = [] {
      if constexpr (wide)
        return __ruadSSNewTask;
      else
        return __ruasSSNewTask;
    }();
    EXPECT_EQ(make(&task, &p, nullptr, nullptr, nullptr, nullptr, nullptr, 0), 0);
    refuse(ORK_SS_BAD_OBSERVATION_COUNT);
    __ruaiSSEditTask(task, ORK_SS_EDIT_OBSERVATION_COUNT, &n);
    refuse(ORK_SS_NULL_OBSERVATIONS);
    edit(task, ORK_SS_EDIT_OBSERVATIONS, x);
    refuse(ORK_SS_NULL_STORAGE);
  }

  void check_streaming() {
    const T epsilon = T(0.01);
    T streamed[2] = {};
    const int one = 1;
    __ruaiSSEditTask(task, ORK_SS_EDIT_STREAM_PARAM_COUNT, &one);
    __ruaiSSEditTask(task, ORK_SS_EDIT_STREAM_ORDER_COUNT, &one);
    edit(task, ORK_SS_EDIT_STREAM_PARAMS, const_cast<T*>(&epsilon));
    edit(task, ORK_SS_EDIT_STREAM_ORDERS, order);
    edit(task, ORK_SS_EDIT_STREAM_QUANTILES, streamed);
    EXPECT_EQ(ork_ss_compute(task, ORK_SS_QUANTILES, ORK_SS_STREAM, nullptr), 0);
    EXPECT_NEAR(streamed[0], 3, 1) << "a median of 1, 2, 3, 4, 10 by rank";
    EXPECT_EQ(quantile[0], 7) << "the exact one was not asked for";
  }
};

TEST(FrontStatistics, ChecksAndComputes) {
  EXPECT_EQ(ork_ss_compute(nullptr, ORK_SS_MEAN, ORK_SS_FAST, nullptr), ORK_SS_NULL_TASK);
  Statistics<double>().check();
  Statistics<float>().check();
  Statistics<double>().check_shape();
  Statistics<float>().check_shape();
  Statistics<double>().check_streaming();
  Statistics<float>().check_streaming();
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

TEST(FrontSplines, SinglePrecisionTwins) {
  float x[4] = {0, 1, 2, 3}, y[8] = {0, 1, 4, 9, 1, 3, 5, 7}, coeffs[12], site[2] = {0.5f, 2.5f},
        value[4], left[2] = {0, 3}, right[2] = {1, 1}, integral[4];
  ork_df_task* task = nullptr;
  ASSERT_EQ(ork_df_kernel_sNewTask1D(&task, 4, x, 0, 2, y, 0, 0), 0);
  ASSERT_EQ(ork_df_kernel_sEditPPSpline1D(task, 2, 0, 0, nullptr, 0, nullptr, coeffs, 0), 0);
  EXPECT_EQ(ork_sDFConstruct(task, nullptr), 0);
  EXPECT_EQ(ork_sDFInterpolate(task, 2, site, 0, value, nullptr), 0);
  EXPECT_EQ(ork_sDFIntegrate(task, 2, left, right, integral, nullptr), 0);
  const float values[] = {0.5f, 6.5f, 2, 6},
              integrals[] = {0.5f, -9, 2, -10};  // function by function
  for (int j = 0; j < 4; ++j)
    EXPECT_TRUE(value[j] == values[j] && integral[j] == integrals[j]) << j;
  ork_df_kernel_DeleteTask(&task);
}

TEST(FrontSplines, BadArguments) {
  Spline s, unnamed, step;
  ASSERT_EQ(s.name(2, 0, 0, nullptr, nullptr), 0);
  ASSERT_EQ(step.name(0, ORK_DF_TYPE_DEFAULT, 0, nullptr, nullptr), 0);
  ASSERT_EQ(ork_dDFConstruct(s.task, nullptr), 0);
  const double at[] = {1};
  double r[1] = {7};
  const StatusRow rows[] = {
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
