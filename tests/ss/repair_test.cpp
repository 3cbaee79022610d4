// Repair of correlation matrices, against cyclic Jacobi rotations in long double.
#include "ork/zem.h"
#include "ss/jacobi.hpp"
#include "ss/statistics.hpp"
#include "support/bits.hpp"
#include "support/special.hpp"

namespace {
using namespace statistics;

constexpr int kStorages[] = {ORK_SS_FULL, ORK_SS_LOWER_PACKED, ORK_SS_UPPER_PACKED};

template <class R>
struct Repair : ::testing::Test {
  static constexpr R floor = sizeof(R) == 8 ? R(1e-14) : R(1e-6);
  static constexpr R eps = std::numeric_limits<R>::epsilon();
};
typedef ::testing::Types<double, float> RealTypes;
TYPED_TEST_SUITE(Repair, RealTypes);

int place(int storage, int p, int i, int j) {
  if (storage == ORK_SS_FULL) return i * p + j;
  if ((storage == ORK_SS_UPPER_PACKED) != (j > i)) std::swap(i, j);
  if (storage == ORK_SS_LOWER_PACKED) return i * (i + 1) / 2 + j;
  return i * p - i * (i - 1) / 2 + j - i;
}
int size(int storage, int p) { return storage == ORK_SS_FULL ? p * p : p * (p + 1) / 2; }

Wide least_eigenvalue(int p, Square a) {
  jacobi(p, a);
  Wide least = a[0];
  for (int i = 1; i < p; ++i) least = std::min(least, a[i * p + i]);
  return least;
}

Square repaired(int p, const Square& cor, Wide floor) {
  Square values = cor, out(p * p, 0);
  const Square v = jacobi(p, values);
  for (int i = 0; i < p; ++i)
    for (int j = 0; j < p; ++j)
      for (int k = 0; k < p; ++k)
        out[i * p + j] += std::max(values[k * p + k], floor) * v[k * p + i] * v[k * p + j];
  Square scaled = out;
  for (int i = 0; i < p; ++i)
    for (int j = 0; j < p; ++j) scaled[i * p + j] /= sqrtl(out[i * p + i] * out[j * p + j]);
  return scaled;
}

// Below the diagonal correlations of any kind, NaN everywhere that must not be read.
template <class R>
std::vector<R> stored(int storage, int p, const Square& cor) {
  std::vector<R> a(size(storage, p), quiet_nan<R>);
  for (int i = 0; i < p; ++i)
    for (int j = 0; j < i; ++j) a[place(storage, p, i, j)] = R(cor[i * p + j]);
  return a;
}

Square correlations(int p, double strength, bool (*flip)(int, int)) {
  std::mt19937 g(p);
  Square a(p * p);
  for (int i = 0; i < p; ++i) {
    a[i * p + i] = 1;
    for (int j = 0; j < i; ++j) {
      const float r = float((flip(i, j) ? -strength : strength) * (0.75 + 0.25 * (g() % 64) / 64));
      a[i * p + j] = a[j * p + i] = r;
    }
  }
  return a;
}
bool never(int, int) { return false; }
bool some(int i, int j) { return (i + 2 * j) % 3 == 1; }

// What the task of one repair holds; result in the array of cor where `same`.
template <class R>
struct Case {
  static constexpr R x = 0;
  Task<R> t;
  R *cor, *result;

