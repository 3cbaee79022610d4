// Rank test and inverse of covariance matrices.
#include <random>

#include "ork/ss.h"
#include "ork/ss_math.h"
#include "support/bits.hpp"
#include "support/blocks.hpp"
#include "support/pch.hpp"
#include "support/special.hpp"

namespace {

template <class R>
struct Api;
template <>
struct Api<double> {
  static constexpr auto test = __ruadTestCovRank;
  static constexpr auto invert = __ruadInvCov;
  static constexpr double least = 4.94e-321;
};
template <>
struct Api<float> {
  static constexpr auto test = __ruasTestCovRank;
  static constexpr auto invert = __ruasInvCov;
  static constexpr float least = 1.401e-42f;
};

template <class R>
struct Covariance : ::testing::Test {
  std::mt19937 generator{3};
  std::normal_distribution<R> gauss;

  // Q diag(values) Q', Q a product of reflections; the upper triangle is NaN.
  std::vector<R> with_eigenvalues(const std::vector<double>& values) {
    const int p = int(values.size());
    std::vector<long double> a(p * p, 0);
    for (int i = 0; i < p; ++i) a[i * p + i] = values[i];
    for (int round = 0; round < 3 && p > 1; ++round) {
      std::vector<long double> v(p);
      long double norm = 0;
      for (auto& x : v) x = gauss(generator), norm += x * x;
      const auto reflect = [&](int at, int step) {
        long double dot = 0;
        for (int k = 0; k < p; ++k) dot += v[k] * a[at + k * step];
        for (int k = 0; k < p; ++k) a[at + k * step] -= 2 * dot / norm * v[k];
      };
      for (int i = 0; i < p; ++i) reflect(i, p);
      for (int i = 0; i < p; ++i) reflect(i * p, 1);
    }
    std::vector<R> out(p * p, quiet_nan<R>);
    for (int i = 0; i < p; ++i)
      for (int j = 0; j <= i; ++j) out[i * p + j] = R(a[i * p + j]);
    return out;
  }
};
typedef ::testing::Types<double, float> RealTypes;
TYPED_TEST_SUITE(Covariance, RealTypes);

TYPED_TEST(Covariance, InverseTimesMatrixIsOne) {
  typedef TypeParam R;
  for (const int p : {1, 2, 3, 4, 5, 8, 13, 40}) {
    std::vector<double> values(p);
    for (int i = 0; i < p; ++i) values[i] = 1 + i % 9;
    const std::vector<R> a = this->with_eigenvalues(values);
    std::vector<R> b = a;
    ASSERT_EQ(Api<R>::invert(p, b.data()), 0);
    const auto at = [p](const std::vector<R>& m, int i, int j) {
      return (long double)m[std::max(i, j) * p + std::min(i, j)];
    };
    for (int i = 0; i < p; ++i)
      for (int j = 0; j < p; ++j) {
        long double sum = 0;
        for (int k = 0; k < p; ++k) sum += at(a, i, k) * at(b, k, j);
        EXPECT_NEAR(double(sum), i == j, 40 * (p + 3) * std::numeric_limits<R>::epsilon()) << p;
        if (j > i) {
          EXPECT_EQ(bits(b[i * p + j]), bits(a[i * p + j])) << "upper triangle";
        }
      }
  }
  std::vector<R> flat = this->with_eigenvalues({1, 2, 3, -4, 5});
  EXPECT_EQ(Api<R>::invert(5, flat.data()), -5041);
}

TYPED_TEST(Covariance, RankTestLiftsTheDiagonalOrRefuses) {
  typedef TypeParam R;
  const R least = Api<R>::least;
  // The matrix, and what is added to its diagonal when it passes.
  const struct {
    std::vector<double> values;
    int status;
    double lift;
  } cases[] = {
      {{3, 1, 2}, 0, 0},      {{1e-3, 5, 7, 9}, 0, 0}, {{-1, 4, 3}, 0, 0.03},
      {{-2, -1, 5}, 0, 0.05}, {{-1, -2}, -4033, 0},    {{-1, -2, -3, -4}, -4033, 0},
      {{-5, 0.5}, 0, 0.005},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(&c - cases);
    const int p = int(c.values.size());
    const std::vector<R> a = this->with_eigenvalues(c.values);
    std::vector<R> b = a;
    ASSERT_EQ(Api<R>::test(p, b.data()), c.status);
    for (int i = 0; i < p; ++i)
      for (int j = 0; j <= i; ++j) {
        const R x = a[i * p + j], y = b[i * p + j];
        if (i == j && c.lift != 0)
          EXPECT_NEAR(y - x, c.lift, 100 * std::numeric_limits<R>::epsilon());
        else
          EXPECT_EQ(bits(y), bits(x)) << i << " " << j;
      }
  }
  // Exactly singular: eigenvalues 0, 1, 4.
  std::vector<R> singular = {0, 0, 0, 0, 1, 0, 0, 0, 4};
  EXPECT_EQ(Api<R>::test(3, singular.data()), 0);
  EXPECT_EQ(singular, (std::vector<R>{R(0.01), 0, 0, 0, R(1) + R(0.01), 0, 0, 0, R(4) + R(0.01)}));
  for (const int p : {2, 3, 6}) {
    std::vector<R> zero(p * p, 0);
    EXPECT_EQ(Api<R>::test(p, zero.data()), -4033) << p;
  }
  const struct {
    R value, after;
    int status;
  } ones[] = {{R(2), R(2), 0},
              {smallest_denormal<R>, smallest_denormal<R>, 0},
              {0, least, 0},
              {-least, least, 0},
              {-2 * least, -2 * least, -4033},
              {-1, -1, -4033}};
  for (const auto& c : ones) {
    R a = c.value;
    EXPECT_EQ(Api<R>::test(1, &a), c.status) << c.value;
    EXPECT_EQ(a, c.after);
  }
  R nan = quiet_nan<R>, nans[4] = {1, 0, nan, 1};
  EXPECT_EQ(Api<R>::test(1, &nan), -4033);
  EXPECT_EQ(Api<R>::test(2, nans), -5040);
}

TYPED_TEST(Covariance, RankTestSurvivesAFailingAllocation) {
  typedef TypeParam R;
  const int before = blocks::live();
  const std::vector<R> a = this->with_eigenvalues({1, 2, 3, 4, 5, 6});
  const int asked = blocks::fail_each([&] {
    std::vector<R> b = a;
    const int status = Api<R>::test(6, b.data());
    EXPECT_EQ(status, blocks::failed() ? -4000 : 0);
    for (int i = 0; i < 36; ++i)
      if (i / 6 >= i % 6) {
        EXPECT_EQ(bits(a[i]), bits(b[i])) << i;
      }
    EXPECT_EQ(blocks::live(), before);
  });
  EXPECT_EQ(asked, 1);
}

}  // namespace
