// Pooled and group covariance against two passes in quadruple precision.
#include <quadmath.h>

#include <condition_variable>
#include <mutex>
#include <thread>

#include "ss/matrices.hpp"
#include "ss/statistics.hpp"
#include "support/bits.hpp"
#include "support/special.hpp"

namespace {
using namespace statistics;
typedef __float128 Quad;

template <class R>
struct Pooled : ::testing::Test {};
typedef ::testing::Types<double, float> RealTypes;
TYPED_TEST_SUITE(Pooled, RealTypes);

constexpr uint64_t kBoth = ORK_SS_POOLED_COV | ORK_SS_GROUP_COV;
// Nobody is of group 3, group 5 has one member, group 6 is told apart by its weights alone: 0.
constexpr int kGroups = 7, kRequests[kGroups] = {1, 0, 1, 1, 0, 1, 1}, kRequested = 5;

// n observations far from zero, and what they are in quadruple precision.
template <class R>
struct Groups {
  struct Moments {
    Quad w = 0, w2 = 0;
    std::vector<Quad> mean, s;
    Quad divisor() const { return w * w == w2 ? 0 : w - w2 / w; }
  };
  int p, n;
  std::vector<R> columns, rows, w;
  std::vector<int> group;
  std::vector<Moments> single;
  Moments pool;  // w2 holds the sum of divisors

  Groups(int p, int n, bool weighted) : p(p), n(n), columns(p * n), rows(p * n), group(n) {
    std::mt19937 g(n);
    std::normal_distribution<double> gauss;
    for (int i = 0; i < n; ++i) {
      group[i] = int(g() % 4) + int(g() % 2);  // 0 to 4
      if (group[i] == 3) group[i] = 1;
      if (i == n - 1) group[i] = 6;
      if (i == n / 2 && n > 2) group[i] = 5;
      if (weighted) w.push_back(i == n - 1 || i % 11 == 3 ? R(0) : R(0.1 + 0.01 * (g() % 90)));
      const double common = gauss(g);
      for (int j = 0; j < p; ++j)
        rows[j * n + i] = columns[i * p + j] =
            R((1 + j % 3) * (gauss(g) + 0.5 * common + group[i]) + 1000 * (j % 4 - 1));
      if (weighted && w[i] == 0) rows[i] = columns[i * p] = quiet_nan<R>;
    }
  }
  void compute() {
    const auto weight = [&](int i) { return w.empty() ? Quad(1) : Quad(w[i]); };
    const Moments zeros{0, 0, std::vector<Quad>(p, 0), std::vector<Quad>(p * p, 0)};
    single.assign(kGroups, zeros);
    pool = zeros;
    for (int i = 0; i < n; ++i) {
      Moments& m = single[group[i]];
      m.w += weight(i), m.w2 += weight(i) * weight(i);
      for (int j = 0; j < p && weight(i) != 0; ++j) m.mean[j] += weight(i) * columns[i * p + j];
    }
    for (Moments& m : single)
      for (int j = 0; j < p; ++j) {
        pool.mean[j] += m.mean[j];
        if (m.w != 0) m.mean[j] /= m.w;
      }
    for (int i = 0; i < n; ++i) {
      Moments& m = single[group[i]];
      for (int j = 0; j < p && weight(i) != 0; ++j)
        for (int k = 0; k <= j; ++k)
          m.s[j * p + k] +=
              weight(i) * (columns[i * p + j] - m.mean[j]) * (columns[i * p + k] - m.mean[k]);
    }
    for (const Moments& m : single) {
      if (m.w == 0) continue;
      pool.w += m.w, pool.w2 += m.divisor();
      for (int k = 0; k < p * p; ++k) pool.s[k] += m.s[k];
    }
    for (Quad& m : pool.mean) m /= pool.w;
  }
};

// A task for both estimates.
template <class R>
struct Case {
  const Groups<R>& g;
  int storage;
  Task<R> t;
  std::vector<int> index, request;
  R *pooled_mean, *pooled_cov, *means, *covs;

