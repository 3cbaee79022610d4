// Partial covariance and correlation against quadruple precision.
#include <quadmath.h>

#include "ss/matrices.hpp"
#include "ss/statistics.hpp"

namespace {
using namespace statistics;

template <class R>
struct StatisticsPartial : ::testing::Test {};
typedef ::testing::Types<double, float> RealTypes;
TYPED_TEST_SUITE(StatisticsPartial, RealTypes);

// A matrix well away from singular; unlike variances.
template <class R>
std::vector<R> covariance(int p) {
  std::vector<R> a(p * p);
  for (int i = 0; i < p; ++i)
    for (int j = 0; j < p; ++j)
      a[i * p + j] = R((i == j ? 1.0 : 0.4 / (1 + abs(i - j))) * (1 + i % 3) * (1 + j % 3));
  return a;
}

// Sweeps one variable of Z after another out of the whole matrix, and returns what Y keeps.
std::vector<__float128> swept(std::vector<__float128> a, const std::vector<int>& entries) {
  const int p = int(entries.size());
  for (int z = 0; z < p; ++z)
    if (entries[z] == -1) {
      const auto old = a;
      for (int i = 0; i < p; ++i)
        for (int j = 0; j < p; ++j)
          a[i * p + j] -= old[i * p + z] * old[z * p + j] / old[z * p + z];
    }
  std::vector<__float128> rest;
  for (int i = 0; i < p; ++i)
    for (int j = 0; j < p; ++j)
      if (entries[i] == 1 && entries[j] == 1) rest.push_back(a[i * p + j]);
  return rest;
}

template <class R>
struct Case : Task<R> {
  std::vector<Integer<R>> index;
  std::vector<int> entries;

  Case(int p, const std::vector<int>& e) : Task<R>(p, 1, ORK_SS_ROWS, &one), entries(e) {
    if (Integer<R>::wide) {
      for (const int entry : e) index.push_back(entry);
    } else {
      for (size_t i = 0; i < e.size(); ++i) words.push_back(e[i]);
    }
    EXPECT_EQ(__ruaiSSEditTask(this->task, ORK_SS_EDIT_PARTIAL_INDEX,
                               Integer<R>::wide ? (const void*)index.data() : words.data()),
              this->edited());
  }
  int run(uint64_t estimates, uint64_t method = ORK_SS_FAST) {
    return Api<R>::partial(this->task, uint32_t(estimates), uint32_t(estimates >> 32),
                           uint32_t(method));
  }
  // The matrix in any storage; of a correlation, with the variances on its diagonal.
  void source(int code, int storage_code, int storage, const std::vector<R>& a) {
    const int p = this->p;
    R* const to = this->array(code, size_of(storage, p));
    for (int i = 0; i < p; ++i)
      for (int j = 0; j <= i; ++j) {
        to[place(storage, p, i, j)] = a[i * p + j];
        if (storage == ORK_SS_FULL) to[j * p + i] = a[i * p + j];
      }
    this->integer(storage_code, storage);
  }

