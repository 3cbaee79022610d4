// Statistics through the public layer: what a computation needs, and that all can be had.
#include <fstream>
#include <iterator>
#include <regex>

#include "ork/front.h"
#include "ss/api.hpp"
#include "support/pch.hpp"

namespace {

using statistics::Api;

// Two variables of six observations in two groups.
template <class R>
struct Data {
  int p = 2, n = 6, layout = ORK_SS_ROWS, full = ORK_SS_FULL, one = 1;
  int groups[6] = {0, 1, 0, 1, 0, 1}, request[2] = {0, 1}, partial[2] = {1, -1};
  R x[12] = {1, 2, 3, 4, 5, 9, 2, 1, 4, 3, 6, 8}, half = R(0.5);
  std::map<int, std::vector<R>> arrays;
  ork_ss_task* task = nullptr;

  Data() {
    EXPECT_EQ(Api<R>::make(&task, &p, &n, &layout, x, nullptr, nullptr, 0), 0);
    set(ORK_SS_EDIT_SUM);
  }
  ~Data() { __ruaSSDeleteTask(&task); }
  Data(const Data&) = delete;

  // Integers have their values, reals are arrays of 7, but for parameters.
  void set(int code) {
    const std::map<int, const int*> integers = {
        {ORK_SS_EDIT_COV_STORAGE, &full},         {ORK_SS_EDIT_COR_STORAGE, &full},
        {ORK_SS_EDIT_POOLED_COV_STORAGE, &full},  {ORK_SS_EDIT_GROUP_COV_STORAGE, &full},
        {ORK_SS_EDIT_PARTIAL_COV_STORAGE, &full}, {ORK_SS_EDIT_PARTIAL_COR_STORAGE, &full},
        {ORK_SS_EDIT_PARAM_COR_STORAGE, &full},   {ORK_SS_EDIT_ORDER_STATS_STORAGE, &layout},
        {ORK_SS_EDIT_GROUP_INDEX, groups},        {ORK_SS_EDIT_GROUP_REQUEST, request},
        {ORK_SS_EDIT_PARTIAL_INDEX, partial},     {ORK_SS_EDIT_QUANTILE_COUNT, &one},
        {ORK_SS_EDIT_STREAM_ORDER_COUNT, &one},   {ORK_SS_EDIT_STREAM_PARAM_COUNT, &one},
        {ORK_SS_EDIT_MISSING_PARAM_COUNT, &one},  {ORK_SS_EDIT_ESTIMATE_COUNT, &one},
        {ORK_SS_EDIT_ROBUST_COV_STORAGE, &full}};
    const bool parameter = code == ORK_SS_EDIT_QUANTILE_ORDERS ||
                           code == ORK_SS_EDIT_STREAM_ORDERS || code == ORK_SS_EDIT_STREAM_PARAMS;
    if (const auto i = integers.find(code); i != integers.end())
      EXPECT_EQ(__ruaiSSEditTask(task, code, i->second), 0) << code;
    else
      EXPECT_EQ(Api<R>::edit(task, code,
                             (arrays[code] = std::vector<R>(12, parameter ? half : R(7))).data()),
                0)
          << code;
  }
  int compute(uint64_t estimates, uint64_t method) {
    return ork_ss_compute(task, estimates, method, nullptr);
  }
  R at(int code, int k) { return arrays.at(code)[k]; }
};

template <class R>
struct FrontComputations : testing::Test {};
using Types = testing::Types<double, float>;
TYPED_TEST_SUITE(FrontComputations, Types);

// The fields of each computation, and what is said where one of them is not there.
struct Field {
  int code, status;
};
const struct {
  uint64_t estimates, method;
  std::vector<Field> fields;
} computations[] = {
    {ORK_SS_MIN | ORK_SS_MAX,
     ORK_SS_FAST,
     {{ORK_SS_EDIT_MIN, ORK_SS_NULL_MIN}, {ORK_SS_EDIT_MAX, ORK_SS_NULL_MAX}}},
    {ORK_SS_QUANTILES | ORK_SS_ORDER_STATS,
     ORK_SS_FAST,
     {{ORK_SS_EDIT_QUANTILES, ORK_SS_NULL_QUANTILES},
      {ORK_SS_EDIT_QUANTILE_ORDERS, ORK_SS_NULL_QUANTILE_ORDERS},
      {ORK_SS_EDIT_QUANTILE_COUNT, ORK_SS_BAD_QUANTILES},
      {ORK_SS_EDIT_ORDER_STATS, ORK_SS_NULL_ORDER_STATS},
      {ORK_SS_EDIT_ORDER_STATS_STORAGE, ORK_SS_NULL_STORAGE}}},
    {ORK_SS_QUANTILES,
     ORK_SS_STREAM,
     {{ORK_SS_EDIT_STREAM_QUANTILES, ORK_SS_NULL_STREAM_QUANTILES},
      {ORK_SS_EDIT_STREAM_ORDERS, ORK_SS_NULL_STREAM_ORDERS},
      {ORK_SS_EDIT_STREAM_ORDER_COUNT, ORK_SS_BAD_STREAM_ORDERS},
      {ORK_SS_EDIT_STREAM_PARAM_COUNT, ORK_SS_NULL_STREAM_PARAM_COUNT},
      {ORK_SS_EDIT_STREAM_PARAMS, ORK_SS_NULL_STREAM_PARAMS}}},
    {ORK_SS_MEDIAN_ABS_DEV | ORK_SS_MEAN_ABS_DEV,
     ORK_SS_FAST,
     {{ORK_SS_EDIT_MEDIAN_ABS_DEV, ORK_SS_NULL_MEDIAN_ABS_DEV},
      {ORK_SS_EDIT_MEAN_ABS_DEV, ORK_SS_NULL_MEAN_ABS_DEV}}},
    {ORK_SS_MEAN_ABS_DEV,
     ORK_SS_TWO_PASS,
     {{ORK_SS_EDIT_MEAN_ABS_DEV, ORK_SS_NULL_MEAN_ABS_DEV}, {ORK_SS_EDIT_MEAN, ORK_SS_NULL_MEAN}}},
    {ORK_SS_POOLED_COV | ORK_SS_GROUP_COV,
     ORK_SS_ONE_PASS,
     {{ORK_SS_EDIT_GROUP_INDEX, ORK_SS_NULL_GROUPS},
      {ORK_SS_EDIT_POOLED_COV_STORAGE, ORK_SS_NULL_STORAGE},
      {ORK_SS_EDIT_POOLED_COV, ORK_SS_NULL_POOLED_COV},
      {ORK_SS_EDIT_POOLED_MEAN, ORK_SS_NULL_POOLED_MEAN},
      {ORK_SS_EDIT_GROUP_COV_STORAGE, ORK_SS_NULL_STORAGE},
      {ORK_SS_EDIT_GROUP_REQUEST, ORK_SS_NULL_GROUPS},
      {ORK_SS_EDIT_GROUP_COV, ORK_SS_NULL_GROUP_COV},
      {ORK_SS_EDIT_GROUP_MEANS, ORK_SS_NULL_GROUP_MEANS}}},
    {ORK_SS_OUTLIERS, ORK_SS_BACON, {{ORK_SS_EDIT_OUTLIER_WEIGHTS, ORK_SS_NULL_OUTLIER_WEIGHTS}}},
    {ORK_SS_ROBUST_COV,
     ORK_SS_TBS,
     {{ORK_SS_EDIT_ROBUST_MEAN, ORK_SS_NULL_ROBUST_MEAN},
      {ORK_SS_EDIT_ROBUST_COV, ORK_SS_NULL_ROBUST_COV},
      {ORK_SS_EDIT_ROBUST_COV_STORAGE, ORK_SS_NULL_STORAGE}}},
    {ORK_SS_PARTIAL_COV | ORK_SS_PARTIAL_COR,
     ORK_SS_FAST,
     {{ORK_SS_EDIT_COV, ORK_SS_NULL_COV},
      {ORK_SS_EDIT_COV_STORAGE, ORK_SS_NULL_STORAGE},
      {ORK_SS_EDIT_PARTIAL_INDEX, ORK_SS_NULL_PARTIAL_INDEX},
      {ORK_SS_EDIT_PARTIAL_COV, ORK_SS_NULL_PARTIAL_COV},
      {ORK_SS_EDIT_PARTIAL_COV_STORAGE, ORK_SS_NULL_STORAGE},
      {ORK_SS_EDIT_PARTIAL_COR, ORK_SS_NULL_PARTIAL_COR},
      {ORK_SS_EDIT_PARTIAL_COR_STORAGE, ORK_SS_NULL_STORAGE}}},
    {ORK_SS_PARTIAL_COV,
     ORK_SS_FAST,
     {{ORK_SS_EDIT_COR, ORK_SS_NULL_COV},
      {ORK_SS_EDIT_COR_STORAGE, ORK_SS_NULL_STORAGE},
      {ORK_SS_EDIT_PARTIAL_INDEX, ORK_SS_NULL_PARTIAL_INDEX},
      {ORK_SS_EDIT_PARTIAL_COV, ORK_SS_NULL_PARTIAL_COV},
      {ORK_SS_EDIT_PARTIAL_COV_STORAGE, ORK_SS_NULL_STORAGE}}},
    {ORK_SS_REPAIRED_COR,
     ORK_SS_SPECTRAL,
     {{ORK_SS_EDIT_COR, ORK_SS_NULL_COR},
      {ORK_SS_EDIT_COR_STORAGE, ORK_SS_NULL_STORAGE},
      {ORK_SS_EDIT_PARAM_COR, ORK_SS_NULL_PARAM_COR},
      {ORK_SS_EDIT_PARAM_COR_STORAGE, ORK_SS_NULL_STORAGE}}},
    {ORK_SS_IMPUTED_VALUES,
     ORK_SS_IMPUTATION,
     {{ORK_SS_EDIT_MISSING_PARAMS, ORK_SS_NULL_MISSING_PARAMS},
      {ORK_SS_EDIT_MISSING_PARAM_COUNT, ORK_SS_NULL_MISSING_PARAM_COUNT},
      {ORK_SS_EDIT_ESTIMATES, ORK_SS_NOTHING_TO_IMPUTE},
      {ORK_SS_EDIT_ESTIMATE_COUNT, ORK_SS_NOTHING_TO_IMPUTE}}},
};

// Of those missing the first is named; and nothing runs, sums neither, which come first.
TYPED_TEST(FrontComputations, NameTheMissingFieldBeforeAnythingRuns) {
  for (const auto& c : computations)
    for (size_t missing = 0; missing < c.fields.size(); ++missing)
      for (const bool all_behind : {false, true}) {
        SCOPED_TRACE(testing::Message() << &c - computations << " without " << missing);
        Data<TypeParam> d;
        for (size_t k = 0; k < c.fields.size(); ++k)
          if (k < missing || (k > missing && !all_behind)) d.set(c.fields[k].code);
        const bool of_moments = c.method & (ORK_SS_FAST | ORK_SS_ONE_PASS | ORK_SS_TWO_PASS);
        const uint64_t method = of_moments ? c.method : c.method | ORK_SS_ONE_PASS;
        EXPECT_EQ(d.compute(c.estimates | ORK_SS_SUM, method), c.fields[missing].status);
        for (const auto& [code, values] : d.arrays) {
          const TypeParam was = values[0] == d.half ? d.half : TypeParam(7);
          EXPECT_EQ(values, std::vector<TypeParam>(12, was)) << code;
        }
      }
}

// One call for groups, one that goes from data by way of a covariance to what is left of it.
TYPED_TEST(FrontComputations, GroupsPartialCovarianceAndRepair) {
  typedef TypeParam R;
  Data<R> d;
  for (const auto& c : computations)
    for (const Field& f : c.fields) d.set(f.code);
  ASSERT_EQ(d.compute(ORK_SS_POOLED_COV | ORK_SS_GROUP_COV, ORK_SS_ONE_PASS), 0);
  // Group 0: 1, 3, 5 and 2, 4, 6; group 1: 2, 4, 9 and 1, 3, 8.
  const double pooled_mean[] = {4, 4}, pooled[] = {8.5, 8.5, 8.5, 8.5}, mean[] = {5, 4};
  for (int k = 0; k < 4; ++k) {
    EXPECT_NEAR(d.at(ORK_SS_EDIT_POOLED_COV, k), pooled[k], 1e-5) << k;
    EXPECT_NEAR(d.at(ORK_SS_EDIT_GROUP_COV, k), 13, 1e-5) << k;
  }
  for (int j = 0; j < 2; ++j) {
    EXPECT_NEAR(d.at(ORK_SS_EDIT_POOLED_MEAN, j), pooled_mean[j], 1e-5);
    EXPECT_NEAR(d.at(ORK_SS_EDIT_GROUP_MEANS, j), mean[j], 1e-5);
  }
  ASSERT_EQ(d.compute(ORK_SS_COV | ORK_SS_PARTIAL_COV | ORK_SS_PARTIAL_COR, ORK_SS_FAST), 0);
  // Variances 8 and 6.8, covariance 6.8: what the second variable leaves of the first.
  EXPECT_NEAR(d.at(ORK_SS_EDIT_PARTIAL_COV, 0), 8 - 6.8, 1e-5);
  EXPECT_NEAR(d.at(ORK_SS_EDIT_PARTIAL_COR, 0), 8 - 6.8, 1e-5);
  EXPECT_EQ(d.at(ORK_SS_EDIT_PARTIAL_COV, 1), 7) << "one by one";
  ASSERT_EQ(d.compute(ORK_SS_COR | ORK_SS_REPAIRED_COR, ORK_SS_ONE_PASS | ORK_SS_SPECTRAL), 0);
  EXPECT_NEAR(d.at(ORK_SS_EDIT_PARAM_COR, 1), std::sqrt(6.8 / 8), 1e-6);
  EXPECT_EQ(d.at(ORK_SS_EDIT_PARAM_COR, 3), 1);
  // Of the five parameters there is one.
  EXPECT_EQ(d.compute(ORK_SS_IMPUTED_VALUES, ORK_SS_IMPUTATION), ORK_SS_BAD_MISSING_PARAM_COUNT);
}

// Every estimate that the headers name is served by one of the methods that they name.
TEST(FrontComputations, LeaveNoConstantUnserved) {
  std::vector<uint64_t> estimates, methods;
  for (const char* name : {"ss.h", "front.h"}) {
    std::ifstream file(std::string(ORK_SOURCE_DIR "/include/ork/") + name);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const std::regex bit(
        "#define ORK_SS_\\w+ \\(1ull << (\\d+)\\)|#define ORK_SS_\\w+ (0x\\d+)ull");
    for (std::sregex_iterator i(text.begin(), text.end(), bit), end; i != end; ++i)
      if ((*i)[1].matched)
        estimates.push_back(uint64_t{1} << std::stoi((*i)[1]));
      else
        methods.push_back(std::stoull((*i)[2], nullptr, 16));
  }
  EXPECT_GE(estimates.size(), 31u);
  EXPECT_EQ(methods.size(), 11u);
  int p = 1;
  ork_ss_task* task = nullptr;
  ASSERT_EQ(__ruadSSNewTask(&task, &p, nullptr, nullptr, nullptr, nullptr, nullptr, 0), 0);
  // A task of no data: what is served misses a field.
  const auto serves = [&](uint64_t estimate, uint64_t method) {
    return ork_ss_compute(task, estimate, method, nullptr) != ORK_SS_BAD_METHOD;
  };
  for (const uint64_t e : estimates)
    EXPECT_TRUE(std::any_of(methods.begin(), methods.end(), [&](auto m) { return serves(e, m); }))
        << e;
  for (const uint64_t m : methods)
    EXPECT_TRUE(std::any_of(estimates.begin(), estimates.end(), [&](auto e) {
      return serves(e, m);
    })) << m;
  __ruaSSDeleteTask(&task);
}

}  // namespace
