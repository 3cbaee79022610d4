// Robust covariance: the orthogonalised start against a plain transcription in long double, the
// constants against their integrals, the result against the equations it has to satisfy.
#include "ork/zem.h"
#include "rua_kernel/ss/robust/biweight.hpp"
#include "ss/classical.hpp"
#include "ss/jacobi.hpp"
#include "ss/statistics.hpp"
#include "support/bits.hpp"
#include "support/special.hpp"

namespace {
using namespace statistics;

typedef std::vector<Wide> Wides;

template <class R>
struct Robust : ::testing::Test {
  static constexpr bool wide = sizeof(R) == 8;
};
typedef ::testing::Types<double, float> RealTypes;
TYPED_TEST_SUITE(Robust, RealTypes);

// A task and its results. Observations stand observation after observation in x.
template <class R>
struct Estimate {
  int p, n, storage;
  std::vector<R> x;
  Task<R> t;
  std::vector<R> parameters;

  Estimate(int p, std::vector<R> columns, int layout = ORK_SS_COLUMNS, int storage = ORK_SS_FULL)
      : p(p), n(int(columns.size()) / p), storage(storage), x(columns), t(p, n, layout, x.data()) {
    for (int i = 0; layout == ORK_SS_ROWS && i < n; ++i)
      for (int j = 0; j < p; ++j) x[j * n + i] = columns[i * p + j];
    t.array(ORK_SS_EDIT_ROBUST_MEAN, p);
    t.array(ORK_SS_EDIT_ROBUST_COV, storage == ORK_SS_FULL ? p * p : p * (p + 1) / 2);
    t.integer(ORK_SS_EDIT_ROBUST_COV_STORAGE, storage);
  }
  void set(std::vector<R> values, int count = 4) {
    parameters = values;
    t.integer(ORK_SS_EDIT_ROBUST_PARAM_COUNT, count);
    EXPECT_EQ(Api<R>::edit(t.task, ORK_SS_EDIT_ROBUST_PARAMS, parameters.data()), t.edited());
  }
  int run(const ork_threader* table = &ork_threader_serial, uint64_t method = ORK_SS_TBS) {
    return t.call(Api<R>::robust, 0, method, table);
  }
  R mean(int j) { return t[ORK_SS_EDIT_ROBUST_MEAN][j]; }
  R cov(int i, int j) {
    R* const a = t[ORK_SS_EDIT_ROBUST_COV];
    if (storage == ORK_SS_FULL) return a[i * p + j];
    if ((storage == ORK_SS_UPPER_PACKED) != (j > i)) std::swap(i, j);
    return a[storage == ORK_SS_LOWER_PACKED ? i * (i + 1) / 2 + j
                                            : i * p - i * (i - 1) / 2 + j - i];
  }
  std::vector<R> results() {
    std::vector<R> all;
    for (int i = 0; i < p; ++i) all.push_back(mean(i));
    for (int i = 0; i < p * p; ++i) all.push_back(cov(i / p, i % p));
    return all;
  }
};

template <class R>
int count_apart(const std::vector<R>& a, const std::vector<R>& b) {
  int count = 0;
  for (size_t k = 0; k < a.size(); ++k) count += bits(a[k]) != bits(b[k]);
  return count;
}

Wide median(Wides v) {
  std::sort(v.begin(), v.end());
  return (v[(v.size() - 1) / 2] + v[v.size() / 2]) / 2;
}

struct Scale {
  Wide location, scale;
  explicit Scale(const Wides& x) {
    const Wide m = median(x);
    Wides d;
    for (const Wide v : x) d.push_back(fabsl(v - m));
    const Wide s = median(d), unit = s > 0 ? 1 / s : 0;
    Wide sum = 0, weights = 0, rho = 0;
    for (const Wide v : x) {
      const Wide u = fabsl((v - m) * unit / 4.5L), w = u <= 1 ? (1 - u * u) * (1 - u * u) : 0;
      weights += w, sum += w * v;
    }
    location = sum / weights;
    for (const Wide v : x) {
      const Wide d = (v - location) * unit;
      rho += fabsl(d / 3) <= 1 ? d * d : 9;
    }
    scale = s * sqrtl(rho / x.size());
  }
};

// Squared distances of the start in units of the limit: an observation is kept below 1.
Wides start(int p, const Wides& x) {
  const int n = int(x.size()) / p;
  Wides d(p), u(p * p, 1), e(n, 0);
  const auto column = [&](auto f) {
    Wides c(n);
    for (int i = 0; i < n; ++i) c[i] = f(&x[i * p]);
    return c;
  };
  for (int j = 0; j < p; ++j) {
    const Scale s(column([&](const Wide* row) { return row[j]; }));
    d[j] = s.scale > 0 ? 1 / s.scale : 0;
  }
  for (int j = 0; j < p; ++j)
    for (int l = 0; l < j; ++l) {
      const auto scale = [&](int sign) {
        return Scale(column([&](const Wide* row) { return row[j] * d[j] + sign * row[l] * d[l]; }))
            .scale;
      };
      const Wide plus = scale(1), minus = scale(-1);
      u[j * p + l] = u[l * p + j] = (plus * plus - minus * minus) / 4;
    }
  const Wides axes = jacobi(p, u);
  for (int r = 0; r < p; ++r) {
    const Wides z = column([&](const Wide* row) {
      Wide sum = 0;
      for (int j = 0; j < p; ++j) sum += axes[r * p + j] * d[j] * row[j];
      return sum;
    });
    const Scale s(z);
    for (int i = 0; i < n && s.scale > 0; ++i)
      e[i] += (z[i] - s.location) * (z[i] - s.location) / (s.scale * s.scale);
  }
  const Wide limit = median(e) * __ruadChi2ICDF(p, 0.9) / __ruadChi2ICDF(p, 0.5);
  for (Wide& distance : e) distance /= limit;
  return e;
}

// Moves one observation to where the transcription rejects it; a hair's breadth before, the
// library has to keep it, a hair's breadth behind, not. So every distance is right to that.
TYPED_TEST(Robust, StartRejectsWhereATranscriptionDoes) {
  typedef TypeParam R;
  const double hair = this->wide ? 1e-12 : 3e-5;
  int tried = 0;
  for (const int p : {1, 2, 3, 5, 8})
    for (const int n : {2 * p + 1, 60, 125})
      for (const bool still : {false, true}) {
        const int k = n / 2, j = p - 1;
        Sample<R> s(p, n, unsigned(p + n));
        if (still && p > 2)  // a variable without a scale
          for (int i = 0; i < n; ++i) s.columns[i * p] = i % 3 == 1 ? s.columns[i * p] : R(0.5);
        Wides x(s.columns.begin(), s.columns.end());
        Wide low = Scale([&] {
                     Wides c;
                     for (int i = 0; i < n; ++i) c.push_back(x[i * p + j]);
                     return c;
                   }())
                       .location,
             high = low + 40 * (j + 1);
        const auto out = [&](Wide at) {
          x[k * p + j] = at;
          return start(p, x)[k] >= 1;
        };
        // Other variables may have it out, its own share in the scales may keep it.
        if (out(low) || !out(high)) continue;
        ++tried;
        for (int step = 0; step < 70; ++step) {
          const Wide middle = (low + high) / 2;
          (out(middle) ? high : low) = middle;
        }
        SCOPED_TRACE(testing::Message() << p << " " << n << still);
        for (const int side : {-1, 1})
          for (const int layout : {ORK_SS_ROWS, ORK_SS_COLUMNS}) {
            s.columns[k * p + j] = R(high + side * hair * fabsl(high));
            Estimate<R> e(p, s.columns, layout);
            e.set({R(0.5), R(0.001), R(0.001), R(0)});
            ASSERT_EQ(e.run(), 0);
            // The mean tells who is in: of all kept by the transcription, with or without k.
            Wide sum = 0, kept = 0;
            x.assign(s.columns.begin(), s.columns.end());
            const Wides distance = start(p, x);
            for (int i = 0; i < n; ++i)
              if (i == k ? side < 0 : distance[i] < 1) sum += x[i * p + j], ++kept;
            EXPECT_NEAR(e.mean(j), double(sum / kept), hair * (1 + fabsl(sum / kept)));
          }
      }
  EXPECT_GE(tried, 20);
}

Wide chi_density(int p, Wide d) {
  return expl((p - 1) * logl(d) - d * d / 2 - (p / 2.L - 1) * logl(2.L) - lgammal(p / 2.L));
}
// Simpson's rule.
template <class F>
Wide integral(Wide from, Wide to, F f) {
  constexpr int steps = 2000;
  Wide sum = 0;
  for (int i = 0; i <= steps; ++i)
    sum += f(from + (to - from) * i / steps) * (i % steps == 0 ? 1 : i % 2 ? 4 : 2);
  return sum * (to - from) / (3 * steps);
}

TEST(RobustConstants, SatisfyTheirIntegrals) {
  int limits = 0, others = 0;
  for (int p = 1; p <= 50; ++p)
    for (const Wide breakdown : {0.5L, 0.45L, 0.3L})
      for (const Wide rejection : {0.1L, 0.001L, 1e-6L}) {
        const auto w = ork::ss::find_biweight(p, double(breakdown), double(rejection));
        const Wide m = w.m, c = w.c, end = m + c, tiny = 1e-9L;
        const auto mean = [&](Wide a, Wide b, auto f) {
          return integral(a, b, [&](Wide d) { return f(d) * chi_density(p, d); });
        };
        const auto square = [](Wide d) { return d * d / 2; };
        const auto one = [](Wide) -> Wide { return 1; };
        const Wide beyond = mean(end, end + 15, one);
        SCOPED_TRACE(testing::Message()
                     << p << " " << double(breakdown) << " " << double(rejection));
        EXPECT_NEAR(double(beyond / rejection), 1, 1e-6);
        if (c == 0) {
          // Even rejection at M alone has a higher breakdown, or even a descent from 0 on a lower.
          const Wide alone = mean(tiny, m, square) + m * m / 2 * beyond;
          const Wide steepest = mean(tiny, m,
                                     [&](Wide d) {
                                       const Wide t = 1 - d * d / (m * m);
                                       return m * m / 6 * (1 - t * t * t);
                                     }) +
                                m * m / 6 * beyond;
          if (alone < breakdown * m * m / 2) {
            EXPECT_LE(steepest, breakdown * m * m / 6 - 0.99e-4L);
          }
          ++limits;
          continue;
        }
        const auto weight = [&](Wide d) {
          const Wide t = (d - m) / c;
          return d * (1 - t * t) * (1 - t * t);
        };
        // rho by its definition, the integral of d w(d): by parts, its mean is that of the tail.
        const Wide bound = m * m / 2 + integral(m, end, weight);
        const Wide rho = mean(tiny, m, square) + beyond * bound + mean(m, end, [&](Wide d) {
                           const Wide t = (d - m) / c,
                                      t2 = t * t;  // Horner's scheme of the integral
                           return m * m / 2 + c * m * t * (1 + t2 * (-2 / 3.L + t2 / 5)) +
                                  c * c * (1 - (1 - t2) * (1 - t2) * (1 - t2)) / 6;
                         });
        EXPECT_NEAR(double(rho - breakdown * bound), 0, 1.01e-4);
        ++others;
      }
  EXPECT_GE(limits, 100);
  EXPECT_GE(others, 100);
}

// Gauss-Jordan, for definite matrices.
Wides inverse(int p, Wides a) {
  for (int k = 0; k < p; ++k) {
    const Wide pivot = 1 / a[k * p + k];
    a[k * p + k] = 1;
    for (int j = 0; j < p; ++j) a[k * p + j] *= pivot;
    for (int i = 0; i < p; ++i) {
      if (i == k) continue;
      const Wide f = a[i * p + k];
      a[i * p + k] = 0;
      for (int j = 0; j < p; ++j) a[i * p + j] -= f * a[k * p + j];
    }
  }
  return a;
}

// Distances of all observations by the estimate.
template <class R>
Wides distances(Estimate<R>& e, const std::vector<R>& columns) {
  const int p = e.p;
  Wides v(p * p), d(columns.size() / p);
  for (int i = 0; i < p * p; ++i) v[i] = e.cov(i / p, i % p);
  v = inverse(p, v);
  for (size_t k = 0; k < d.size(); ++k) {
    for (int i = 0; i < p * p; ++i)
      d[k] += v[i] * (columns[k * p + i / p] - (Wide)e.mean(i / p)) *
              (columns[k * p + i % p] - (Wide)e.mean(i % p));
    d[k] = sqrtl(d[k]);
  }
  return d;
}

// At the end mean and covariance are those of the weights that they lead to.
TYPED_TEST(Robust, SolvesTheEstimatingEquations) {
  typedef TypeParam R;
  const struct {
    int p;
    R rejection;
  } cases[] = {{1, R(0.06)}, {2, R(0.05)},   {3, R(0.03)},
               {5, R(0.01)}, {10, R(0.001)}, {33, R(1e-6)}};
  for (const auto& [p, rejection] : cases)
    for (const int n : {12 * p + 1, 700}) {
      const Sample<R> s(p, n, 5);
      Estimate<R> e(p, s.columns);
      e.set({R(0.4), rejection, this->wide ? R(1e-9) : R(1e-5), R(3000)});
      ASSERT_EQ(e.run(), 0);
      const auto biweight = ork::ss::find_biweight(p, double(R(0.4)), double(rejection));
      ASSERT_GT(biweight.c, 0) << p;
      Wides d = distances(e, s.columns), sorted = d, mean(p), v(p * p);
      std::sort(sorted.begin(), sorted.end());
      const int good = (n + p + 1) / 2;
      Wide total = 0, squares = 0;
      for (Wide& x : d) {
        x *= sqrtl(__ruadChi2ICDF(p, good / (n + 1.))) / sorted[good - 1];
        const Wide t = (x - biweight.m) / biweight.c;
        const Wide w = t <= 0 ? 1 : t <= 1 ? (1 - t * t) * (1 - t * t) : 0;
        total += w, squares += w * x * x;
        x = w;
      }
      for (int k = 0; k < n; ++k)
        for (int i = 0; i < p; ++i) mean[i] += d[k] * s.columns[k * p + i] / total;
      for (int k = 0; k < n; ++k)
        for (int i = 0; i < p * p; ++i)
          v[i] += p / squares * d[k] * (s.columns[k * p + i / p] - mean[i / p]) *
                  (s.columns[k * p + i % p] - mean[i % p]);
      for (int i = 0; i < p; ++i)
        for (int j = 0; j < p; ++j) {
          const double unit = double(sqrtl(v[i * p + i])), near = this->wide ? 1e-8 : 2e-4;
          EXPECT_NEAR(e.mean(i), double(mean[i]), near * unit) << p << " " << n;
          EXPECT_NEAR(e.cov(i, j), double(v[i * p + j]), near * unit * sqrt(v[j * p + j]))
              << p << " " << n;
        }
    }
}

// Where breakdown and rejection contradict each other, weights of 0 and 1 may take turns for ever:
// some of these samples do. However many steps are wanted, 10000 are made.
TYPED_TEST(Robust, StepsThatTakeTurnsEnd) {
  using R = TypeParam;
  std::mt19937 generator(3);
  std::normal_distribution<> normal;
  int turning = 0;
  for (int sample = 0; sample < 400; ++sample) {
    const int p = 1 + sample % 3, n = 7 + int(generator() % 20);
    std::vector<R> x(size_t(p) * n);
    for (R& value : x) value = R(normal(generator));
    const auto after = [&](R steps) {
      Estimate<R> e(p, x);
      e.set({R(0.5), R(0.001), R(0.001), steps});
      e.run();
      return e.results();
    };
    const auto last = after(INFINITY);
    turning += after(9999) != last;
    EXPECT_EQ(after(10000), last) << sample;
  }
  EXPECT_GT(turning, 0);
}

TYPED_TEST(Robust, FindsTheOutliersOfClassicalData) {
  typedef TypeParam R;
  std::vector<R> x;
  for (const auto& star : classical::star) x.insert(x.end(), star, star + 2);
  Estimate<R> stars(2, x);
  ASSERT_EQ(stars.run(), 0);
  const Wides far = distances(stars, x);
  for (int i = 0; i < classical::stars; ++i) {
    const bool giant = i == 10 || i == 19 || i == 29 || i == 33, between = i == 6;
    EXPECT_EQ(far[i] > 6, giant) << i + 1 << ": " << far[i];
    if (!giant && !between && i != 8 && i != 13 && i != 16) {
      EXPECT_LT(far[i], 3) << i + 1;
    }
  }
  x.clear();
  for (const auto& point : classical::point) x.insert(x.end(), point, point + 3);
  Estimate<R> points(3, x);
  ASSERT_EQ(points.run(), 0);
  const Wides d = distances(points, x);
  for (int i = 0; i < classical::points; ++i)
    EXPECT_TRUE(i < 14 ? d[i] > 15 : d[i] < 3.5) << i + 1 << ": " << d[i];
  // Location by the minimum covariance determinant, reweighted, of the R package robustbase:
  // another estimator, so only near.
  const double mcd[] = {1.50345, 1.85345, 1.68276};
  for (int j = 0; j < 3; ++j) EXPECT_NEAR(points.mean(j), mcd[j], 0.15);
}

// Powers of two change no digit; a shift that leaves the observations exact, rounding alone; what
// rotations change of the start, the iteration takes back.
TYPED_TEST(Robust, MovesWithTheData) {
  typedef TypeParam R;
  const int p = 4, n = 300;
  Sample<R> s(p, n, 9);
  for (R& x : s.columns) x = R(std::lround(x * 1024)) / 1024;
  const auto estimate = [&](auto f) {
    std::vector<R> x = s.columns;
    for (int i = 0; i < n; ++i) f(&x[i * p]);
    Estimate<R> e(p, x);
    e.set({R(0.5), R(0.001), this->wide ? R(1e-8) : R(1e-4), R(1000)});
    EXPECT_EQ(e.run(), 0);
    return e.results();
  };
  const std::vector<R> plain = estimate([](R*) {});
  const double near = this->wide ? 1e-9 : 1e-3;
  const auto scaled = estimate([](R* x) { x[0] *= 16, x[1] /= 1024, x[3] *= -1; });
  const R factor[] = {16, R(1) / 1024, 1, -1};
  const auto shifted = estimate([](R* x) { x[0] += 512, x[2] -= 64; });
  const auto turned = estimate([](R* x) {
    const R a = x[0], b = x[1];
    x[0] = R(0.6) * a - R(0.8) * b, x[1] = R(0.8) * a + R(0.6) * b;
  });
  for (int i = 0; i < p; ++i) {
    EXPECT_EQ(scaled[i], factor[i] * plain[i]);
    EXPECT_NEAR(shifted[i] - (i == 0 ? 512 : i == 2 ? -64 : 0), plain[i], near);
    for (int j = 0; j < p; ++j) {
      const int k = p + i * p + j;
      EXPECT_EQ(scaled[k], factor[i] * factor[j] * plain[k]);
      EXPECT_NEAR(shifted[k], plain[k], near * (1 + std::abs(plain[k])));
    }
  }
  EXPECT_NEAR(turned[0], 0.6 * plain[0] - 0.8 * plain[1], this->wide ? 1e-6 : 1e-2);
  EXPECT_NEAR(turned[p + 1], 0.48 * (plain[p] - plain[2 * p + 1]) + (0.36 - 0.64) * plain[p + 1],
              this->wide ? 1e-6 : 1e-2);
}

// Layouts, storages and threads; enough observations for shares of all phases.
TYPED_TEST(Robust, IsTheSameHoweverItIsStoredAndShared) {
  typedef TypeParam R;
  for (const auto& [p, n] : {std::pair{1, 3}, {3, 7}, {5, 300}, {4, 2600}}) {
    const Sample<R> s(p, n, 3);
    Estimate<R> first(p, s.columns);
    first.set({R(0.4), R(0.04), R(1e-3), R(3)});
    ASSERT_EQ(first.run(), 0) << p << n;
    for (const int layout : {ORK_SS_ROWS, ORK_SS_COLUMNS})
      for (const int storage : {ORK_SS_FULL, ORK_SS_LOWER_PACKED, ORK_SS_UPPER_PACKED})
        for (const ork_threader* table :
             {&ork_threader_serial, (const ork_threader*)nullptr, &ork_threader_parallel}) {
          Estimate<R> e(p, s.columns, layout, storage);
          e.set(first.parameters);
          // The mode comes back, but for one that leaves denormals as they are.
          ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_ZERO);
          const uint32_t mode = ork_zem_kernel_GetMode();
          ASSERT_EQ(e.run(table), 0);
          EXPECT_EQ(ork_zem_kernel_GetMode(), mode);
          ork_zem_kernel_SetMode(ORK_ZEM_DENORMAL_KEEP);
          e.t.expect_canaries();
          const std::vector<R> got = e.results(), want = first.results();
          if (table != &ork_threader_parallel)
            EXPECT_EQ(count_apart(got, want), 0) << p << " " << n;
          else
            for (size_t k = 0; k < got.size(); ++k)
              EXPECT_NEAR(got[k], want[k], (this->wide ? 1e-8 : 1e-3) * (1 + std::abs(want[k])));
        }
  }
}

