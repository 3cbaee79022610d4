// Cholesky factors, inverses, eigenvalues.
#include "dense/dense.hpp"

namespace dense {
namespace {

template <class R>
struct DenseFactors : Dense<R> {};
TYPED_TEST_SUITE(DenseFactors, Reals);

template <class R>
Array<R> positive_definite(int n, char uplo, int gap) {
  const Array<R> g(n, n, 0);
  Array<R> a(n, n, gap, triangle(uplo));
  a.fill([&](int i, int j) {
    return R(sum(n, [&](int k) { return Wide(g(i, k)) * g(j, k); }) / n + (i == j ? 1 : 0));
  });
  return a;
}

TYPED_TEST(DenseFactors, CholeskyAndInverse) {
  using R = TypeParam;
  for (char uplo : {'U', 'u', 'L'})
    for (int n : sizes)
      for (int gap : {0, 2}) {
        TRACE(uplo << " n " << n);
        const auto a = positive_definite<R>(n, uplo, gap);
        auto f = a;
        int info = 1;
        TestFixture::A::potrf(&uplo, &n, f.data(), &f.ld, &info);
        ASSERT_EQ(0, info);
        f.expect_kept(a);
        Array<R> product(n, n, 0, triangle(uplo));
        product.fill([&](int i, int j) {
          return R(sum(n, [&](int k) {
            return uplo == 'L' ? Wide(f.triangular(i, k, false)) * f.triangular(j, k, false)
                               : Wide(f.triangular(k, i, false)) * f.triangular(k, j, false);
          }));
        });
        product.expect_near([&](int i, int j) { return a(i, j); }, (n + 2) * 4 * eps<R>);

        TestFixture::A::potri(&uplo, &n, f.data(), &f.ld, &info);
        ASSERT_EQ(0, info);
        f.expect_kept(a);
        Array<R> identity(n, n, 0);
        identity.fill([&](int i, int j) {
          return R(sum(n, [&](int k) { return Wide(a.symmetric(i, k)) * f.symmetric(k, j); }));
        });
        identity.expect_near([](int i, int j) { return i == j; }, (n + 2) * 20 * eps<R>);
        if (this->HasFatalFailure()) return;
      }
}

TYPED_TEST(DenseFactors, CholeskyNamesTheMinor) {
  using R = TypeParam;
  for (char uplo : {'U', 'L'})
    for (int n : {1, 5, 16, 17, 40})
      for (int bad : {0, n / 2, n - 1})
        for (R value : {R(0), R(-1), nan<R>, -std::numeric_limits<R>::infinity()}) {
          auto a = positive_definite<R>(n, uplo, 1);
          a(bad, bad) = value;
          const auto old = a;
          int info = 0;
          TestFixture::A::potrf(&uplo, &n, a.data(), &a.ld, &info);
          EXPECT_EQ(bad + 1, info) << uplo << " n " << n << " value " << value;
          a.expect_kept(old);
        }
}

TYPED_TEST(DenseFactors, TriangularInverse) {
  using R = TypeParam;
  for (char uplo : {'U', 'l'})
    for (char diag : {'N', 'U'})
      for (int n : sizes) {
        TRACE(uplo << diag << " n " << n);
        const bool unit = diag == 'U';
        Array<R> a(n, n, 2, triangle(uplo));
        a.fill([&](int i, int j) {
          return i != j ? draw<R>() / n : unit ? nan<R> : R(1.5) + draw<R>() / 2;
        });
        auto x = a;
        int info = 1;
        TestFixture::A::trtri(&uplo, &diag, &n, x.data(), &x.ld, &info);
        ASSERT_EQ(0, info);
        x.expect_kept(a);
        Array<R> identity(n, n, 0);
        identity.fill([&](int i, int j) {
          return R(sum(
              n, [&](int k) { return Wide(a.triangular(i, k, unit)) * x.triangular(k, j, unit); }));
        });
        identity.expect_near([](int i, int j) { return i == j; }, (n + 2) * 4 * eps<R>);
        if (unit) continue;
        for (int zero : {0, n - 1}) {
          auto s = a;
          s(zero, zero) = 0;
          const auto old = s;
          TestFixture::A::trtri(&uplo, &diag, &n, s.data(), &s.ld, &info);
          ASSERT_EQ(zero + 1, info);
          ASSERT_EQ(0, memcmp(s.data(), old.v.data(), old.v.size() * sizeof(R)));
          TestFixture::A::potri(&uplo, &n, s.data(), &s.ld, &info);
          ASSERT_EQ(zero + 1, info);
          ASSERT_EQ(0, memcmp(s.data(), old.v.data(), old.v.size() * sizeof(R)));
        }
      }
}

// Both eigenvalue routines under one call: the packed one gets the triangle without gaps.
template <class R>
int eigen(bool packed, char job, char uplo, Array<R>& a, std::vector<R>& w, Array<R>& z) {
  const int n = a.rows;
  w.assign(n, nan<R>);
  int info = -99;
  if (packed) {
    std::vector<R> ap;
    for (int j = 0; j < n; ++j)
      for (int i = 0; i < n; ++i)
        if (a.inside(i, j)) ap.push_back(a(i, j));
    const int lwork = job == 'V' ? (n + 6) * n + 1 : std::max(1, 2 * n), liwork = 5 * n + 3;
    std::vector<R> work(lwork);
    std::vector<int> iwork(liwork);
    Api<R>::spevd(&job, &uplo, &n, ap.data(), w.data(), z.data(), &z.ld, work.data(), &lwork,
                  iwork.data(), &liwork, &info);
  } else {
    const int lwork = std::max(1, 3 * n - 1);
    std::vector<R> work(lwork);
    Api<R>::syev(&job, &uplo, &n, a.data(), &a.ld, w.data(), work.data(), &lwork, &info);
    if (job == 'V')
      for (int j = 0; j < n; ++j)
        for (int i = 0; i < n; ++i) z(i, j) = a(i, j);
  }
  return info;
}

TYPED_TEST(DenseFactors, Eigenvectors) {
  using R = TypeParam;
  const R low = std::numeric_limits<R>::min() * 1024, high = std::numeric_limits<R>::max() / 1024;
  for (bool packed : {false, true})
    for (char uplo : {'U', 'L'})
      for (int n : sizes)
        for (int gap : {0, 3})
          for (R scale : {R(1), low, high}) {
            TRACE((packed ? "packed " : "full ")
                  << uplo << " n " << n << " gap " << gap << " scale " << scale);
            Array<R> a(n, n, gap, triangle(uplo));
            a.fill([&](int, int) { return draw<R>() * scale; });
            const auto old = a;
            Array<R> z(n, n, gap);
            std::vector<R> w, values;
            auto kept = a;
            ASSERT_EQ(0, eigen(packed, 'N', uplo, kept, values, z));
            kept.expect_kept(old);
            ASSERT_EQ(0, eigen(packed, 'V', uplo, a, w, z));
            a.inside = everywhere;
            a.expect_kept(old);
            const Wide tolerance = (n + 2) * 8 * eps<R>;
            for (int k = 0; k < n; ++k) {
              ASSERT_LE(w[std::max(k - 1, 0)], w[k]);
              ASSERT_LE(std::fabs(Wide(w[k]) - values[k]), tolerance * scale);
              for (int i = 0; i < n; ++i) {
                const Wide av = sum(n, [&](int j) { return Wide(old.symmetric(i, j)) * z(j, k); });
                ASSERT_LE(std::fabs(av - Wide(w[k]) * z(i, k)), tolerance * scale);
                const Wide dot = sum(n, [&](int j) { return Wide(z(j, i)) * z(j, k); });
                ASSERT_LE(std::fabs(dot - (i == k)), tolerance);
              }
            }
          }
}

// The second-difference matrix of order n has the eigenvalues 4 sin^2(k pi / (2n + 2)).
TYPED_TEST(DenseFactors, EigenvaluesKnown) {
  using R = TypeParam;
  for (bool packed : {false, true})
    for (int n : {1, 2, 3, 40, 100}) {
      Array<R> a(n, n, 0, triangle('L')), z(n, n, 0);
      a.fill([](int i, int j) { return i == j ? R(2) : i == j + 1 ? R(-1) : R(0); });
      std::vector<R> w;
      ASSERT_EQ(0, eigen(packed, 'N', 'L', a, w, z));
      for (int k = 0; k < n; ++k) {
        const Wide s = std::sin((k + 1) * 3.14159265358979323846L / (2 * n + 2));
        EXPECT_NEAR(w[k], 4 * s * s, 4 * n * eps<R>) << n << " " << k;
      }
      a.fill([](int i, int j) { return i == 0 && j == 0 ? nan<R> : R(1); });
      EXPECT_GT(eigen(packed, 'V', 'L', a, w, z), 0);
      a.fill([](int, int) { return R(0); });
      ASSERT_EQ(0, eigen(packed, 'V', 'L', a, w, z));
      EXPECT_EQ(0, w[n - 1]);
    }
}

// A block that no 32-bit process can have, one of them beyond 2^32 bytes; nothing is read.
TYPED_TEST(DenseFactors, EigenvaluesWithoutMemory) {
  using R = TypeParam;
  const int n = 40000, ld = n + 1, lwork = 3 * n, one = 1;
  std::vector<R> a(1), w(1, R(7)), work(lwork);
  int info = 0, iwork = 0;
  TestFixture::A::syev("N", "U", &n, a.data(), &ld, w.data(), work.data(), &lwork, &info);
  EXPECT_EQ(n + 1, info);
  TestFixture::A::spevd("N", "U", &n, a.data(), w.data(), nullptr, &one, work.data(), &lwork,
                        &iwork, &one, &info);
  EXPECT_EQ(n + 1, info);
  EXPECT_EQ(R(7), w[0]);
}

}  // namespace
}  // namespace dense
