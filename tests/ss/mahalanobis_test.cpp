// Mahalanobis distances, against the full quadratic form in long double.
#include "ss/statistics.hpp"
#include "support/bits.hpp"
#include "support/memory.hpp"
#include "support/special.hpp"

namespace {
using namespace statistics;

template <class R>
struct Mahalanobis : ::testing::Test {};
typedef ::testing::Types<double, float> RealTypes;
TYPED_TEST_SUITE(Mahalanobis, RealTypes);

// A positive definite matrix in the lower triangle, NaN above it, and a mean.
template <class R>
struct Measure {
  int p;
  std::vector<R> mean, a;

  explicit Measure(int p) : p(p), mean(p), a(p * p, quiet_nan<R>) {
    for (int i = 0; i < p; ++i) {
      mean[i] = R(i % 5) - R(1.5);
      for (int j = 0; j <= i; ++j) a[i * p + j] = i == j ? R(2 + i % 3) : R(0.5) / R(1 + i + j);
    }
  }
  template <class X>
  long double operator()(X x) const {
    long double sum = 0;
    const auto c = [&](int j) { return (long double)x(j) - mean[j]; };
    for (int i = 0; i < p; ++i)
      for (int j = 0; j < p; ++j) sum += c(i) * c(j) * (i < j ? a[j * p + i] : a[i * p + j]);
    return sqrtl(sum);
  }
};

// Distances of observations [first, last) of a task; the record's words from 81 on say so.
template <class R>
int distances(Task<R>& t, const Measure<R>& m, int first, int last, R* to) {
  const Integer<R> from(first), until(last);
  const void* const fields[] = {&from, &until, m.mean.data(), m.a.data(), to};
  memcpy(reinterpret_cast<const void**>(t.task) + 81, fields, sizeof fields);
  return sizeof(R) == 8 ? _ruadSSMahDistance(t.task) : _ruasSSMahDistance(t.task);
}

// Every variable's place in a vector, every count of lanes, matrices within the cache and beyond
// the room on the stack; nothing read behind the data or written behind the result.
TYPED_TEST(Mahalanobis, MatchesTheFullFormAtEveryCount) {
  typedef TypeParam R;
  for (const int p : {1, 2, 3, 4, 5, 7, 10, 33, 255, 256, 257, 300})
    for (const int layout : {ORK_SS_ROWS, ORK_SS_COLUMNS}) {
      const int n = 37;
      const Sample<R> s(p, n);
      const Measure<R> m(p);
      GuardedPages data(p * n * sizeof(R)), result(n * sizeof(R));
      R* const x = data.at_end<R>(p * n);
      std::copy_n(s.data(layout), p * n, x);
      Task<R> t(p, n, layout, x);
      std::vector<R> whole(n);
      ASSERT_EQ(distances(t, m, 0, n, whole.data()), 0);
      for (int i = 0; i < n; ++i) {
        const long double want = m([&](int j) { return s.columns[i * p + j]; });
        EXPECT_NEAR(whole[i], want, want * std::numeric_limits<R>::epsilon() * (p + 4))
            << p << " " << i;
      }
      for (int first = 0; first < n; first += 5)
        for (int count = 0; count <= std::min(n - first, 18); ++count) {
          R* const to = result.at_end<R>(count);
          to[-1] = Task<R>::canary;
          ASSERT_EQ(distances(t, m, first, first + count, to), 0);
          EXPECT_EQ(to[-1], Task<R>::canary);
          for (int i = 0; i < count; ++i) ASSERT_EQ(bits(to[i]), bits(whole[first + i]));
        }
    }
}

TYPED_TEST(Mahalanobis, RareObservationsLeaveTheirNeighboursAlone) {
  typedef TypeParam R;
  const int p = 4, n = 40;
  const Measure<R> m(p);
  Sample<R> s(p, n);
  Task<R> t(p, n, ORK_SS_COLUMNS, s.columns.data());
  std::vector<R> before(n), after(n);
  ASSERT_EQ(distances(t, m, 0, n, before.data()), 0);
  const int nan = 6, infinite = 19, centre = 39;
  s.columns[nan * p + 2] = quiet_nan<R>;
  s.columns[infinite * p] = -inf<R>;
  std::copy_n(m.mean.begin(), p, &s.columns[centre * p]);
  ASSERT_EQ(distances(t, m, 0, n, after.data()), 0);
  EXPECT_TRUE(std::isnan(after[nan]));
  EXPECT_FALSE(std::isfinite(after[infinite]));
  EXPECT_EQ(bits(after[centre]), bits(R(0)));
  for (int i = 0; i < n; ++i)
    if (i != nan && i != infinite && i != centre) {
      EXPECT_EQ(bits(after[i]), bits(before[i])) << i;
    }
}

TYPED_TEST(Mahalanobis, OnlyManyVariablesTakeMemoryAndItsFailureIsTold) {
  typedef TypeParam R;
  for (const int p : {256, 257}) {
    const Sample<R> s(p, 9);
    const Measure<R> m(p);
    Task<R> t(p, 9, ORK_SS_ROWS, s.rows.data());
    std::vector<R> d(9);
    const int live = blocks::live();
    EXPECT_EQ(blocks::fail_each([&] {
                const int status = distances(t, m, 0, 9, d.data());
                EXPECT_EQ(status, blocks::failed() ? -4000 : 0);
              }),
              p == 257);
    EXPECT_EQ(blocks::live(), live);
  }
}

}  // namespace