  Case(int p, int from, int to, bool same, const Square& a) : t(p, 1, ORK_SS_ROWS, &x) {
    const std::vector<R> values = stored<R>(from, p, a);
    cor = t.array(ORK_SS_EDIT_COR, int(values.size()));
    std::copy(values.begin(), values.end(), cor);
    if (same)
      EXPECT_EQ(Api<R>::edit(t.task, ORK_SS_EDIT_PARAM_COR, result = cor), t.edited());
    else
      result = t.array(ORK_SS_EDIT_PARAM_COR, size(to, p));
    t.integer(ORK_SS_EDIT_COR_STORAGE, from);
    t.integer(ORK_SS_EDIT_PARAM_COR_STORAGE, to);
  }
  int run(uint64_t method = ORK_SS_SPECTRAL | ORK_SS_FAST) {
    return t.call(Api<R>::repair, 0, method, nullptr);
  }
};

// Higham's 1, 1, 0 matrix, indefinite and definite ones of several sizes, in all storages.
TYPED_TEST(Repair, MatchesJacobiInEveryStorageAndInPlace) {
  typedef TypeParam R;
  const struct {
    int p;
    bool indefinite;
    Square cor;
  } cases[] = {
      {1, false, {1}},
      {2, false, {1, -0.5, -0.5, 1}},
      {2, true, {1, 1.5, 1.5, 1}},
      {3, true, {1, 1, 0, 1, 1, 1, 0, 1, 1}},
      {3, false, {1, 0, 0, 0, 1, 0, 0, 0, 1}},
      {5, true, correlations(5, 0.9, some)},
      {9, false, correlations(9, 0.5, never)},
      {24, true, correlations(24, 0.7, some)},
  };
  for (const auto& c : cases)
    for (const int from : kStorages)
      for (const int to : kStorages)
        for (const bool same : {false, true}) {
          SCOPED_TRACE(testing::Message() << &c - cases << ": " << from << to << same);
          const int p = c.p;
          Case<R> run(p, from, to, same, c.cor);
          ASSERT_EQ(least_eigenvalue(p, c.cor) < 0, c.indefinite);
          const std::vector<R> before(run.cor, run.cor + size(from, p));
          if (same && to == ORK_SS_FULL && from != ORK_SS_FULL) {
            EXPECT_EQ(run.run(), -4003);
            continue;
          }
          // The mode that comes back is one that says how denormals go; none stands for "as it
          // was".
          ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_ZERO);
          const uint32_t mode = ork_zem_kernel_GetMode();
          ASSERT_EQ(run.run(), 0);
          EXPECT_EQ(ork_zem_kernel_GetMode(), mode);
          ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_KEEP);
          run.t.expect_canaries();
          const bool untouched = same && from == to && !c.indefinite;
          for (size_t k = 0; k < before.size(); ++k)
            if (!same || untouched) {
              EXPECT_EQ(bits(run.cor[k]), bits(before[k])) << k;
            }
          if (untouched) continue;
          const Square want = c.indefinite ? repaired(p, c.cor, this->floor) : c.cor;
          Square got(p * p);
          for (int i = 0; i < p; ++i)
            for (int j = 0; j < p; ++j) {
              const R r = run.result[place(to, p, i, j)];
              got[i * p + j] = r;
              if (i == j)
                EXPECT_EQ(r, R(1)) << i;
              else
                EXPECT_NEAR(r, double(want[i * p + j]), c.indefinite ? 4 * p * this->eps : 0)
                    << i << " " << j;
            }
          // Scaling divides the floor by the raised diagonal, at most the largest eigenvalue: about
          // p, the trace.
          EXPECT_GE(least_eigenvalue(p, got), this->floor / p - 2 * p * this->eps);
          for (int i = 0; to == ORK_SS_FULL && i < p * p; ++i)
            EXPECT_EQ(run.result[i], run.result[i % p * p + i / p]) << i;
        }
}

// The nearest correlation matrix by alternating projections (N. J. Higham, IMA J. Numer. Anal. 22,
// 2002): onto positive semidefinite matrices, with Dykstra's correction, and onto those with a
// diagonal of 1.
Square nearest(int p, const Square& cor) {
  Square y = cor, correction(p * p, 0);
  for (int k = 0; k < 3000; ++k) {
    Square r(p * p), values(p * p), x(p * p, 0);
    for (int i = 0; i < p * p; ++i) values[i] = r[i] = y[i] - correction[i];
    const Square v = jacobi(p, values);
    for (int i = 0; i < p; ++i)
      for (int j = 0; j < p; ++j)
        for (int e = 0; e < p; ++e)
          x[i * p + j] += std::max(values[e * p + e], Wide(0)) * v[e * p + i] * v[e * p + j];
    Wide moved = 0;
    for (int i = 0; i < p * p; ++i) {
      correction[i] = x[i] - r[i];
      const Wide next = i % (p + 1) == 0 ? Wide(1) : x[i];
      moved = std::max(moved, fabsl(next - y[i]));
      y[i] = next;
    }
    if (moved < 1e-12L) break;
  }
  return y;
}