  Case(const Groups<R>& g, int layout, int storage, std::vector<int> mask = {})
      : g(g),
        storage(storage),
        t(g.p, g.n, layout, layout == ORK_SS_ROWS ? g.rows.data() : g.columns.data(),
          g.w.empty() ? nullptr : g.w.data(), mask) {
    set(ORK_SS_EDIT_GROUP_INDEX, g.group.data(), g.n, index);
    set(ORK_SS_EDIT_GROUP_REQUEST, kRequests, kGroups, request);
    pooled_mean = t.array(ORK_SS_EDIT_POOLED_MEAN, g.p);
    pooled_cov = t.array(ORK_SS_EDIT_POOLED_COV, size_of(storage, g.p));
    means = t.array(ORK_SS_EDIT_GROUP_MEANS, kRequested * g.p);
    covs = t.array(ORK_SS_EDIT_GROUP_COV, kRequested * size_of(storage, g.p));
    t.integer(ORK_SS_EDIT_POOLED_COV_STORAGE, storage);
    t.integer(ORK_SS_EDIT_GROUP_COV_STORAGE, storage);
  }
  void set(int code, const int* values, int count, std::vector<int>& words) {
    for (int i = 0; i < count; ++i) {
      words.push_back(values[i]);
      if (Integer<R>::wide) words.push_back(0);
    }
    EXPECT_EQ(__ruaiSSEditTask(t.task, code, words.data()), t.edited());
  }
  int run(uint64_t estimates = kBoth, const ork_threader* table = &ork_threader_serial) {
    return t.call(Api<R>::pooled, estimates, ORK_SS_ONE_PASS, table);
  }
  std::vector<R> outputs() const {
    std::vector<R> all;
    for (const auto& [code, a] : t.arrays) all.insert(all.end(), a.begin(), a.end());
    return all;
  }
  // Selected variables hold what m says, all other places the canary.
  void expect(const typename Groups<R>::Moments& m, Quad divisor, const R* mean, const R* cov) {
    const int p = g.p;
    const auto& mask = t.mask;
    std::vector<int> chosen;
    for (int j = 0; j < p; ++j)
      if (mask.empty() || mask[j]) chosen.push_back(j);
    const int q = int(chosen.size());
    const Quad unit = 4 * p * std::numeric_limits<R>::epsilon();
    std::vector<bool> filled(size_of(storage, p)), reached(p);
    const auto variance = [&](int j) { return divisor == 0 ? Quad(0) : m.s[j * p + j] / divisor; };
    for (int a = 0; a < q; ++a) {
      const int i = chosen[a];
      reached[i] = true;
      EXPECT_LE(double(fabsq(mean[i] - m.mean[i])),
                double(unit * (fabsq(m.mean[i]) + sqrtq(variance(i)))))
          << "mean " << i;
      for (int b = 0; b <= a; ++b) {
        const int j = chosen[b];
        const int k = storage == ORK_SS_FULL ? i * p + j : place(storage, q, a, b);
        const Quad want = divisor == 0 ? Quad(0) : m.s[i * p + j] / divisor;
        EXPECT_LE(double(fabsq(cov[k] - want)), double(unit * sqrtq(variance(i) * variance(j))))
            << "covariance " << i << " " << j;
        filled[k] = true;
        if (storage == ORK_SS_FULL) {
          EXPECT_EQ(bits(cov[k]), bits(cov[j * p + i]));
          filled[j * p + i] = true;
        }
      }
    }
    for (int j = 0; j < p; ++j) EXPECT_NE(reached[j], mean[j] == t.canary) << j;
    for (size_t k = 0; k < filled.size(); ++k) EXPECT_NE(filled[k], cov[k] == t.canary) << k;
  }
  void expect_all() {
    t.expect_canaries();
    expect(g.pool, g.pool.w2, pooled_mean, pooled_cov);
    for (int group = 0, k = 0; group < kGroups; ++group) {
      if (!kRequests[group]) continue;
      SCOPED_TRACE(testing::Message() << "group " << group);
      const auto& m = g.single[group];
      expect(m, m.w == 0 ? 0 : m.divisor(), means + k * g.p, covs + k * size_of(storage, g.p));
      ++k;
    }
  }
};

TYPED_TEST(Pooled, MatchesQuadInAllForms) {
  typedef TypeParam R;
  const struct {
    int p, n;
  } sizes[] = {{1, 1}, {3, 2}, {1, 1000}, {2, 200}, {5, 700}, {12, 900}, {1, 200000}, {2, 200001}};
  for (const auto& [p, n] : sizes)
    for (const bool weighted : {false, true}) {
      Groups<R> g(p, n, weighted && n > 1);
      g.compute();
      for (const int layout : {ORK_SS_ROWS, ORK_SS_COLUMNS})
        for (const int storage : kStorages)
          for (const bool masked : {false, true}) {
            if (n > 1000 && (storage == ORK_SS_FULL || masked)) continue;
            SCOPED_TRACE(testing::Message() << p << " " << n << " " << weighted << " " << layout
                                            << " " << storage << " " << masked);
            std::vector<int> mask;
            for (int j = 0; masked && j < p; ++j) mask.push_back(j % 4 == 1 ? 0 : 2);
            Case<R> c(g, layout, storage, mask);
            ASSERT_EQ(c.run(kBoth, &ork_threader_parallel), 0);
            c.expect_all();
            // Each alone writes its own outputs, and the same.
            Case<R> pool(g, layout, storage, mask), single(g, layout, storage, mask);
            ASSERT_EQ(pool.run(ORK_SS_POOLED_COV), 0);
            ASSERT_EQ(single.run(ORK_SS_GROUP_COV), 0);
            for (const int code : {ORK_SS_EDIT_POOLED_MEAN, ORK_SS_EDIT_POOLED_COV})
              EXPECT_EQ(pool.t.arrays[code], c.t.arrays[code]);
            for (const int code : {ORK_SS_EDIT_GROUP_MEANS, ORK_SS_EDIT_GROUP_COV})
              EXPECT_EQ(single.t.arrays[code], c.t.arrays[code]);
            EXPECT_EQ(pool.covs[0], c.t.canary);
            EXPECT_EQ(single.pooled_cov[0], c.t.canary);
          }
    }
}

// A thread for each item, the last one first; ordered bodies wait for those of lower items.
struct Reversed {
  static inline std::mutex mutex;
  static inline std::condition_variable changed;
  static inline int passed;
  static void ordered_for(int count, int, void* context, ork_threader_body body) {
    passed = 0;
    std::vector<std::thread> threads;
    for (int item = count - 1; item >= 0; --item) {
      threads.emplace_back(body, item, item, 0, context);
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    for (auto& thread : threads) thread.join();
  }
  static void ordered(int item, int thread, int third, void* context, ork_threader_body body) {
    std::unique_lock lock(mutex);
    changed.wait(lock, [&] { return passed == item; });
    body(item, thread, third, context);
    ++passed;
    changed.notify_all();
  }
  static int max_threads() { return kGroups; }
  static constexpr ork_threader table = {nullptr, ordered_for, nullptr, ordered, max_threads};
};

TYPED_TEST(Pooled, BitsDependOnNoThread) {
  typedef TypeParam R;
  for (const int n : {600, 200001}) {
    // Two groups of one weight whose means cancel: what the third adds before them is lost.
    Groups<R> g(12, n, false);
    for (int i = 0; i < n; ++i) {
      g.group[i] = i / 3 < n / 3 ? i % 3 : 2;
      if (g.group[i] < 2) g.rows[i] = g.columns[12 * i] = R(g.group[i] == 0 ? 0x1p70 : -0x1p70);
    }
    for (const int layout : {ORK_SS_ROWS, ORK_SS_COLUMNS}) {
      Case<R> one(g, layout, ORK_SS_FULL), many(g, layout, ORK_SS_FULL),
          single(g, layout, ORK_SS_FULL);
      ASSERT_EQ(one.run(), 0);
      ASSERT_EQ(many.run(kBoth, &Reversed::table), 0);
      EXPECT_EQ(Reversed::passed, 3);
      EXPECT_EQ(one.outputs(), many.outputs());
      ASSERT_EQ(single.run(ORK_SS_GROUP_COV, &Reversed::table), 0);
      EXPECT_EQ(Reversed::passed, 0) << "order where there is nothing to order";
      EXPECT_EQ(single.t.arrays[ORK_SS_EDIT_GROUP_COV], one.t.arrays[ORK_SS_EDIT_GROUP_COV]);
    }
  }
}

// Each step puts right what the check before it found wanting.
TYPED_TEST(Pooled, ChecksInTheirOrder) {
  typedef TypeParam R;
  const R x[6] = {1, 2, 3, 4, 5, 6};
  const int step = Integer<R>::wide ? 2 : 1;
  std::vector<int> index(3 * step, 0), request(2 * step, 0);
  Task<R> t(2, 3, ORK_SS_ROWS, x);
  const auto run = [&](uint64_t estimates = kBoth, uint64_t method = ~uint64_t(ORK_SS_ONE_PASS)) {
    return t.call(Api<R>::pooled, estimates, method);
  };
  t.storage = 0x40000;
  EXPECT_EQ(run(), -4003);
  t.storage = ORK_SS_ROWS;
  EXPECT_EQ(run(), -4030);
  EXPECT_EQ(__ruaiSSEditTask(t.task, ORK_SS_EDIT_GROUP_INDEX, index.data()), 0);
  EXPECT_EQ(run(), -4044);
  EXPECT_EQ(run(ORK_SS_GROUP_COV), -4044);
  t.integer(ORK_SS_EDIT_POOLED_COV_STORAGE, ORK_SS_FULL);
  EXPECT_EQ(run(), -4034);
  R* const cov = t.array(ORK_SS_EDIT_POOLED_COV, 4);
  EXPECT_EQ(run(), -4035);
  t.array(ORK_SS_EDIT_POOLED_MEAN, 2);
  EXPECT_EQ(run(), -4044);
  t.integer(ORK_SS_EDIT_GROUP_COV_STORAGE, ORK_SS_FULL);
  EXPECT_EQ(run(), -4030);
  EXPECT_EQ(run(ORK_SS_POOLED_COV), -4029);
  EXPECT_EQ(__ruaiSSEditTask(t.task, ORK_SS_EDIT_GROUP_REQUEST, request.data()), 0);
  EXPECT_EQ(run(), -4036);
  t.array(ORK_SS_EDIT_GROUP_COV, 8);
  EXPECT_EQ(run(), -4037);
  t.array(ORK_SS_EDIT_GROUP_MEANS, 4);
  index[2 * step] = step == 2 ? 1 : -1;
  if (step == 2) index[2 * step + 1] = -1;  // all 64 bits count
  EXPECT_EQ(run(), -4029);
  const auto expect = [&](int status) {
    EXPECT_EQ(run(kBoth, ORK_SS_ONE_PASS), status);
    EXPECT_EQ(run(ORK_SS_POOLED_COV, ORK_SS_ONE_PASS), status) << "pool alone";
    EXPECT_EQ(cov[0], t.canary);
  };
  expect(-4038);
  index[2 * step] = step == 2 ? 0 : INT_MAX;  // more groups than can be counted
  if (step == 2) index[2 * step + 1] = 1;
  expect(-4038);
  index[2 * step] = 1;
  if (step == 2) index[2 * step + 1] = 0;
  for (const int bad : {2, -1}) {
    request[step] = bad;
    if (step == 2) request[step + 1] = bad == 2 ? 0 : 1;  // beyond 32 bits
    expect(-4038);
  }
  request[step] = 1;
  if (step == 2) request[step + 1] = 0;
  EXPECT_EQ(run(kBoth, ORK_SS_ONE_PASS), 0);
  EXPECT_EQ(cov[0], R(0.5));  // 1 and 2 about 1.5; alone 3
}

TYPED_TEST(Pooled, FailingAllocationsLeaveTheOutputsAlone) {
  typedef TypeParam R;
  const int live = blocks::live();
  const Groups<R> g(12, 300, true);
  Case<R> c(g, ORK_SS_COLUMNS, ORK_SS_LOWER_PACKED);
  const int asked = blocks::fail_each([&] {
    const auto before = c.outputs();
    const int alive = blocks::live(), status = c.run();
    EXPECT_EQ(status, blocks::failed() ? ORK_SS_NO_MEMORY : 0);
    EXPECT_EQ(c.outputs() == before, status != 0);
    EXPECT_EQ(blocks::live(), alive);
  });
  EXPECT_GE(asked, 2);
  EXPECT_EQ(blocks::live(), live + 1);  // the task
}

}  // namespace
