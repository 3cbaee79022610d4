// Moments, sums, covariance: all methods against two passes in long double.
#include "ss/statistics.hpp"
#include "support/blocks.hpp"

namespace {
using namespace statistics;

const struct {
  uint64_t estimate;
  int code, null_status;
} kVectors[] = {
    {ORK_SS_MEAN, ORK_SS_EDIT_MEAN, -4006},
    {ORK_SS_RAW2, ORK_SS_EDIT_RAW2, -4007},
    {ORK_SS_RAW3, ORK_SS_EDIT_RAW3, -4008},
    {ORK_SS_RAW4, ORK_SS_EDIT_RAW4, -4009},
    {ORK_SS_CENTRAL2, ORK_SS_EDIT_CENTRAL2, -4010},
    {ORK_SS_CENTRAL3, ORK_SS_EDIT_CENTRAL3, -4011},
    {ORK_SS_CENTRAL4, ORK_SS_EDIT_CENTRAL4, -4012},
    {ORK_SS_KURTOSIS, ORK_SS_EDIT_KURTOSIS, -4013},
    {ORK_SS_SKEWNESS, ORK_SS_EDIT_SKEWNESS, -4014},
    {ORK_SS_VARIATION, ORK_SS_EDIT_VARIATION, -4017},
    {ORK_SS_SUM, ORK_SS_EDIT_SUM, -4074},
    {ORK_SS_SUM2, ORK_SS_EDIT_SUM2, -4075},
    {ORK_SS_SUM3, ORK_SS_EDIT_SUM3, -4076},
    {ORK_SS_SUM4, ORK_SS_EDIT_SUM4, -4077},
    {ORK_SS_CENTRAL_SUM2, ORK_SS_EDIT_CENTRAL_SUM2, -4078},
    {ORK_SS_CENTRAL_SUM3, ORK_SS_EDIT_CENTRAL_SUM3, -4079},
    {ORK_SS_CENTRAL_SUM4, ORK_SS_EDIT_CENTRAL_SUM4, -4080},
};
const struct {
  uint64_t estimate;
  int code, storage;
} kMatrices[] = {
    {ORK_SS_COV, ORK_SS_EDIT_COV, ORK_SS_EDIT_COV_STORAGE},
    {ORK_SS_COR, ORK_SS_EDIT_COR, ORK_SS_EDIT_COR_STORAGE},
    {ORK_SS_CROSS_PRODUCT, ORK_SS_EDIT_CROSS_PRODUCT, ORK_SS_EDIT_CROSS_PRODUCT_STORAGE},
};
uint64_t all_vectors() {
  uint64_t mask = 0;
  for (const auto& v : kVectors) mask |= v.estimate;
  return mask;
}
constexpr uint64_t kAllMatrices = ORK_SS_COV | ORK_SS_COR | ORK_SS_CROSS_PRODUCT;

int packed_size(int p, int storage) { return storage ? p * (p + 1) / 2 : p * p; }
size_t place(int p, int storage, int i, int j) {  // j <= i
  return storage == ORK_SS_LOWER_PACKED   ? i * (i + 1) / 2 + j
         : storage == ORK_SS_UPPER_PACKED ? j * p - j * (j + 1) / 2 + i
                                          : i * p + j;
}

template <class R>
struct Arrays : Task<R> {
  using Task<R>::Task;
  // Arrays for all that is asked for or only for what `codes` lists.
  void vectors(uint64_t estimates = ~0ull) {
    for (const auto& v : kVectors)
      if (estimates & v.estimate) this->array(v.code, this->p);
  }
  void matrices(uint64_t estimates, int storage) {
    for (const auto& m : kMatrices)
      if (estimates & m.estimate) {
        this->array(m.code, packed_size(this->p, storage));
        this->integer(m.storage, storage);
      }
  }
  bool selected(int j) const { return this->mask.empty() || this->mask[j]; }