// How far the repair goes, beside the nearest correlation matrix. Higham's paper prints the
// nearest to his two: 0.7607 and 0.1573; -0.8084, 0.1916, 0.1068 and -0.6562.
TEST(RepairDistance, BesideTheNearestCorrelationMatrix) {
  const struct {
    const char* source;
    int p;
    Square below;              // row after row
    double nearest, repaired;  // distances, Frobenius norm
    Square printed;            // first elements of the nearest one, row after row
  } matrices[] = {
      {"Higham 2002, 3 x 3", 3, {1, 0, 1}, 0.5278, 0.5376, {0.7607, 0.1573, 0.7607}},
      {"Higham 2002, 4 x 4",
       4,
       {-1, 0, -1, 0, 0, -1},
       0.7435,
       0.7691,
       {-0.8084, 0.1916, -0.6562, 0.1068, 0.1916, -0.8084}},
      {"Rebonato, Jaeckel 1999", 3, {0.9, 0.7, 0.3}, 0.0097, 0.01, {}},
      {"Turkay, Epperlein, Christofides 2003",
       4,
       {-0.55, -0.15, 0.9, -0.1, 0.9, 0.9},
       0.0374,
       0.0393,
       {}},
      {"Knol, ten Berge 1989",
       6,
       {0.477, 0.644, 0.516, 0.478, 0.233, 0.599, 0.651, 0.682, 0.581, 0.741, 0.826, 0.75, 0.742,
        0.8, 0.798},
       0.0743,
       0.0839,
       {}},
  };
  for (const auto& m : matrices) {
    SCOPED_TRACE(m.source);
    const int p = m.p;
    Square cor(p * p, 1);
    for (int i = 0, k = 0; i < p; ++i)
      for (int j = 0; j < i; ++j) cor[i * p + j] = cor[j * p + i] = m.below[k++];
    EXPECT_LT(least_eigenvalue(p, cor), 0);
    Case<double> run(p, ORK_SS_FULL, ORK_SS_FULL, false, cor);
    ASSERT_EQ(run.run(), 0);
    const Square best = nearest(p, cor), ours(run.result, run.result + p * p);
    const auto distance = [&](const Square& a) {
      Wide sum = 0;
      for (int i = 0; i < p * p; ++i) sum += (a[i] - cor[i]) * (a[i] - cor[i]);
      return double(sqrtl(sum));
    };
    for (int i = 0, k = 0; i < p && !m.printed.empty(); ++i)
      for (int j = 0; j < i; ++j) EXPECT_NEAR(best[i * p + j], m.printed[k++], 6e-5) << i << j;
    EXPECT_NEAR(distance(best), m.nearest, 6e-5);
    EXPECT_NEAR(distance(ours), m.repaired, 6e-5);
    EXPECT_GE(distance(ours), distance(best) - 1e-9);
    EXPECT_GE(least_eigenvalue(p, ours),
              1e-14 / p - 2 * p * std::numeric_limits<double>::epsilon());
  }
}

TYPED_TEST(Repair, StatusesComeInOrder) {
  typedef TypeParam R;
  const Square bad = {1, 1, 0, 1, 1, 1, 0, 1, 1};
  Case<R> c(3, ORK_SS_FULL, ORK_SS_FULL, false, bad);
  // From the last check to the first: each fault hides those before it. Storages are beyond 32
  // bits where integers are wide.
  const auto expect = [&](int status, uint64_t method) {
    EXPECT_EQ(c.run(method), status);
    for (int i = 0; i < 9; ++i) EXPECT_EQ(c.result[i], c.t.canary) << status;
  };
  c.cor[3] = quiet_nan<R>;
  expect(-5030, ORK_SS_SPECTRAL);
  c.cor[3] = std::numeric_limits<R>::infinity();
  expect(-5030, ORK_SS_SPECTRAL);
  const uint64_t none = ~uint64_t(ORK_SS_SPECTRAL);
  expect(-4029, none);
  c.t.integers[ORK_SS_EDIT_PARAM_COR_STORAGE] = 3;
  expect(-4003, none);
  c.t.integers[ORK_SS_EDIT_COR_STORAGE] = -1;
  expect(-4003, none);
  c.t.p = 0;
  expect(-4001, none);
  // Arrays and storages that are not there.
  const R x = 0;
  Task<R> t(3, 1, ORK_SS_ROWS, &x);
  const struct {
    int status, integer, value;
  } steps[] = {{-4044, ORK_SS_EDIT_COR_STORAGE, ORK_SS_FULL},
               {-4044, ORK_SS_EDIT_PARAM_COR_STORAGE, ORK_SS_LOWER_PACKED}};
  EXPECT_EQ(t.call(Api<R>::repair, 0, 0), -4019);
  t.array(ORK_SS_EDIT_COR, 9, R(0));
  EXPECT_EQ(t.call(Api<R>::repair, 0, 0), steps[0].status);
  t.integer(steps[0].integer, steps[0].value);
  EXPECT_EQ(t.call(Api<R>::repair, 0, 0), -4071);
  t.array(ORK_SS_EDIT_PARAM_COR, 9);
  EXPECT_EQ(t.call(Api<R>::repair, 0, 0), steps[1].status);
  t.integer(steps[1].integer, steps[1].value);
  EXPECT_EQ(t.call(Api<R>::repair, 0, 0), -4029);
  EXPECT_EQ(t.call(Api<R>::repair, 0, ORK_SS_SPECTRAL), 0);
}

TYPED_TEST(Repair, FailingAllocationsLeaveTheResultAlone) {
  typedef TypeParam R;
  const int live = blocks::live();
  const Square cor = correlations(24, 0.7, some);
  const int asked = blocks::fail_each([&] {
    Case<R> c(24, ORK_SS_FULL, ORK_SS_UPPER_PACKED, false, cor);
    if (!c.t.task) return;
    const bool made = !blocks::failed();
    const int status = c.run();
    EXPECT_EQ(status, made && blocks::failed() ? -4000 : 0);
    for (int k = 0; k < 300; ++k) EXPECT_EQ(c.result[k] == c.t.canary, status != 0) << k;
  });
  EXPECT_GE(asked, 2);
  EXPECT_EQ(blocks::live(), live);
}

}  // namespace