TYPED_TEST(Robust, StatusesAndDefaults) {
  typedef TypeParam R;
  const int p = 6, n = 60;
  Sample<R> s(p, n, 4);
  Estimate<R> e(p, s.columns);
  ASSERT_EQ(e.run(), 0);
  const std::vector<R> plain = e.results();
  // The same as without parameters, or not.
  const R nan = quiet_nan<R>;
  const struct {
    std::vector<R> values;
    int count;
    bool same;
  } sets[] = {{{R(0.1), R(0.2), R(0.1), 1}, 3, true},
              {{-1, 0, 0, -1}, 4, true},
              {{R(0.9), 1, -1, -5}, 4, true},
              {{nan, nan, nan, nan}, 4, true},
              {{R(0.5), R(0.001), R(0.001), R(100.9)}, 4, true},
              {{R(0.2), 0, 0, -1}, 4, false},
              {{-1, R(0.1), 0, -1}, 4, false},
              {{-1, 0, 100, -1}, 4, false},
              {{-1, 0, 0, 1}, 4, false},
              {{-1, 0, 0, R(0.9)}, 4, false}};
  for (const auto& set : sets) {
    e.set(set.values, set.count);
    ASSERT_EQ(e.run(), 0);
    EXPECT_EQ(count_apart(e.results(), plain) == 0, set.same) << &set - sets;
  }
  // Zero weights alone, by a rejection at a place that none of the points reaches.
  e.set({-1, R(0.999999), 0, -1});
  EXPECT_EQ(e.run(), -4026);
  Estimate<R> same(2, std::vector<R>(20, R(3)));
  EXPECT_EQ(same.run(), -4026);
  Estimate<R> broken(p, s.columns);
  broken.x[7] = nan;
  EXPECT_EQ(broken.run(), -5000);
  // From the last check to the first: each fault hides those before it.
  EXPECT_EQ(e.run(nullptr, ~uint64_t(ORK_SS_TBS)), -4029);
  e.t.integers[ORK_SS_EDIT_ROBUST_COV_STORAGE] = 3;
  EXPECT_EQ(e.run(nullptr, 0), -4003);
  e.t.storage = ORK_SS_ROWS | ORK_SS_COLUMNS;
  EXPECT_EQ(e.run(nullptr, 0), -4003);
  e.t.n = 2 * p;
  EXPECT_EQ(e.run(nullptr, 0), -4002);
  e.t.p = 0;
  EXPECT_EQ(e.run(nullptr, 0), -4001);
  Task<R> t(p, n, ORK_SS_COLUMNS, s.columns.data());
  const auto run = [&] { return t.call(Api<R>::robust, 0, 0); };
  EXPECT_EQ(run(), -4028);
  t.array(ORK_SS_EDIT_ROBUST_MEAN, p);
  EXPECT_EQ(run(), -4027);
  t.array(ORK_SS_EDIT_ROBUST_COV, p * p);
  EXPECT_EQ(run(), -4044);
  t.integer(ORK_SS_EDIT_ROBUST_COV_STORAGE, ORK_SS_FULL);
  EXPECT_EQ(run(), -4029);
}

TYPED_TEST(Robust, FailingAllocationsAreTold) {
  typedef TypeParam R;
  const int p = 5, n = 60, live = blocks::live();
  const Sample<R> s(p, n, 3);
  const int asked = blocks::fail_each([&] {
    Estimate<R> e(p, s.columns, ORK_SS_COLUMNS, ORK_SS_UPPER_PACKED);
    if (!e.t.task) return;
    e.set({R(0.4), R(0.01), R(0.01), 1});
    const bool made = !blocks::failed();
    const int status = e.run();
    EXPECT_EQ(status, made && blocks::failed() ? -4000 : 0);
  });
  EXPECT_GE(asked, 6);
  EXPECT_EQ(blocks::live(), live);
}

}  // namespace
