// Callers may bring a stack that is aligned to 4 bytes only: the life of a task and the helpers,
// each call on a shifted stack, against the same on an aligned one.
#include "support/stack.hpp"

#include "ss/statistics.hpp"

namespace {
using namespace statistics;

constexpr int p = 5, n = 2100;

// What all calls return and leave in their arrays.
template <class R>
std::vector<double> results(int shift) {
  using A = Api<R>;
  std::vector<double> all;
  const auto call = [&](auto f, auto... a) {
    if constexpr (std::is_void_v<decltype(f(a...))>)
      call_shifted(shift, f, a...);
    else
      all.push_back(double(call_shifted(shift, f, a...)));
  };
  const auto keep = [&](const std::vector<R>& v) { all.insert(all.end(), v.begin(), v.end()); };

  const Sample<R> sample(p, n);
  for (const int layout : {ORK_SS_ROWS, ORK_SS_COLUMNS}) {
    const int dimension = p, count = n, full = ORK_SS_FULL, three = 3, one = 1;
    const R orders[] = {0, R(0.3), 1}, epsilon = R(0.05);
    std::vector<R> v[17], matrix[3], sorted(p * n), quantiles(3 * p), streamed(3 * p);
    for (auto& a : v) a.assign(p, 0);
    for (auto& a : matrix) a.assign(p * p, 0);
    ork_ss_task* t = nullptr;
    const R* const none = nullptr;
    R* const out = nullptr;
    call(A::make, &t, &dimension, &count, &layout, sample.data(layout), sample.w.data(), nullptr,
         0);
    const auto at = [&](int k) { return v[k].data(); };
    call(A::edit_moments, t, at(0), at(1), at(2), at(3), at(4), at(5), at(6));
    call(A::edit_sums, t, at(7), at(8), at(9), at(10), at(11), at(12), at(13));
    call(A::edit_cov_cor, t, out, matrix[0].data(), &full, matrix[1].data(), &full);
    call(A::edit_cp, t, out, out, matrix[2].data(), &full);
    call(A::edit_partial, t, nullptr, out, nullptr, out, nullptr, out, nullptr, out, nullptr);
    call(A::edit_pooled, t, nullptr, out, out, nullptr, out, out);
    call(A::edit_quantiles, t, &three, orders, quantiles.data(), sorted.data(), &layout);
    call(A::edit_stream, t, &three, orders, streamed.data(), &one, &epsilon);
    std::vector<R> kept(n);
    call(A::edit_outliers, t, nullptr, none, kept.data());
    call(A::edit_robust, t, nullptr, nullptr, none, out, out);
    call(A::edit_missing, t, nullptr, none, nullptr, none, nullptr, none, nullptr, out, nullptr,
         out);
    call(A::edit_matrix, t, out, nullptr, out, nullptr);
    call(A::edit, t, ORK_SS_EDIT_KURTOSIS, at(14));
    call(A::edit, t, ORK_SS_EDIT_MIN, at(15));
    call(A::edit, t, ORK_SS_EDIT_MEDIAN_ABS_DEV, at(16));
    call(__ruaiSSEditTask, t, ORK_SS_EDIT_OBSERVATION_COUNT, &count);

    const uint64_t moments = 0x7F | ORK_SS_KURTOSIS | 0x7Full << 25,
                   matrices = ORK_SS_COV | ORK_SS_COR | ORK_SS_CROSS_PRODUCT;
    for (const auto* table : {&ork_threader_serial, &ork_threader_parallel}) {
      for (const uint64_t method : {ORK_SS_FAST, ORK_SS_ONE_PASS, ORK_SS_TWO_PASS})
        for (const uint64_t asked : {moments, moments | matrices}) {
          call(A::basic, t, uint32_t(asked), uint32_t(asked >> 32), uint32_t(method), 0, table);
          for (const auto& a : v) keep(a);
          for (const auto& a : matrix) keep(a);
        }
      call(A::minmax, t, ORK_SS_MIN, 0, ORK_SS_FAST, 0, table);
      call(A::quantiles, t, ORK_SS_QUANTILES | ORK_SS_ORDER_STATS, 0, ORK_SS_FAST, 0, table);
      call(A::quantiles, t, ORK_SS_QUANTILES, 0, ORK_SS_FAST, 0, table);
      call(A::stream, t, 0, 0, ORK_SS_STREAM, 0, table);
      call(A::outliers, t, 0, 0, ORK_SS_BACON, 0, table);
      call(A::deviations, t, 0, 2, ORK_SS_FAST, 0, table);
      for (const auto* a : {&v[15], &v[16], &sorted, &quantiles, &streamed, &kept}) keep(*a);
    }
    call(A::median, t);
    keep(quantiles);
    call(__ruaSSDeleteTask, &t);
  }

  const std::vector<R> data(sample.rows.begin(), sample.rows.begin() + 999);
  std::vector<R> a = data, b(999);
  const auto sorted = [&](auto f, auto... arguments) {
    call(f, arguments...);
    keep(a);
    a = data;
  };
  sorted(A::select, 999, a.data(), 400);
  sorted(A::sort, 999, a.data());
  sorted(A::sort_step, 333, a.data(), 3);
  sorted(A::sort_map, 999, a.data(), b.data());
  sorted(A::radix, a.data(), b.data(), 999);
  sorted(v8_ownsCopy_8u, (const uint8_t*)data.data(), (uint8_t*)a.data(), 333);
  sorted(v8_ownsZero_8u, (uint8_t*)a.data(), 333);
  sorted(v8_opxsCopy_32f, (const float*)data.data(), (float*)a.data(), 333);
  sorted(v8_opxsZero_32s, (int32_t*)a.data(), 333);
  for (const int order : {1, 2, 3, 6}) {
    for (int i = 0; i < order * order; ++i) a[i] = i % (order + 1) == 0 ? R(order) : R(0.5);
    call(A::inverse, order, a.data());
    keep(a);
    for (int i = 0; i < order * order; ++i) a[i] = 1;
    call(A::rank, order, a.data());
    for (int i = 0; i < order; ++i) all.push_back(a[i * order + i]);
  }
  call(A::ln, R(2.5));
  for (const auto f : {__ruadSqrt, __ruadFloor, __ruadLGamma}) call(f, 2.5);
  for (const auto f : {__ruadChi2CDF, __ruadChi2PDF, _vdSSQ}) call(f, 3.0, 2.5);
  call(__ruadChi2ICDF, 3.0, 0.7);
  return all;
}

template <class R>
class MisalignedStack : public testing::Test {};
using RealTypes = testing::Types<double, float>;
TYPED_TEST_SUITE(MisalignedStack, RealTypes);

TYPED_TEST(MisalignedStack, GivesTheSameResults) {
  const auto want = results<TypeParam>(0);
  for (const int shift : {4, 8, 12}) {
    const auto got = results<TypeParam>(shift);
    ASSERT_EQ(got.size(), want.size());
    EXPECT_EQ(memcmp(got.data(), want.data(), want.size() * sizeof(double)), 0) << shift;
  }
}

}  // namespace
