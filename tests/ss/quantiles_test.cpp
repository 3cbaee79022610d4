// Quantiles, order statistics, extremes, deviations, streaming quantiles, weighted quantiles.
#include "ss/statistics.hpp"

namespace {
using namespace statistics;

template <class R>
struct StatisticsQuantiles : ::testing::Test {};
typedef ::testing::Types<double, float> RealTypes;
TYPED_TEST_SUITE(StatisticsQuantiles, RealTypes);

constexpr int kLayouts[] = {ORK_SS_ROWS, ORK_SS_COLUMNS};
constexpr uint64_t kBoth = ORK_SS_QUANTILES | ORK_SS_ORDER_STATS;

template <class R>
std::vector<R> sorted_variable(const Sample<R>& s, int j) {
  std::vector<R> v(s.rows.begin() + j * s.n, s.rows.begin() + (j + 1) * s.n);
  std::sort(v.begin(), v.end());
  return v;
}

TYPED_TEST(StatisticsQuantiles, MatchASort) {
  typedef TypeParam R;
  const std::vector<R> orders = {0, R(0.01), R(0.25), R(0.5), R(0.9), 1};
  const int count = int(orders.size());
  for (const int n : {1, 2, 3, 50, 1001})
    for (const int layout : kLayouts)
      for (const int sorted_layout : kLayouts)
        for (const uint64_t estimates : {uint64_t(ORK_SS_QUANTILES), kBoth}) {
          SCOPED_TRACE(testing::Message() << n << " " << layout << " " << sorted_layout);
          const Sample<R> s(4, n, n);
          Task<R> t(4, n, layout, s.data(layout), nullptr, {1, 0, 1, 1});
          t.integer(ORK_SS_EDIT_QUANTILE_COUNT, count);
          ASSERT_EQ(Api<R>::edit(t.task, ORK_SS_EDIT_QUANTILE_ORDERS, orders.data()), 0);
          R* const q = t.array(ORK_SS_EDIT_QUANTILES, 3 * count);
          R* const sorted = t.array(ORK_SS_EDIT_ORDER_STATS, 4 * n);
          t.integer(ORK_SS_EDIT_ORDER_STATS_STORAGE, sorted_layout);
          ASSERT_EQ(t.call(Api<R>::quantiles, estimates, ORK_SS_FAST, &ork_threader_parallel), 0);
          const int variables[] = {0, 2, 3};
          for (int v = 0; v < 3; ++v) {
            const auto want = sorted_variable(s, variables[v]);
            for (int k = 0; k < count; ++k) {
              const double place = double(orders[k]) * (n - 1);
              const int below = std::min(int(place + 1e-4), n - 1);
              const double f = place - below, high = want[std::min(below + 1, n - 1)];
              EXPECT_NEAR(q[v * count + k], want[below] + f * (high - want[below]),
                          n * 2 * std::numeric_limits<R>::epsilon() *
                              (std::abs(want[below]) + std::abs(high)))
                  << v << " " << k;
            }
            for (int i = 0; estimates == kBoth && i < n; ++i)
              EXPECT_EQ(sorted[sorted_layout == ORK_SS_ROWS ? v * n + i : i * 4 + v], want[i]);
          }
          if (estimates == kBoth && sorted_layout == ORK_SS_COLUMNS) {
            for (int i = 0; i < n; ++i) EXPECT_EQ(sorted[i * 4 + 3], t.canary);
          }
          t.expect_canaries();
        }
}

// Infinite observations give infinite quantiles, not NaN, and rounding leads out of no interval.
TYPED_TEST(StatisticsQuantiles, StayBetweenTheirNeighbours) {
  typedef TypeParam R;
  const R inf = std::numeric_limits<R>::infinity(), tie = R(0.1),
          beside = std::nextafter(tie, R(1));
  const std::vector<std::vector<R>> samples = {
      {inf},
      {-inf},
      {1, 2, inf},
      {-inf, 1, 2},
      {inf, inf, inf, 3},
      {-inf, -inf, -inf, -2},
      {tie, tie, tie, tie, tie, tie, tie, tie},
      {tie, beside, beside, tie, beside, tie},
      {std::numeric_limits<R>::max(), std::numeric_limits<R>::max() / 2}};
  std::vector<R> orders;
  for (int i = 0; i <= 350; ++i) orders.push_back(R(i) / 350);
  for (const auto& x : samples)
    for (const bool sort : {false, true}) {
      const int n = int(x.size());
      SCOPED_TRACE(testing::PrintToString(x));
      std::vector<R> v = x;
      std::sort(v.begin(), v.end());
      Task<R> t(1, n, ORK_SS_ROWS, x.data());
      t.integer(ORK_SS_EDIT_QUANTILE_COUNT, int(orders.size()));
      ASSERT_EQ(Api<R>::edit(t.task, ORK_SS_EDIT_QUANTILE_ORDERS, orders.data()), 0);
      R* const q = t.array(ORK_SS_EDIT_QUANTILES, int(orders.size()));
      t.array(ORK_SS_EDIT_ORDER_STATS, n);
      t.integer(ORK_SS_EDIT_ORDER_STATS_STORAGE, ORK_SS_ROWS);
      ASSERT_EQ(t.call(Api<R>::quantiles, sort ? kBoth : ORK_SS_QUANTILES, ORK_SS_FAST), 0);
      for (size_t k = 0; k < orders.size(); ++k) {
        const R place = orders[k] * R(n - 1);
        const int below = int(place), above = std::min(below + 1, n - 1);
        ASSERT_GE(q[k], v[below]) << orders[k];
        ASSERT_LE(q[k], v[above]) << orders[k];
        if (place == R(below)) {
          ASSERT_EQ(q[k], v[below]) << orders[k];
        }
      }
      // The median by weights, all alike: equal halves meet in the middle.
      const std::vector<R> w(n, R(1));
      ASSERT_EQ(Api<R>::edit(t.task, ORK_SS_EDIT_WEIGHTS, w.data()), 0);
      for (const R order : {R(0.5), R(0.4), R(0.9)}) {
        ASSERT_EQ(Api<R>::edit(t.task, ORK_SS_EDIT_QUANTILE_ORDERS, &order), 0);
        ASSERT_EQ(Api<R>::median(t.task), 0);
        EXPECT_GE(q[0], v[0]) << order;
        EXPECT_LE(q[0], v[n - 1]) << order;
      }
    }
}

TYPED_TEST(StatisticsQuantiles, ChecksInOrder) {
  typedef TypeParam R;
  const Sample<R> s(2, 10);
  Task<R> t(2, 10, ORK_SS_ROWS, s.rows.data());
  const auto call = [&](uint64_t estimates, uint64_t method = ORK_SS_FAST) {
    return t.call(Api<R>::quantiles, estimates, method);
  };
  t.storage = 3;
  EXPECT_EQ(call(ORK_SS_QUANTILES), -4003);
  t.storage = ORK_SS_ROWS;
  EXPECT_EQ(call(kBoth), -4023);
  t.array(ORK_SS_EDIT_QUANTILES, 4);
  EXPECT_EQ(call(kBoth), -4021);
  R* const orders = t.array(ORK_SS_EDIT_QUANTILE_ORDERS, 2, R(1.5));
  EXPECT_EQ(call(kBoth), -4022);
  t.integer(ORK_SS_EDIT_QUANTILE_COUNT, -1);
  EXPECT_EQ(call(kBoth), -4022);
  t.integer(ORK_SS_EDIT_QUANTILE_COUNT, 2);
  EXPECT_EQ(call(kBoth), -4022);
  t.integers[ORK_SS_EDIT_QUANTILE_COUNT] = 0;
  EXPECT_EQ(call(ORK_SS_QUANTILES), 0);
  EXPECT_EQ(t[ORK_SS_EDIT_QUANTILES][0], t.canary);
  t.integers[ORK_SS_EDIT_QUANTILE_COUNT] = 2;
  orders[0] = orders[1] = R(0.5);
  EXPECT_EQ(call(kBoth), -4024);
  t.array(ORK_SS_EDIT_ORDER_STATS, 20);
  EXPECT_EQ(call(kBoth), -4044);
  t.integer(ORK_SS_EDIT_ORDER_STATS_STORAGE, 1);
  EXPECT_EQ(call(kBoth), -4003);
  t.integers[ORK_SS_EDIT_ORDER_STATS_STORAGE] = ORK_SS_ROWS;
  EXPECT_EQ(call(kBoth, ORK_SS_ONE_PASS), -4029);
  EXPECT_EQ(call(kBoth), 0);
  const int before = blocks::live();
  const int asked = blocks::fail_each([&] {
    const int status = call(kBoth);
    EXPECT_EQ(status, blocks::failed() ? -4000 : 0);
  });
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(blocks::live(), before);
}

TYPED_TEST(StatisticsQuantiles, MinimumAndMaximum) {
  typedef TypeParam R;
  const R inf = std::numeric_limits<R>::infinity(), nan = std::numeric_limits<R>::quiet_NaN();
  for (const int p : {1, 2, 3, 7, 13, 21})
    for (const int n : {1, 2, 9, 200})
      for (const int layout : kLayouts)
        for (const bool masked : {false, true}) {
          SCOPED_TRACE(testing::Message() << p << " " << n << " " << layout << " " << masked);
          Sample<R> s(p, n, p + n);
          std::vector<int> mask;
          for (int j = 0; masked && j < p; ++j) mask.push_back(j % 2);
          std::vector<R> low(p, inf), high(p, -inf);
          for (int j = 0; j < p; ++j)
            for (int i = 0; i < n; ++i) {
              const R x = s.rows[j * n + i];
              low[j] = std::min(low[j], x), high[j] = std::max(high[j], x);
            }
          // A NaN replaces nothing, and does not stay.
          if (n > 2)
            for (int j = 0; j < p; ++j)
              for (int i = 0; i < n; ++i) {
                R& x = s.rows[j * n + i];
                if (x != low[j] && x != high[j] && (i + j) % 3 == 0) x = s.columns[i * p + j] = nan;
              }
          Task<R> t(p, n, layout, s.data(layout), nullptr, mask);
          R* const min = t.array(ORK_SS_EDIT_MIN, p, inf);
          R* const max = t.array(ORK_SS_EDIT_MAX, p, -inf);
          ASSERT_EQ(t.call(Api<R>::minmax, ORK_SS_MIN | ORK_SS_MAX, ORK_SS_ONE_PASS), 0);
          for (int j = 0; j < p; ++j) {
            const bool selected = mask.empty() || mask[j];
            EXPECT_EQ(min[j], selected ? low[j] : inf) << j;
            EXPECT_EQ(max[j], selected ? high[j] : -inf) << j;
            min[j] = low[j] - 1, max[j] = high[j] + 1;
          }
          ASSERT_EQ(t.call(Api<R>::minmax, ORK_SS_MIN | ORK_SS_MAX, ORK_SS_FAST), 0);
          for (int j = 0; j < p; ++j) {
            EXPECT_EQ(min[j], low[j] - 1) << "a start below all";
            EXPECT_EQ(max[j], high[j] + 1);
          }
          t.expect_canaries();
        }
  const Sample<R> s(2, 5);
  Task<R> t(2, 5, ORK_SS_COLUMNS, s.columns.data(), nullptr, {1, 0});
  const auto call = [&](uint64_t estimates, uint64_t method) {
    return t.call(Api<R>::minmax, estimates, method);
  };
  EXPECT_EQ(call(ORK_SS_MIN | ORK_SS_MAX, 0), -4015);
  EXPECT_EQ(call(ORK_SS_MAX, 0), -4016);
  t.array(ORK_SS_EDIT_MIN, 2, inf);
  EXPECT_EQ(call(ORK_SS_MIN, ORK_SS_TWO_PASS), -4029);
  blocks::fail_each([&] {
    const int status = call(ORK_SS_MIN, ORK_SS_FAST);
    EXPECT_EQ(status, blocks::failed() ? -4000 : 0);
  });
  t.storage = 8;
  EXPECT_EQ(call(ORK_SS_MIN | ORK_SS_MAX, 0), -4003);
}

TYPED_TEST(StatisticsQuantiles, Deviations) {
  typedef TypeParam R;
  const uint64_t both = ORK_SS_MEDIAN_ABS_DEV | ORK_SS_MEAN_ABS_DEV;
  for (const int p : {1, 5})
    for (const int n : {1, 2, 101, 2500})
      for (const int layout : kLayouts)
        for (const bool given : {false, true}) {
          SCOPED_TRACE(testing::Message() << p << " " << n << " " << layout << " " << given);
          const Sample<R> s(p, n, n);
          std::vector<int> mask(p, 1);
          if (p > 1) mask[1] = 0;
          Task<R> t(p, n, layout, s.data(layout), nullptr, mask);
          R* const median = t.array(ORK_SS_EDIT_MEDIAN_ABS_DEV, p);
          R* const mean = t.array(ORK_SS_EDIT_MEAN_ABS_DEV, p);
          if (given) t.array(ORK_SS_EDIT_MEAN, p, R(1));
          ASSERT_EQ(
              t.call(Api<R>::deviations, both, given ? ORK_SS_FAST | ORK_SS_TWO_PASS : ORK_SS_FAST,
                     &ork_threader_parallel),
              0);
          for (int j = 0; j < p; ++j) {
            if (!mask[j]) {
              EXPECT_EQ(median[j], t.canary);
              EXPECT_EQ(mean[j], t.canary);
              continue;
            }
            const auto median_of = [&](std::vector<double> v) {
              std::sort(v.begin(), v.end());
              return (v[(n - 1) / 2] + v[n / 2]) / 2;
            };
            std::vector<double> x(s.rows.begin() + j * n, s.rows.begin() + (j + 1) * n), away(n);
            const double eps = 100 * std::numeric_limits<R>::epsilon();
            const double middle = median_of(x);
            for (int i = 0; i < n; ++i) away[i] = std::abs(x[i] - middle);
            EXPECT_NEAR(median[j], median_of(away), eps * (std::abs(middle) + 1));
            double centre = 0, sum = 0;
            for (const double v : x) centre += v / n;
            if (given) centre = 1;
            for (const double v : x) sum += std::abs(v - centre) / n;
            EXPECT_NEAR(mean[j], sum, eps * (std::abs(centre) + sum));
          }
          t.expect_canaries();
        }
  const Sample<R> s(2, 10);
  Task<R> t(2, 10, ORK_SS_ROWS, s.rows.data());
  const auto call = [&](uint64_t estimates, uint64_t method) {
    return t.call(Api<R>::deviations, estimates, method);
  };
  EXPECT_EQ(call(ORK_SS_MEDIAN_ABS_DEV, ORK_SS_FAST), -4082);
  EXPECT_EQ(call(ORK_SS_MEAN_ABS_DEV, ORK_SS_FAST), -4083);
  t.array(ORK_SS_EDIT_MEDIAN_ABS_DEV, 2), t.array(ORK_SS_EDIT_MEAN_ABS_DEV, 2);
  EXPECT_EQ(call(ORK_SS_MEDIAN_ABS_DEV, ORK_SS_TWO_PASS), -4029);
  EXPECT_EQ(call(ORK_SS_MEAN_ABS_DEV, ORK_SS_ONE_PASS), -4029);
  EXPECT_EQ(call(ORK_SS_MEAN_ABS_DEV, ORK_SS_TWO_PASS), -4006);
  t.storage = ORK_SS_ROWS | ORK_SS_COLUMNS;
  EXPECT_EQ(call(both, ORK_SS_FAST), -4003);
  t.n = 0;
  EXPECT_EQ(call(both, ORK_SS_FAST), -4002);
  t.p = 0;
  EXPECT_EQ(call(both, ORK_SS_FAST), -4001);
  t.p = 2, t.n = 10, t.storage = ORK_SS_COLUMNS;
  const int before = blocks::live();
  blocks::fail_each([&] {
    const int status = call(both, ORK_SS_FAST);
    EXPECT_EQ(status, blocks::failed() ? -4000 : 0);
  });
  EXPECT_EQ(blocks::live(), before);
}

TYPED_TEST(StatisticsQuantiles, WeightedQuantile) {
  typedef TypeParam R;
  // Values, weights, order, result: worked out by hand from the running sums of weights.
  const struct {
    std::vector<R> x, w;
    double q, want;
  } cases[] = {
      {{5}, {2}, 0.5, 5},
      {{4, 1, 3, 2}, {1, 1, 1, 1}, 0.5, 2.5},    // reached exactly: the middle of two
      {{3, 1, 2}, {1, 1, 1}, 0.5, 2},            // odd, symmetric around the stop
      {{1, 2, 3, 4}, {1, 0, 0, 1}, 0.5, 2.5},    // zero weights are stepped over
      {{1, 2, 3, 4}, {4, 2, 1, 1}, 0.25, 1},     // within the first weight
      {{4, 3, 2, 1}, {1, 1, 2, 4}, 0.625, 1.5},  // linear between neighbours
      {{1, 2, 3, 4}, {1, 1, 1, 1}, 1, 4},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(&c - cases);
    const R q = R(c.q);
    const int n = int(c.x.size());
    std::vector<R> two(2 * n);  // the variable beside another, in columns
    for (int i = 0; i < n; ++i) two[2 * i] = c.x[i], two[2 * i + 1] = -c.x[i];
    for (const int layout : kLayouts) {
      const int p = layout == ORK_SS_ROWS ? 1 : 2;
      Task<R> t(p, n, layout, p == 1 ? c.x.data() : two.data(), c.w.data());
      ASSERT_EQ(Api<R>::edit(t.task, ORK_SS_EDIT_QUANTILE_ORDERS, &q), 0);
      R* const result = t.array(ORK_SS_EDIT_QUANTILES, p);
      ASSERT_EQ(Api<R>::median(t.task), 0);
      EXPECT_NEAR(result[0], c.want, 1e-6);
      blocks::fail_each([&] {
        const int status = Api<R>::median(t.task);
        EXPECT_EQ(status, blocks::failed() ? -4000 : 0);
      });
      t.expect_canaries();
    }
  }
}

template <class R>
struct Stream : Task<R> {
  R epsilon;
  std::vector<R> orders;
  Stream(int p, int storage, const R* x, double epsilon, std::vector<R> orders,
         std::vector<int> mask = {})
      : Task<R>(p, 1, storage, x, nullptr, mask), epsilon(R(epsilon)), orders(orders) {
    this->integer(ORK_SS_EDIT_STREAM_ORDER_COUNT, int(orders.size()));
    this->integer(ORK_SS_EDIT_STREAM_PARAM_COUNT, 1);
    EXPECT_EQ(Api<R>::edit(this->task, ORK_SS_EDIT_STREAM_ORDERS, this->orders.data()),
              this->edited());
    EXPECT_EQ(Api<R>::edit(this->task, ORK_SS_EDIT_STREAM_PARAMS, &this->epsilon), this->edited());
    this->array(ORK_SS_EDIT_STREAM_QUANTILES, p * int(orders.size()));
  }
  int feed(const R* x, int n, uint64_t method, const ork_threader* table = &ork_threader_serial) {
    this->n = n;
    EXPECT_EQ(Api<R>::edit(this->task, ORK_SS_EDIT_OBSERVATIONS, x), 0);
    return this->call(Api<R>::stream, 0, method, table);
  }
};

// How far the rank of x is from q n.
template <class R>
double rank_error(const std::vector<R>& sorted, R x, double q) {
  const double target = q * double(sorted.size());
  const auto [low, high] = std::equal_range(sorted.begin(), sorted.end(), x);
  if (low == high) return 1e300;  // not one of the data
  const double first = double(low - sorted.begin()) + 1, last = double(high - sorted.begin());
  return target < first ? first - target : target > last ? target - last : 0;
}

TYPED_TEST(StatisticsQuantiles, StreamsStayWithinEpsilonRanks) {
  typedef TypeParam R;
  const std::vector<R> orders = {0, R(0.01), R(0.25), R(0.5), R(0.75), R(0.99), 1};
  std::mt19937 g(8);
  for (const char* kind : {"sorted", "reversed", "constant", "heavy", "long"})
    for (const double epsilon : {0.1, 0.01, 0.003}) {
      const bool is_long = kind[0] == 'l';
      if (is_long && epsilon != 0.003) continue;
      const int n = is_long ? 10000000 : 30011;
      std::vector<R> x(n);
      for (int i = 0; i < n; ++i) {
        const double u = (g() + 0.5) * 0x1p-32;
        x[i] = R(kind[0] == 's'   ? i
                 : kind[0] == 'r' ? -i
                 : kind[0] == 'c' ? 3
                 : kind[0] == 'h' ? std::tan(M_PI * (u - 0.5))
                                  : u);
      }
      Stream<R> t(1, ORK_SS_ROWS, x.data(), epsilon, orders);
      for (int at = 0, length = is_long ? 300000 : 7; at < n; length = length * 3 / 2 + 1) {
        const int count = std::min(length, n - at);
        ASSERT_EQ(t.feed(&x[at], count, at % 2 ? ORK_SS_STREAM_ADD : ORK_SS_STREAM), 0);
        at += count;
      }
      ASSERT_EQ(t.feed(x.data(), 0, ORK_SS_STREAM), 0);
      std::sort(x.begin(), x.end());
      for (size_t k = 0; k < orders.size(); ++k)
        EXPECT_LE(rank_error(x, t[ORK_SS_EDIT_STREAM_QUANTILES][k], orders[k]), epsilon * n + 1)
            << kind << " epsilon " << epsilon << " order " << orders[k];
      t.expect_canaries();
    }
}

// Where epochs begin the ranks are worst.
TYPED_TEST(StatisticsQuantiles, StreamsKeepTheirBoundAtEveryLength) {
  typedef TypeParam R;
  std::vector<R> orders;
  for (int k = 0; k <= 60; ++k) orders.push_back(R(k) / 60);
  for (const double epsilon : {0.3, 0.1, 0.099, 0.02, 0.0199}) {
    const int longest = int(12 / epsilon);
    std::vector<R> x(longest);
    std::iota(x.begin(), x.end(), R(0));
    for (int n = 1; n <= longest; n += 1 + n / 40) {
      Stream<R> t(1, ORK_SS_ROWS, x.data(), epsilon, orders);
      ASSERT_EQ(t.feed(x.data(), n, ORK_SS_STREAM), 0);
      const std::vector<R> sorted(x.begin(), x.begin() + n);
      for (size_t k = 0; k < orders.size(); ++k)
        ASSERT_LE(rank_error(sorted, t[ORK_SS_EDIT_STREAM_QUANTILES][k], orders[k]),
                  3 * epsilon * n + 1)
            << epsilon << " " << n << " " << orders[k];
    }
  }
}

TYPED_TEST(StatisticsQuantiles, StreamsOfManyVariables) {
  typedef TypeParam R;
  const Sample<R> s(4, 5000, 2);
  const std::vector<R> orders = {R(0.1), R(0.5)};
  const std::vector<int> mask = {1, 0, 1, 1};
  Stream<R> columns(4, ORK_SS_COLUMNS, s.columns.data(), 0.02, orders, mask);
  Stream<R> rows(4, ORK_SS_ROWS, s.rows.data(), 0.02, orders, mask);
  for (int at = 0; at < s.n; at += 1250)
    ASSERT_EQ(columns.feed(&s.columns[at * 4], 1250, ORK_SS_STREAM_ADD, &ork_threader_parallel), 0);
  ASSERT_EQ(columns.feed(s.columns.data(), 0, ORK_SS_STREAM), 0);
  ASSERT_EQ(rows.feed(s.rows.data(), s.n, ORK_SS_STREAM), 0);
  R* const got = columns[ORK_SS_EDIT_STREAM_QUANTILES];
  const int variables[] = {0, 2, 3};
  for (int v = 0; v < 3; ++v) {
    const auto sorted = sorted_variable(s, variables[v]);
    for (int k = 0; k < 2; ++k) {
      EXPECT_LE(rank_error(sorted, got[v * 2 + k], orders[k]), 101);
      EXPECT_EQ(got[v * 2 + k], rows[ORK_SS_EDIT_STREAM_QUANTILES][v * 2 + k]);
    }
  }
  EXPECT_EQ(got[6], columns.canary);
  columns.set_mask({1, 1, 1, 1});
  EXPECT_EQ(columns.feed(s.columns.data(), 10, ORK_SS_STREAM), -4004);
}

TYPED_TEST(StatisticsQuantiles, StreamEdges) {
  typedef TypeParam R;
  const Sample<R> s(1, 100);
  const int before = blocks::live();
  {
    // Nothing yet: a state and no estimate.
    Stream<R> t(1, ORK_SS_ROWS, s.rows.data(), 0.1, {R(0.5)});
    ASSERT_EQ(t.feed(s.rows.data(), 0, ORK_SS_STREAM_ADD), 0);
    ASSERT_EQ(t.feed(s.rows.data(), 0, ORK_SS_STREAM), 0);
    EXPECT_EQ(t[ORK_SS_EDIT_STREAM_QUANTILES][0], t.canary);
    // Another number of variables than the state has.
    t.p = 2;
    EXPECT_EQ(t.feed(s.rows.data(), 10, ORK_SS_STREAM), -4001);
    t.p = 0;
    EXPECT_EQ(t.feed(s.rows.data(), 10, ORK_SS_STREAM), -4004);
    t.p = 1;
    EXPECT_EQ(t[ORK_SS_EDIT_STREAM_QUANTILES][0], t.canary);
    ASSERT_EQ(t.feed(s.rows.data(), 1, ORK_SS_STREAM), 0);
    EXPECT_EQ(t[ORK_SS_EDIT_STREAM_QUANTILES][0], s.rows[0]);
    // Large epsilons, where blocks hold one value or would hold none.
    for (const double epsilon : {1.0, 0.99, 0.8, 0.6, 0.5}) {
      Stream<R> u(1, ORK_SS_ROWS, s.rows.data(), epsilon, {R(0.5)});
      for (int n = 1; n < 100; ++n) ASSERT_EQ(u.feed(s.rows.data(), n, ORK_SS_STREAM), 0);
      u.expect_canaries();
    }
    t.epsilon = 0;
    EXPECT_EQ(t.feed(s.rows.data(), 1, ORK_SS_STREAM), -4067);
    t.epsilon = std::numeric_limits<R>::quiet_NaN();
    EXPECT_EQ(t.feed(s.rows.data(), 1, ORK_SS_STREAM), -4067);
    EXPECT_EQ(t.feed(s.rows.data(), 1, ORK_SS_FAST), -4029);
    t.orders[0] = R(1.5);
    EXPECT_EQ(t.feed(s.rows.data(), 1, ORK_SS_FAST), -4069);
    t.integers[ORK_SS_EDIT_STREAM_PARAM_COUNT] = 2;
    EXPECT_EQ(t.feed(s.rows.data(), 1, ORK_SS_STREAM), -4066);
    t.integers[ORK_SS_EDIT_STREAM_ORDER_COUNT] = -1;
    EXPECT_EQ(t.feed(s.rows.data(), 1, ORK_SS_STREAM), -4069);
    t.storage = 0;
    EXPECT_EQ(t.feed(s.rows.data(), 1, ORK_SS_STREAM), -4003);
    EXPECT_EQ(t.feed(s.rows.data(), -1, ORK_SS_STREAM), -4002);
    // Too large a block for the address space.
    Stream<R> huge(1, ORK_SS_ROWS, s.rows.data(), 1e-12, {R(0.5)});
    EXPECT_EQ(huge.feed(s.rows.data(), 1, ORK_SS_STREAM), -4000);
  }
  EXPECT_EQ(blocks::live(), before);
  const int asked = blocks::fail_each([&] {
    Stream<R> t(1, ORK_SS_ROWS, s.rows.data(), 0.2, {R(0.5)});
    if (!t.task) return;
    const bool made = !blocks::failed();
    const int status = t.feed(s.rows.data(), 100, ORK_SS_STREAM);
    EXPECT_EQ(status, made && blocks::failed() ? -4000 : 0);
    if (status) {
      ASSERT_EQ(t.feed(s.rows.data(), 100, ORK_SS_STREAM), 0) << "the state is still good";
    }
  });
  EXPECT_GE(asked, 6);
  EXPECT_EQ(blocks::live(), before);
}

}  // namespace