 private:
  static constexpr R one = 1;
  std::vector<int> words;
};

constexpr uint64_t kBoth = ORK_SS_PARTIAL_COV | ORK_SS_PARTIAL_COR;

TYPED_TEST(StatisticsPartial, MatchSweepsInAllStorages) {
  typedef TypeParam R;
  const std::vector<std::vector<int>> sets = {
      {1, -1}, {-1, 1, 1, 0, -1}, {1, -1, 2, 1, -1, 1, -1, -1, 1, -3, 1, 1, -1}};
  for (const auto& entries : sets)
    for (const bool correlation : {false, true})
      for (const int from : kStorages)
        for (const int to : kStorages)
          for (const int cor_to : kStorages)
            for (const uint64_t which : {uint64_t(ORK_SS_PARTIAL_COR), kBoth}) {
              SCOPED_TRACE(testing::Message() << entries.size() << " " << correlation << " " << from
                                              << " " << to << " " << cor_to << " " << which);
              const int p = int(entries.size());
              std::vector<R> a = covariance<R>(p);
              if (correlation)
                for (int i = 0; i < p; ++i)
                  for (int j = 0; j < p; ++j)
                    if (i != j) a[i * p + j] = R(0.4 / (1 + abs(i - j)));
              std::vector<__float128> exact(a.begin(), a.end());
              for (int i = 0; correlation && i < p; ++i)
                for (int j = 0; j < p; ++j)
                  if (i != j) exact[i * p + j] *= sqrtq((__float128)a[i * p + i] * a[j * p + j]);
              const auto want = swept(exact, entries);
              const int ny = int(std::count(entries.begin(), entries.end(), 1));
              Case<R> t(p, entries);
              if (correlation)
                t.source(ORK_SS_EDIT_COR, ORK_SS_EDIT_COR_STORAGE, from, a);
              else
                t.source(ORK_SS_EDIT_COV, ORK_SS_EDIT_COV_STORAGE, from, a);
              R* const cov = t.array(ORK_SS_EDIT_PARTIAL_COV, size_of(to, ny));
              R* const cor = t.array(ORK_SS_EDIT_PARTIAL_COR, size_of(cor_to, ny));
              t.integer(ORK_SS_EDIT_PARTIAL_COV_STORAGE, to);
              t.integer(ORK_SS_EDIT_PARTIAL_COR_STORAGE, cor_to);
              ASSERT_EQ(t.run(which), 0);
              t.expect_canaries();
              for (int i = 0; i < ny; ++i)
                for (int j = 0; j <= i; ++j) {
                  const __float128 pij = want[i * ny + j];
                  const __float128 scale = sqrtq(want[i * ny + i] * want[j * ny + j]);
                  const double unit = 4 * p * double(std::numeric_limits<R>::epsilon());
                  if (which == kBoth) {
                    EXPECT_NEAR(double(cov[place(to, ny, i, j)] - pij), 0, unit * double(scale));
                    if (to == ORK_SS_FULL) {
                      EXPECT_EQ(cov[i * ny + j], cov[j * ny + i]);
                    }
                  } else {
                    EXPECT_EQ(cov[place(to, ny, i, j)], t.canary);
                  }
                  const R got = cor[place(cor_to, ny, i, j)];
                  EXPECT_NEAR(double(got - (i == j ? pij : pij / scale)), 0,
                              unit * (i == j ? double(scale) : 1));
                  if (cor_to == ORK_SS_FULL) {
                    EXPECT_EQ(cor[i * ny + j], cor[j * ny + i]);
                  }
                }
            }
}

// Each step puts right what the check before it found wanting.
TYPED_TEST(StatisticsPartial, ChecksInTheirOrder) {
  typedef TypeParam R;
  static const R one = 1;
  Task<R> t(3, 1, ORK_SS_ROWS, &one);
  const auto run = [&](uint64_t method) {
    return Api<R>::partial(t.task, uint32_t(kBoth), uint32_t(kBoth >> 32), uint32_t(method));
  };
  EXPECT_EQ(run(0), -4018);
  const std::vector<R> singular = {1, 0, 0, 0, 1, 1, 0, 1, 1};
  std::copy(singular.begin(), singular.end(), t.array(ORK_SS_EDIT_COR, 9));
  EXPECT_EQ(run(0), -4044);
  t.integer(ORK_SS_EDIT_COR_STORAGE, ORK_SS_FULL);
  EXPECT_EQ(run(0), -4045);
  std::vector<int64_t> wide = {1, 1, 1};
  std::vector<int> narrow = {1, 1, 1};
  const auto set = [&](int a, int b, int c) {
    const int entries[] = {a, b, c};
    for (int i = 0; i < 3; ++i) wide[i] = narrow[i] = entries[i];
  };
  ASSERT_EQ(__ruaiSSEditTask(t.task, ORK_SS_EDIT_PARTIAL_INDEX,
                             Integer<R>::wide ? (const void*)wide.data() : narrow.data()),
            0);
  // A covariance goes first, and misses its storage.
  std::copy(singular.begin(), singular.end(), t.array(ORK_SS_EDIT_COV, 9));
  EXPECT_EQ(run(0), -4044);
  t.integer(ORK_SS_EDIT_COV_STORAGE, ORK_SS_FULL);
  EXPECT_EQ(run(0), -4046);
  t.array(ORK_SS_EDIT_PARTIAL_COV, 9);
  EXPECT_EQ(run(0), -4044);
  t.integer(ORK_SS_EDIT_PARTIAL_COV_STORAGE, ORK_SS_LOWER_PACKED);
  EXPECT_EQ(run(0), -4047);
  t.array(ORK_SS_EDIT_PARTIAL_COR, 9);
  EXPECT_EQ(run(0), -4044);
  t.integer(ORK_SS_EDIT_PARTIAL_COR_STORAGE, ORK_SS_FULL);
  EXPECT_EQ(run(ORK_SS_ONE_PASS), -4029);
  EXPECT_EQ(run(ORK_SS_FAST), -4073);  // nothing to condition on
  set(-1, 0, -1);
  EXPECT_EQ(run(ORK_SS_FAST), -4073);
  set(1, -1, -1);
  const int live = blocks::live();
  EXPECT_EQ(run(ORK_SS_FAST), -5010);
  EXPECT_EQ(blocks::live(), live);
  set(-1, 1, 0);
  const int allocations = blocks::fail_each([&] {
    const int status = run(ORK_SS_FAST);
    EXPECT_EQ(status, blocks::failed() ? ORK_SS_NO_MEMORY : 0);
    EXPECT_EQ(blocks::live(), live);
  });
  EXPECT_GE(allocations, 1);
  t.expect_canaries();
}

}  // namespace