  // tolerance: in units of the type's epsilon, times the size of what was added up.
  void expect(const Moments& m, uint64_t estimates, double tolerance) {
    const double eps = tolerance * std::numeric_limits<R>::epsilon();
    const int p = this->p;
    for (const auto& v : kVectors) {
      if (!(estimates & v.estimate)) continue;
      for (int j = 0; j < p; ++j) {
        const R got = (*this)[v.code][j];
        if (!selected(j)) {
          EXPECT_EQ(got, this->canary) << "code " << v.code << " variable " << j;
          continue;
        }
        const double want = double(m.value(v.code, j));
        EXPECT_NEAR(got, want, eps * (std::abs(want) + scale(m, v.code, j)))
            << "code " << v.code << " variable " << j;
      }
    }
    for (const auto& c : kMatrices) {
      if (!(estimates & c.estimate)) continue;
      const int storage = this->integers[c.storage];
      for (int i = 0; i < p; ++i)
        for (int j = 0; j <= i; ++j) {
          const R got = (*this)[c.code][place(p, storage, i, j)];
          if (!selected(i) || !selected(j)) {
            EXPECT_EQ(got, this->canary) << "code " << c.code << " at " << i << " " << j;
            continue;
          }
          const double want = double(m.matrix_value(c.code, i, j));
          // Sums about the origin, which the fast method takes differences of.
          const double size = std::sqrt(double(m.raw[i][2]) * double(m.raw[j][2]));
          const double spread = std::sqrt(double(m.central[i][2]) * double(m.central[j][2]));
          const double unit = c.code == ORK_SS_EDIT_CROSS_PRODUCT   ? size
                              : c.code == ORK_SS_EDIT_COV || i == j ? size / double(m.divisor())
                                                                    : size / spread;
          EXPECT_NEAR(got, want, eps * unit) << "code " << c.code << " at " << i << " " << j;
          if (storage == ORK_SS_FULL) {
            EXPECT_EQ(got, (*this)[c.code][j * p + i]);
          }
        }
    }
    this->expect_canaries();
  }
  // What cancels in the fast method.
  static double scale(const Moments& m, int code, int j) {
    const double r2 = double(m.raw[j][2] / m.w), r4 = double(m.raw[j][4] / m.w);
    const double c2 = double(m.c2(j)), mean = std::abs(double(m.mean(j))), w = double(m.w);
    switch (code) {
      case ORK_SS_EDIT_MEAN:
        return std::sqrt(r2);
      case ORK_SS_EDIT_RAW3:
        return r4 / std::sqrt(r2);
      case ORK_SS_EDIT_CENTRAL2:
        return r2;
      case ORK_SS_EDIT_CENTRAL3:
        return 4 * r2 * std::sqrt(r2);
      case ORK_SS_EDIT_CENTRAL4:
        return 8 * r4;
      case ORK_SS_EDIT_KURTOSIS:
        return 8 * r4 / (c2 * c2);
      case ORK_SS_EDIT_SKEWNESS:
        return 8 * r2 * std::sqrt(r2) / (c2 * std::sqrt(c2));
      case ORK_SS_EDIT_VARIATION:
        return (std::sqrt(c2) / mean) * (std::sqrt(r2) / mean + r2 / c2);
      case ORK_SS_EDIT_SUM:
        return w * std::sqrt(r2);
      case ORK_SS_EDIT_SUM3:
        return w * r4 / std::sqrt(r2);
      case ORK_SS_EDIT_CENTRAL_SUM2:
        return w * r2;
      case ORK_SS_EDIT_CENTRAL_SUM3:
        return w * 4 * r2 * std::sqrt(r2);
      case ORK_SS_EDIT_CENTRAL_SUM4:
        return w * 8 * r4;
    }
    return 0;
  }
};

template <class R>
struct StatisticsMoments : ::testing::Test {};
typedef ::testing::Types<double, float> RealTypes;
TYPED_TEST_SUITE(StatisticsMoments, RealTypes);

constexpr uint64_t kMethods[] = {ORK_SS_FAST, ORK_SS_ONE_PASS, ORK_SS_TWO_PASS};
constexpr int kLayouts[] = {ORK_SS_ROWS, ORK_SS_COLUMNS};

// Loads the mean that the two-pass method starts from.
template <class R>
void give_mean(Task<R>& t, const Moments& m) {
  for (int j = 0; j < t.p; ++j) t[ORK_SS_EDIT_MEAN][j] = R(m.mean(j));
}

TYPED_TEST(StatisticsMoments, EveryMethodLayoutWeightMaskAndStorage) {
  typedef TypeParam R;
  for (const int p : {1, 2, 3, 4, 5, 6, 7, 9, 10, 13, 17, 21}) {
    const Sample<R> s(p, 301, p);
    for (const bool weighted : {false, true})
      for (const bool masked : {false, true}) {
        const Moments m(s, weighted);
        std::vector<int> mask;
        for (int j = 0; masked && j < p; ++j) mask.push_back(j % 3 != 1);
        for (const uint64_t method : kMethods)
          for (const int layout : kLayouts) {
            const int storage = (p + int(method)) % 3;
            SCOPED_TRACE(testing::Message()
                         << "p " << p << " weighted " << weighted << " masked " << masked
                         << " method " << method << " layout " << layout << " storage " << storage);
            Arrays<R> t(p, s.n, layout, s.data(layout), weighted ? s.w.data() : nullptr, mask);
            t.vectors();
            t.matrices(kAllMatrices, storage);
            if (method == ORK_SS_TWO_PASS) give_mean(t, m);
            ASSERT_EQ(t.call(Api<R>::basic, all_vectors() | kAllMatrices, method), 0);
            uint64_t look_at = all_vectors() | kAllMatrices;
            if (method == ORK_SS_TWO_PASS) look_at &= ~uint64_t(ORK_SS_MEAN);
            t.expect(m, look_at, 60);
          }
      }
  }
}

// Each order form alone: kernels that keep less must give the same.
TYPED_TEST(StatisticsMoments, EachEstimateAlone) {
  typedef TypeParam R;
  const int p = 11;
  const Sample<R> s(p, 400, 5);
  const Moments m(s, true);
  std::vector<uint64_t> alone;
  for (const auto& v : kVectors) alone.push_back(v.estimate);
  for (const auto& c : kMatrices) {
    alone.push_back(c.estimate);
    for (const auto& v : kVectors) alone.push_back(c.estimate | v.estimate);
  }
  for (const uint64_t method : kMethods)
    for (const int layout : kLayouts)
      for (const uint64_t estimates : alone) {
        SCOPED_TRACE(testing::Message() << "method " << method << " estimates " << estimates);
        Arrays<R> t(p, s.n, layout, s.data(layout), s.w.data());
        t.vectors(all_vectors() & ~uint64_t(ORK_SS_SUM | ORK_SS_CENTRAL_SUM2));
        t.vectors(estimates);
        t.matrices(estimates, ORK_SS_FULL);
        if (method == ORK_SS_TWO_PASS) give_mean(t, m);
        ASSERT_EQ(t.call(Api<R>::basic, estimates, method), 0);
        t.expect(m, method == ORK_SS_TWO_PASS ? estimates & ~uint64_t(ORK_SS_MEAN) : estimates, 60);
      }
}

// Both layouts run the same arithmetic.
TYPED_TEST(StatisticsMoments, LayoutsAgreeToTheBit) {
  typedef TypeParam R;
  const Sample<R> s(10, 1000, 3);
  for (const uint64_t method : {ORK_SS_FAST, ORK_SS_ONE_PASS}) {
    std::vector<R> results[2];
    for (const int k : {0, 1}) {
      Arrays<R> t(s.p, s.n, kLayouts[k], s.data(kLayouts[k]));
      t.vectors();
      ASSERT_EQ(t.call(Api<R>::basic, all_vectors(), method), 0);
      for (const auto& v : kVectors)
        results[k].insert(results[k].end(), t[v.code], t[v.code] + s.p);
    }
    EXPECT_EQ(memcmp(results[0].data(), results[1].data(), results[0].size() * sizeof(R)), 0);
  }
}

// The sample's columns in blocks of growing length.
template <class R>
void call_in_blocks(Arrays<R>& t, const Sample<R>& s, bool weighted, int first, uint64_t estimates,
                    uint64_t method) {
  for (int at = 0, length = first; at < s.n; at += t.n, length = length * 2 + 1) {
    t.n = std::min(length, s.n - at);
    ASSERT_EQ(Api<R>::edit(t.task, ORK_SS_EDIT_OBSERVATIONS, &s.columns[at * s.p]), 0);
    if (weighted) {
      ASSERT_EQ(Api<R>::edit(t.task, ORK_SS_EDIT_WEIGHTS, &s.w[at]), 0);
    }
    ASSERT_EQ(t.call(Api<R>::basic, estimates, method), 0);
  }
}

TYPED_TEST(StatisticsMoments, BlocksInAnySplitAgreeWithOneCall) {
  typedef TypeParam R;
  const int p = 6;
  const Sample<R> s(p, 500, 9);
  for (const bool weighted : {false, true})
    for (const uint64_t method : kMethods)
      for (const int storage : {0, 1, 2})
        for (const bool sums_only : {false, true})
          for (const bool masked : {false, true}) {
            SCOPED_TRACE(testing::Message() << "weighted " << weighted << " method " << method
                                            << " storage " << storage << " sums " << sums_only);
            const Moments m(s, weighted);
            // One matrix of the three, so that each has its turn to carry the state.
            const uint64_t matrix = kMatrices[storage].estimate;
            const uint64_t estimates =
                matrix |
                (sums_only
                     ? ORK_SS_SUM | ORK_SS_SUM2 | ORK_SS_SUM3 | ORK_SS_SUM4 | ORK_SS_CENTRAL_SUM2 |
                           ORK_SS_CENTRAL_SUM3 | ORK_SS_CENTRAL_SUM4
                     : ORK_SS_MEAN | ORK_SS_RAW2 | ORK_SS_RAW3 | ORK_SS_RAW4 | ORK_SS_CENTRAL2 |
                           ORK_SS_CENTRAL3 | ORK_SS_CENTRAL4 | ORK_SS_KURTOSIS);
            std::vector<int> mask;
            for (int j = 0; masked && j < p; ++j) mask.push_back(j != 2);
            Arrays<R> t(p, 1, ORK_SS_COLUMNS, s.columns.data(), nullptr, mask);
            t.vectors(sums_only ? estimates | ORK_SS_MEAN | ORK_SS_RAW2 | ORK_SS_RAW3 | ORK_SS_RAW4
                                : estimates);
            t.matrices(matrix, storage);
            if (method == ORK_SS_TWO_PASS) give_mean(t, m);
            R* const total = t.array(ORK_SS_EDIT_ACCUMULATED_WEIGHT, 2, 0);
            call_in_blocks(t, s, weighted, 20, estimates, method);
            EXPECT_NEAR(total[0], double(m.w), 1e-4);
            EXPECT_NEAR(total[1], double(m.w2), 1e-3);
            const bool mean_given = method == ORK_SS_TWO_PASS;
            t.expect(m, mean_given ? estimates & ~uint64_t(ORK_SS_MEAN) : estimates, 60);
          }
}

// No array for the lower centred sums: they come back from the raw orders, or the call is refused.
TYPED_TEST(StatisticsMoments, BlocksGoOnWithoutTheLowerCentralOrders) {
  typedef TypeParam R;
  const int p = 5;
  const Sample<R> s(p, 300, 9);
  const Moments m(s, true);
  const uint64_t raws = ORK_SS_MEAN | ORK_SS_RAW2 | ORK_SS_RAW3;
  const struct {
    uint64_t arrays, asked;
    int status;  // of the second block
  } cases[] = {
      {raws | ORK_SS_RAW4 | ORK_SS_CENTRAL2 | ORK_SS_CENTRAL4, ORK_SS_KURTOSIS, 0},
      {raws | ORK_SS_RAW4, ORK_SS_CENTRAL4, 0},
      {raws, ORK_SS_CENTRAL3, 0},
      {raws, ORK_SS_CENTRAL_SUM4, 0},
      {ORK_SS_MEAN | ORK_SS_SUM2 | ORK_SS_SUM3, ORK_SS_CENTRAL_SUM4, 0},
      {ORK_SS_MEAN | ORK_SS_RAW2, ORK_SS_CENTRAL_SUM3, 0},
      {ORK_SS_MEAN | ORK_SS_CENTRAL2, ORK_SS_CENTRAL_SUM3, 0},
      {ORK_SS_MEAN, ORK_SS_CENTRAL_SUM3, -4078},
      {ORK_SS_MEAN, ORK_SS_CENTRAL_SUM4, -4078},
      {ORK_SS_MEAN | ORK_SS_CENTRAL2, ORK_SS_CENTRAL_SUM4, -4079},
      {ORK_SS_MEAN | ORK_SS_RAW2, ORK_SS_CENTRAL_SUM4, -4079},
  };
  for (const auto& c : cases)
    for (const bool masked : {false, true}) {
      SCOPED_TRACE(testing::Message() << &c - cases << " masked " << masked);
      std::vector<int> mask;
      for (int j = 0; masked && j < p; ++j) mask.push_back(j != 2);
      Arrays<R> t(p, 20, ORK_SS_COLUMNS, s.columns.data(), s.w.data(), mask);
      t.vectors(c.arrays | c.asked);
      t.array(ORK_SS_EDIT_ACCUMULATED_WEIGHT, 2, 0);
      if (c.status == 0) {
        call_in_blocks(t, s, true, 20, c.asked, ORK_SS_ONE_PASS);
        t.expect(m, c.asked, 60);
      } else {
        ASSERT_EQ(t.call(Api<R>::basic, c.asked, ORK_SS_ONE_PASS), 0);
        const auto first = t.arrays;
        EXPECT_EQ(t.call(Api<R>::basic, c.asked, ORK_SS_ONE_PASS), c.status);
        EXPECT_EQ(t.arrays, first);
      }
    }
}

// A first block whose variance is 0/0.
TYPED_TEST(StatisticsMoments, BlocksGoOnFromOneObservation) {
  typedef TypeParam R;
  const int p = 4;
  Sample<R> s(p, 200, 2);
  s.w[0] = R(0.3);
  for (const bool weighted : {false, true})
    for (const uint64_t method : {ORK_SS_FAST, ORK_SS_ONE_PASS})
      for (const auto& matrix : kMatrices) {
        SCOPED_TRACE(testing::Message()
                     << "weighted " << weighted << " method " << method << " code " << matrix.code);
        const Moments m(s, weighted);
        const uint64_t estimates = matrix.estimate | ORK_SS_CENTRAL2 | ORK_SS_KURTOSIS;
        Arrays<R> t(p, 1, ORK_SS_COLUMNS, s.columns.data(), weighted ? s.w.data() : nullptr);
        t.vectors(ORK_SS_MEAN | ORK_SS_RAW2 | ORK_SS_RAW3 | ORK_SS_RAW4 | ORK_SS_CENTRAL2 |
                  ORK_SS_CENTRAL3 | ORK_SS_CENTRAL4 | ORK_SS_KURTOSIS);
        t.matrices(matrix.estimate, ORK_SS_FULL);
        t.array(ORK_SS_EDIT_ACCUMULATED_WEIGHT, 2, 0);
        ASSERT_EQ(t.call(Api<R>::basic, estimates, method), 0);
        for (int j = 0; j < p; ++j) EXPECT_EQ(t[ORK_SS_EDIT_CENTRAL2][j], 0);
        t[ORK_SS_EDIT_ACCUMULATED_WEIGHT][0] = t[ORK_SS_EDIT_ACCUMULATED_WEIGHT][1] = 0;
        call_in_blocks(t, s, weighted, 1, estimates, method);
        t.expect(m, estimates, 60);
      }
}

// Where squares of variances and cubes of deviations leave the range, but no result does. A power
// of two changes nothing else.
TYPED_TEST(StatisticsMoments, RatiosDoNotDependOnTheScale) {
  typedef TypeParam R;
  const int p = 4, powers = sizeof(R) == 8 ? 220 : 22, products = sizeof(R) == 8 ? 300 : 30;
  const Sample<R> s(p, 250, 6);
  const auto run = [&](int exponent, uint64_t method, uint64_t estimates, std::vector<int> codes) {
    Sample<R> far = s;
    for (R& x : far.columns) x = std::ldexp(x, exponent);
    Arrays<R> t(p, 1, ORK_SS_COLUMNS, far.columns.data());
    t.vectors();
    t.matrices(estimates, ORK_SS_FULL);
    t.array(ORK_SS_EDIT_ACCUMULATED_WEIGHT, 2, 0);
    if (method == ORK_SS_TWO_PASS) give_mean(t, Moments(far, false));
    call_in_blocks(t, far, false, 60, estimates, method);
    std::vector<R> results;
    for (const int code : codes)
      if (code == ORK_SS_EDIT_COR) {
        for (int i = 0; i < p; ++i)
          for (int j = 0; j < i; ++j) results.push_back(t[code][i * p + j]);
      } else {
        results.insert(results.end(), t[code], t[code] + p);
      }
    return results;
  };
  for (const uint64_t method : kMethods)
    for (const int sign : {1, -1}) {
      SCOPED_TRACE(testing::Message() << "method " << method << " sign " << sign);
      const uint64_t ratios = ORK_SS_KURTOSIS | ORK_SS_SKEWNESS | ORK_SS_VARIATION;
      const std::vector<int> codes = {ORK_SS_EDIT_KURTOSIS, ORK_SS_EDIT_SKEWNESS,
                                      ORK_SS_EDIT_VARIATION};
      EXPECT_EQ(run(sign * powers, method, ratios, codes), run(0, method, ratios, codes));
      EXPECT_EQ(run(sign * products, method, ORK_SS_COR, {ORK_SS_EDIT_COR}),
                run(0, method, ORK_SS_COR, {ORK_SS_EDIT_COR}));
    }
}

// The matrices of two passes are those of the distances from the mean at hand, whatever it is.
TYPED_TEST(StatisticsMoments, TwoPassesGoAroundTheMeanSupplied) {
  typedef TypeParam R;
  const int p = 5;
  const Sample<R> s(p, 300, 12);
  const R mean[p] = {0, R(1.5), -4, 7, R(0.25)};
  for (const bool weighted : {false, true})
    for (const int layout : kLayouts) {
      const Moments m(s, weighted, mean);
      Arrays<R> t(p, s.n, layout, s.data(layout), weighted ? s.w.data() : nullptr);
      t.vectors();
      t.matrices(kAllMatrices, ORK_SS_FULL);
      std::copy(mean, mean + p, t[ORK_SS_EDIT_MEAN]);
      ASSERT_EQ(t.call(Api<R>::basic, kAllMatrices | ORK_SS_CENTRAL2, ORK_SS_TWO_PASS), 0);
      t.expect(m, kAllMatrices | ORK_SS_CENTRAL2, 60);
    }
  // Far from the origin nothing cancels.
  Sample<R> far = s;
  const R shift = sizeof(R) == 8 ? R(0x1p30) : R(0x1p12);
  for (auto* data : {&far.rows, &far.columns})
    for (R& x : *data) x += shift;
  const Moments m(far, false);
  Arrays<R> t(p, s.n, ORK_SS_ROWS, far.rows.data());
  t.vectors();
  t.matrices(ORK_SS_COV, ORK_SS_FULL);
  give_mean(t, m);
  ASSERT_EQ(t.call(Api<R>::basic, ORK_SS_COV, ORK_SS_TWO_PASS), 0);
  for (int i = 0; i < p; ++i)
    for (int j = 0; j <= i; ++j) {
      const double want = double(m.matrix_value(ORK_SS_EDIT_COV, i, j));
      EXPECT_NEAR(t[ORK_SS_EDIT_COV][i * p + j], want,
                  600 * std::numeric_limits<R>::epsilon() *
                      double(sqrtl(m.c2(i) * m.c2(j)) + std::abs(want)))
          << i << " " << j;
    }
}

const ork_threader* table_of(int threads) {
  static int count;
  static ork_threader table = ork_threader_parallel;
  count = threads;
  table.max_threads = [] { return count; };
  return &table;
}

TYPED_TEST(StatisticsMoments, ThreadsAgreeWithOneAndRepeat) {
  typedef TypeParam R;
  for (const int p : {1, 3, 10})
    for (const int n : {1999, 2000, 7003}) {
      const Sample<R> s(p, n, n);
      for (const bool weighted : {false, true}) {
        const Moments m(s, weighted);
        for (const uint64_t method : kMethods)
          for (const int threads : {2, 3, 64}) {
            SCOPED_TRACE(testing::Message() << "p " << p << " n " << n << " weighted " << weighted
                                            << " method " << method << " threads " << threads);
            std::vector<R> before;
            for (const int round : {0, 1}) {
              Arrays<R> t(p, n, ORK_SS_ROWS, s.rows.data(), weighted ? s.w.data() : nullptr);
              t.vectors();
              t.matrices(kAllMatrices, ORK_SS_FULL);
              if (method == ORK_SS_TWO_PASS) give_mean(t, m);
              ASSERT_EQ(
                  t.call(Api<R>::basic, all_vectors() | kAllMatrices, method, table_of(threads)),
                  0);
              std::vector<R> all;
              for (const auto& [code, a] : t.arrays) all.insert(all.end(), a.begin(), a.end());
              if (round == 0) {
                uint64_t look_at = all_vectors() | kAllMatrices;
                if (method == ORK_SS_TWO_PASS) look_at &= ~uint64_t(ORK_SS_MEAN);
                // Plain sums in the order of the data: rounding grows with n.
                t.expect(m, look_at, 150);
                before = all;
              } else {
                EXPECT_EQ(memcmp(before.data(), all.data(), all.size() * sizeof(R)), 0);
              }
            }
          }
      }
    }
}

// Centres of the threads' shares lie far apart: their powers times products of weights leave the
// range of single.
TYPED_TEST(StatisticsMoments, ThreadsAgreeOnARamp) {
  typedef TypeParam R;
  Sample<R> s(1, 40000);
  for (int i = 0; i < s.n; ++i) s.rows[i] = s.columns[i] = R(100 * i);
  const Moments m(s, false);
  for (const uint64_t method : {ORK_SS_ONE_PASS, ORK_SS_TWO_PASS}) {
    Arrays<R> t(1, s.n, ORK_SS_ROWS, s.rows.data());
    t.vectors();
    t.matrices(ORK_SS_COV, ORK_SS_FULL);
    if (method == ORK_SS_TWO_PASS) give_mean(t, m);
    const uint64_t asked = ORK_SS_KURTOSIS | ORK_SS_CENTRAL3 | ORK_SS_COV;
    ASSERT_EQ(t.call(Api<R>::basic, asked, method, table_of(4)), 0);
    t.expect(m, asked, 1000);
  }
}

TYPED_TEST(StatisticsMoments, ThreadCountFollowsTheObservations) {
  typedef TypeParam R;
  static int started;
  static ork_threader table = ork_threader_serial;
  table.max_threads = [] { return 100; };
  table.parallel = [](int threads, void* context, ork_threader_body body) {
    started = threads;
    ork_threader_serial.parallel(threads, context, body);
  };
  const Sample<R> s(1, 5999);
  const std::pair<int, int> cases[] = {{1, 1}, {1999, 1}, {2000, 2}, {5999, 5}};
  for (const auto& [n, threads] : cases) {
    started = 1;
    Arrays<R> t(1, n, ORK_SS_COLUMNS, s.columns.data());
    t.vectors();
    ASSERT_EQ(t.call(Api<R>::basic, ORK_SS_MEAN, ORK_SS_ONE_PASS, &table), 0);
    EXPECT_EQ(started, threads) << n;
  }
}

TYPED_TEST(StatisticsMoments, FromSumsGivesTheSame) {
  typedef TypeParam R;
  const Sample<R> s(7, 300, 4);
  const uint64_t sums = ORK_SS_SUM | ORK_SS_SUM2 | ORK_SS_SUM3 | ORK_SS_SUM4 | ORK_SS_CENTRAL_SUM2 |
                        ORK_SS_CENTRAL_SUM3 | ORK_SS_CENTRAL_SUM4;
  for (const bool weighted : {false, true})
    for (const int storage : {0, 1, 2}) {
      const Moments m(s, weighted);
      Arrays<R> t(7, s.n, ORK_SS_ROWS, s.rows.data(), weighted ? s.w.data() : nullptr);
      t.vectors();
      t.matrices(kAllMatrices, storage);
      if (weighted) {
        R* const total = t.array(ORK_SS_EDIT_ACCUMULATED_WEIGHT, 2);
        total[0] = R(m.w), total[1] = R(m.w2);
      }
      for (const auto& v : kVectors)
        for (int j = 0; j < t.p; ++j)
          if (v.estimate & sums) t[v.code][j] = R(m.value(v.code, j));
      for (int i = 0; i < t.p; ++i)
        for (int j = 0; j <= i; ++j) {
          R* const c = t[ORK_SS_EDIT_CROSS_PRODUCT];
          const R value = R(m.matrix_value(ORK_SS_EDIT_CROSS_PRODUCT, i, j));
          c[place(t.p, storage, i, j)] = value;
          if (!storage) c[j * t.p + i] = value;
        }
      const uint64_t asked = (all_vectors() | ORK_SS_COV | ORK_SS_COR) & ~sums;
      ASSERT_EQ(t.call(Api<R>::basic, asked, storage ? ORK_SS_FROM_SUMS : ORK_SS_FROM_SUMS_ALT), 0);
      t.expect(m, asked | sums | ORK_SS_CROSS_PRODUCT, 10);
      ASSERT_EQ(t.call(Api<R>::basic, ORK_SS_SUM, ORK_SS_FROM_SUMS), -4029);
    }
}

TYPED_TEST(StatisticsMoments, WeightsOfZero) {
  typedef TypeParam R;
  const Sample<R> s(5, 60);
  std::vector<R> w(60, 0);
  Arrays<R> t(5, 60, ORK_SS_COLUMNS, s.columns.data(), w.data());
  t.vectors(ORK_SS_MEAN | ORK_SS_RAW2);
  R* const total = t.array(ORK_SS_EDIT_ACCUMULATED_WEIGHT, 2, 0);
  ASSERT_EQ(t.call(Api<R>::basic, ORK_SS_MEAN | ORK_SS_RAW2, ORK_SS_ONE_PASS), 0);
  EXPECT_EQ(total[0], 0);
  for (int j = 0; j < 5; ++j) {
    EXPECT_EQ(t[ORK_SS_EDIT_MEAN][j], 0);
    EXPECT_EQ(t[ORK_SS_EDIT_RAW2][j], 0);
  }
  // A single weight behind zeros: the mean is that observation.
  w[40] = 3;
  ASSERT_EQ(t.call(Api<R>::basic, ORK_SS_MEAN, ORK_SS_ONE_PASS), 0);
  for (int j = 0; j < 5; ++j)
    EXPECT_NEAR(t[ORK_SS_EDIT_MEAN][j], s.columns[200 + j], 1e-6 * std::abs(s.columns[200 + j]));
}

TYPED_TEST(StatisticsMoments, ChecksInOrder) {
  typedef TypeParam R;
  const Sample<R> s(2, 10);
  const uint64_t one = ORK_SS_ONE_PASS, fast = ORK_SS_FAST, sums = ORK_SS_FROM_SUMS;
  const struct {
    uint64_t present, estimates, method;
    int status;
  } cases[] = {
      {~0ull, ORK_SS_MEAN, fast | one, -4029},
      {~0ull, ORK_SS_MEAN, one | ORK_SS_TWO_PASS, -4029},
      {~0ull, ORK_SS_MEAN, ORK_SS_BACON, -4029},
      {0, ORK_SS_MEAN, fast, -4006},
      {ORK_SS_MEAN | ORK_SS_RAW2 | ORK_SS_RAW3 | ORK_SS_CENTRAL2 | ORK_SS_CENTRAL4, ORK_SS_KURTOSIS,
       one, -4009},
      {ORK_SS_CENTRAL2 | ORK_SS_RAW2, ORK_SS_CENTRAL2, fast, -4006},
      {ORK_SS_CENTRAL_SUM2 | ORK_SS_MEAN, ORK_SS_CENTRAL_SUM2, fast, -4007},
      {ORK_SS_CENTRAL_SUM2 | ORK_SS_MEAN, ORK_SS_CENTRAL_SUM2, one, 0},
      {ORK_SS_MEAN, ORK_SS_COV | ORK_SS_SUM, one, -4018},
      {ORK_SS_MEAN, ORK_SS_COR | ORK_SS_VARIATION, one, -4007},
      {ORK_SS_MEAN, ORK_SS_MEAN, sums, -4074},
      {ORK_SS_CENTRAL2, ORK_SS_CENTRAL2, sums, -4078},
      {ORK_SS_MEAN, ORK_SS_CROSS_PRODUCT, one, -4081},
      {~0ull, ORK_SS_SUM2, sums, -4029},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(&c - cases);
    Arrays<R> t(2, 10, ORK_SS_ROWS, s.rows.data());
    t.vectors(c.present);
    EXPECT_EQ(t.call(Api<R>::basic, c.estimates, c.method), c.status);
    t.n = 0;
    if (c.status == 0) {
      EXPECT_EQ(t.call(Api<R>::basic, c.estimates, c.method), -4002);
      t.n = 10, t.storage = 4;
      EXPECT_EQ(t.call(Api<R>::basic, c.estimates, c.method), -4003);
    }
  }
  Arrays<R> weighted(2, 10, ORK_SS_ROWS, s.rows.data(), s.w.data());
  weighted.vectors();
  EXPECT_EQ(weighted.call(Api<R>::basic, ORK_SS_MEAN, sums), -4020);
  Arrays<R> empty(2, 10, ORK_SS_ROWS, nullptr);
  empty.vectors();
  EXPECT_EQ(empty.call(Api<R>::basic, ORK_SS_MEAN, one), -4032);
}

TYPED_TEST(StatisticsMoments, FailingAllocationsLeaveOutputsAlone) {
  typedef TypeParam R;
  const Sample<R> s(5, 4000);
  const int before = blocks::live();
  for (const uint64_t method : kMethods)
    for (const bool weighted : {false, true}) {
      const int asked = blocks::fail_each([&] {
        Arrays<R> t(5, s.n, ORK_SS_ROWS, s.rows.data(), weighted ? s.w.data() : nullptr,
                    {1, 1, 0, 1, 1});
        if (!t.task) return;  // the task itself
        t.vectors();
        t.matrices(kAllMatrices, ORK_SS_LOWER_PACKED);
        const auto old = t.arrays;
        const bool made = !blocks::failed();
        const int status = t.call(Api<R>::basic, all_vectors() | kAllMatrices, method, table_of(2));
        EXPECT_EQ(status, made && blocks::failed() ? -4000 : 0);
        if (status) {
          EXPECT_EQ(t.arrays, old);
        }
      });
      EXPECT_GE(asked, 2);
      EXPECT_EQ(blocks::live(), before);
    }
}

}  // namespace
