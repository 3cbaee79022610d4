// The dense layer against sums in extended precision over plain loops. Places a routine
// may not read hold NaN, places it may not write must keep their bits.
#include "ork/dense.h"

#include <algorithm>
#include <functional>
#include <random>

namespace {

template <class R>
struct Api;
#define API(t, R)                                                              \
  template <>                                                                  \
  struct Api<R> {                                                              \
    static constexpr auto gemm = ork_blas_##t##gemm;                           \
    static constexpr auto gemv = ork_blas_##t##gemv;                           \
    static constexpr auto syr = ork_blas_##t##syr;                             \
    static constexpr auto syrk = ork_blas_##t##syrk;                           \
    static constexpr auto symm = ork_blas_x##t##symm;                          \
    static constexpr decltype(&ork_blas_##t##trmm) trmm[] = {                  \
        ork_blas_##t##trmm, ork_blas_x##t##trmm_4zem, ork_blas4zem_##t##trmm}; \
    static constexpr auto ptrmm = ork_blas4zem_##t##ptrmm;                     \
    static constexpr auto potrf = ork_lapack_##t##potrf;                       \
    static constexpr auto potri = ork_lapack_##t##potri;                       \
    static constexpr auto trtri = ork_lapack_##t##trtri;                       \
    static constexpr auto syev = ork_lapack_##t##syev;                         \
    static constexpr auto spevd = ork_lapack_##t##spevd;                       \
    static constexpr auto tsvb = t##dtsvb_4dfl;                                \
    static constexpr auto ttrfb = t##dttrfb_4dfl;                              \
    static constexpr auto ttrsb = t##dttrsb_4dfl;                              \
  };
API(d, double)
API(s, float)

using Wide = long double;
const int sizes[] = {1, 2, 3, 4, 5, 7, 8, 10, 11, 16, 17, 24, 31, 32, 33, 40};

template <class R>
constexpr R nan = std::numeric_limits<R>::quiet_NaN();
template <class R>
constexpr R eps = std::numeric_limits<R>::epsilon();

std::mt19937 generator(20240611);
template <class R>
R draw() {
  return std::uniform_real_distribution<R>(-1, 1)(generator);
}

bool everywhere(int, int) { return true; }
std::function<bool(int, int)> triangle(char uplo) {
  const bool upper = uplo == 'U' || uplo == 'u';
  return [=](int i, int j) { return upper ? i <= j : i >= j; };
}

// A matrix by columns with `gap` rows below it. What is not `inside` is NaN.
template <class R>
struct Array {
  int rows, cols, ld;
  std::vector<R> v;
  std::function<bool(int, int)> inside;

  Array(int rows, int cols, int gap, std::function<bool(int, int)> inside = everywhere)
      : rows(rows),
        cols(cols),
        ld(std::max(1, rows + gap)),
        v(ld * cols + 1, nan<R>),
        inside(inside) {
    fill([](int, int) { return draw<R>(); });
  }
  template <class F>
  void fill(F f) {
    for (int j = 0; j < cols; ++j)
      for (int i = 0; i < rows; ++i)
        if (inside(i, j)) (*this)(i, j) = f(i, j);
  }
  R* data() { return v.data(); }
  R& operator()(int i, int j) { return v[i + j * ld]; }
  R operator()(int i, int j) const { return v[i + j * ld]; }
  // Of a matrix of which one triangle is held.
  R symmetric(int i, int j) const { return inside(i, j) ? (*this)(i, j) : (*this)(j, i); }
  R triangular(int i, int j, bool unit) const {
    return unit && i == j ? R(1) : inside(i, j) ? (*this)(i, j) : R(0);
  }
  // Gaps and the other triangle have the bits of `old`.
  void expect_kept(const Array& old) const {
    for (size_t p = 0; p < v.size(); ++p) {
      const int i = p % ld, j = p / ld;
      if (j < cols && i < rows && inside(i, j)) continue;
      ASSERT_EQ(0, memcmp(&v[p], &old.v[p], sizeof(R))) << "row " << i << " column " << j;
    }
  }
  template <class F>
  void expect_near(F expected, Wide tolerance) const {
    for (int j = 0; j < cols; ++j)
      for (int i = 0; i < rows; ++i)
        if (inside(i, j)) {
          ASSERT_LE(std::fabs((*this)(i, j) - Wide(expected(i, j))), tolerance)
              << "row " << i << " column " << j;
        }
  }
};

template <class F>
Wide sum(int n, F term) {
  Wide total = 0;
  for (int k = 0; k < n; ++k) total += term(k);
  return total;
}

// Of k products of factors below 1, times at most 2, plus a term below 2: k + 2 roundings of
// sums below 2 (k + 1), each of half an eps.
template <class R>
constexpr Wide sum_error(int k) {
  return Wide(k + 2) * (k + 1) * eps<R>;
}

// scale * old + value, where a scale of 0 makes old vanish even if it is NaN.
template <class R>
Wide blend(R scale, R old, Wide value) {
  return (scale == 0 ? 0 : Wide(scale) * old) + value;
}

bool transposed(char trans) { return trans != 'N' && trans != 'n'; }

template <class R>
struct DenseTest : testing::Test {
  using A = Api<R>;
};
using Reals = testing::Types<double, float>;
TYPED_TEST_SUITE(DenseTest, Reals);

#define TRACE(...) SCOPED_TRACE(testing::Message() << __VA_ARGS__)

TYPED_TEST(DenseTest, Gemm) {
  using R = TypeParam;
  const int some[] = {1, 2, 4, 7, 11, 33};
  const R factors[][2] = {{1, 0}, {R(-1.5), 1}, {R(0.75), R(-0.5)}, {0, 2}, {0, 0}};
  for (char ta : {'N', 't', 'C'})
    for (char tb : {'n', 'T'})
      for (int m : some)
        for (int n : some)
          for (int k : {0, 1, 5, 40})
            for (auto [alpha, beta] : factors) {
              TRACE(ta << tb << " m " << m << " n " << n << " k " << k << " alpha " << alpha
                       << " beta " << beta);
              const bool at = transposed(ta), bt = transposed(tb);
              Array<R> a(at ? k : m, at ? m : k, 3), b(bt ? n : k, bt ? k : n, 2), c(m, n, 1);
              if (beta == 0) c.fill([](int, int) { return nan<R>; });
              if (alpha == 0) a.fill([](int, int) { return nan<R>; });
              const auto old = c;
              TestFixture::A::gemm(&ta, &tb, &m, &n, &k, &alpha, a.data(), &a.ld, b.data(), &b.ld,
                                   &beta, c.data(), &c.ld);
              c.expect_kept(old);
              c.expect_near(
                  [&](int i, int j) {
                    const Wide product = alpha == 0 ? 0 : sum(k, [&](int l) {
                      return Wide(at ? a(l, i) : a(i, l)) * (bt ? b(j, l) : b(l, j));
                    });
                    return blend(beta, old(i, j), alpha * product);
                  },
                  sum_error<R>(k));
              if (this->HasFatalFailure()) return;
            }
}

TYPED_TEST(DenseTest, Gemv) {
  using R = TypeParam;
  for (char trans : {'N', 'T'})
    for (int m : {1, 4, 9, 40})
      for (int n : {1, 3, 17})
        for (int incx : {1, 2, -3})
          for (int incy : {1, 3, -1})
            for (R beta : {R(0), R(1), R(-2)}) {
              TRACE(trans << " m " << m << " n " << n << " incx " << incx << " incy " << incy
                          << " beta " << beta);
              const bool t = transposed(trans);
              const int rows = t ? n : m, cols = t ? m : n;
              const R alpha = R(1.25);
              Array<R> a(m, n, 2), x(1, cols, std::abs(incx) - 1), y(1, rows, std::abs(incy) - 1);
              if (beta == 0) y.fill([](int, int) { return nan<R>; });
              const auto old = y;
              TestFixture::A::gemv(&trans, &m, &n, &alpha, a.data(), &a.ld, x.data(), &incx, &beta,
                                   y.data(), &incy);
              y.expect_kept(old);
              y.expect_near(
                  [&](int, int place) {
                    const int i = incy < 0 ? rows - 1 - place : place;
                    return blend(beta, old(0, place), alpha * sum(cols, [&](int k) {
                                                        return Wide(t ? a(k, i) : a(i, k)) *
                                                               x(0, incx < 0 ? cols - 1 - k : k);
                                                      }));
                  },
                  sum_error<R>(cols));
              if (this->HasFatalFailure()) return;
            }
}

TYPED_TEST(DenseTest, Syr) {
  using R = TypeParam;
  for (char uplo : {'U', 'u', 'L', 'l'})
    for (int n : sizes)
      for (int inc : {1, 2, -2}) {
        TRACE(uplo << " n " << n << " inc " << inc);
        const R alpha = R(-0.75);
        Array<R> x(1, n, std::abs(inc) - 1), a(n, n, 2, triangle(uplo));
        const auto old = a;
        TestFixture::A::syr(&uplo, &n, &alpha, x.data(), &inc, a.data(), &a.ld);
        a.expect_kept(old);
        const auto at = [&](int i) { return Wide(x(0, inc < 0 ? n - 1 - i : i)); };
        a.expect_near([&](int i, int j) { return old(i, j) + alpha * at(i) * at(j); }, 4 * eps<R>);
        if (this->HasFatalFailure()) return;
      }
}

TYPED_TEST(DenseTest, Syrk) {
  using R = TypeParam;
  const R factors[][2] = {{1, 1}, {R(-0.5), 0}, {0, R(0.5)}, {2, R(-1)}};
  for (char uplo : {'u', 'L'})
    for (char trans : {'N', 't'})
      for (int n : sizes)
        for (int k : {0, 1, 2, 3, 6, 40, 131})
          for (auto [alpha, beta] : factors)
            for (int gap : {0, 3}) {
              TRACE(uplo << trans << " n " << n << " k " << k << " alpha " << alpha << " beta "
                         << beta);
              const bool t = transposed(trans);
              Array<R> a(t ? k : n, t ? n : k, gap), c(n, n, gap, triangle(uplo));
              if (beta == 0) c.fill([](int, int) { return nan<R>; });
              if (alpha == 0) a.fill([](int, int) { return nan<R>; });
              const auto old = c;
              TestFixture::A::syrk(&uplo, &trans, &n, &k, &alpha, a.data(), &a.ld, &beta, c.data(),
                                   &c.ld);
              c.expect_kept(old);
              c.expect_near(
                  [&](int i, int j) {
                    const Wide product = alpha == 0 ? 0 : sum(k, [&](int l) {
                      return Wide(t ? a(l, i) : a(i, l)) * (t ? a(l, j) : a(j, l));
                    });
                    return blend(beta, old(i, j), alpha * product);
                  },
                  sum_error<R>(k));
              if (this->HasFatalFailure()) return;
            }
}

TYPED_TEST(DenseTest, Symm) {
  using R = TypeParam;
  for (char side : {'L', 'r'})
    for (char uplo : {'U', 'l'})
      for (int m : {1, 2, 5, 12, 40})
        for (int n : {1, 3, 8, 33, 900})
          for (R beta : {R(0), R(-1.5)}) {
            if (n == 900 && (side != 'L' || m < 40)) continue;  // more than a cached piece of B
            TRACE(side << uplo << " m " << m << " n " << n << " beta " << beta);
            const bool left = side == 'L';
            const int order = left ? m : n;
            const R alpha = R(1.5);
            Array<R> a(order, order, 1, triangle(uplo)), b(m, n, 2), c(m, n, 3);
            if (beta == 0) c.fill([](int, int) { return nan<R>; });
            const auto old = c;
            TestFixture::A::symm(&side, &uplo, &m, &n, &alpha, a.data(), &a.ld, b.data(), &b.ld,
                                 &beta, c.data(), &c.ld);
            c.expect_kept(old);
            c.expect_near(
                [&](int i, int j) {
                  return blend(beta, old(i, j), alpha * sum(order, [&](int k) {
                                                  return left ? Wide(a.symmetric(i, k)) * b(k, j)
                                                              : Wide(b(i, k)) * a.symmetric(k, j);
                                                }));
                },
                sum_error<R>(order));
            if (this->HasFatalFailure()) return;
          }
}

// All four names; packed storage is the same triangle with the gaps taken out.
TYPED_TEST(DenseTest, Trmm) {
  using R = TypeParam;
  for (char side : {'L', 'R'})
    for (char uplo : {'U', 'l'})
      for (char trans : {'N', 'T'})
        for (char diag : {'N', 'u'})
          for (int order : sizes)
            for (int other : {1, 3, 4, 9, 70, 900})
              for (R alpha : {R(1), R(-0.5), R(0)}) {
                if (other == 900 && (order != 40 || alpha != 1 || diag == 'u'))
                  continue;  // more than a cached piece of B
                TRACE(side << uplo << trans << diag << " order " << order << " by " << other
                           << " alpha " << alpha);
                const bool left = side == 'L', unit = diag == 'u', t = trans == 'T';
                const int m = left ? order : other, n = left ? other : order;
                Array<R> a(order, order, 2, triangle(uplo)), b(m, n, 3);
                std::vector<R> packed;
                for (int j = 0; j < order; ++j) {
                  if (unit) a(j, j) = nan<R>;
                  for (int i = 0; i < order; ++i)
                    if (a.inside(i, j)) packed.push_back(a(i, j));
                }
                for (int name = 0; name < 4; ++name) {
                  auto x = b;
                  if (name < 3)
                    TestFixture::A::trmm[name](&side, &uplo, &trans, &diag, &m, &n, &alpha,
                                               a.data(), &a.ld, x.data(), &x.ld);
                  else
                    TestFixture::A::ptrmm(&side, &uplo, &trans, &diag, &m, &n, &alpha,
                                          packed.data(), x.data(), &x.ld);
                  x.expect_kept(b);
                  x.expect_near(
                      [&](int i, int j) {
                        const auto op = [&](int p, int q) {
                          return Wide(t ? a.triangular(q, p, unit) : a.triangular(p, q, unit));
                        };
                        return alpha == 0 ? 0 : alpha * sum(order, [&](int k) {
                                                  return left ? op(i, k) * b(k, j)
                                                              : b(i, k) * op(k, j);
                                                });
                      },
                      sum_error<R>(order));
                  if (this->HasFatalFailure()) return;
                }
              }
}

// A non-finite row of B spoils only the rows that the triangle links to it.
TYPED_TEST(DenseTest, TrmmKeepsRowsApart) {
  using R = TypeParam;
  const int n = 40, cols = 5;
  const R one = 1;
  Array<R> a(n, n, 0, triangle('U')), b(n, cols, 0);
  for (int j = 0; j < cols; ++j) b(20, j) = nan<R>;
  TestFixture::A::trmm[0]("L", "U", "N", "N", &n, &cols, &one, a.data(), &a.ld, b.data(), &b.ld);
  for (int i = 0; i < n; ++i) EXPECT_EQ(i <= 20, std::isnan(b(i, 0))) << i;
}

template <class R>
Array<R> positive_definite(int n, char uplo, int gap) {
  const Array<R> g(n, n, 0);
  Array<R> a(n, n, gap, triangle(uplo));
  a.fill([&](int i, int j) {
    return R(sum(n, [&](int k) { return Wide(g(i, k)) * g(j, k); }) / n + (i == j ? 1 : 0));
  });
  return a;
}

TYPED_TEST(DenseTest, CholeskyAndInverse) {
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

TYPED_TEST(DenseTest, CholeskyNamesTheMinor) {
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

TYPED_TEST(DenseTest, TriangularInverse) {
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

TYPED_TEST(DenseTest, Eigenvectors) {
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
TYPED_TEST(DenseTest, EigenvaluesKnown) {
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
TYPED_TEST(DenseTest, EigenvaluesWithoutMemory) {
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

template <class R>
struct System {
  int n, ld;
  std::vector<R> dl, d, du;
  Array<R> x, b;  // b = T x

  System(int n, int nrhs, R diagonal, int gap)
      : n(n), ld(n + gap), dl(n), d(n), du(n), x(n, nrhs, gap), b(n, nrhs, gap) {
    for (int i = 0; i < n; ++i)
      dl[i] = draw<R>(), du[i] = draw<R>(), d[i] = diagonal + draw<R>() / 4;
    dl[n - 1] = du[n - 1] = nan<R>;  // one past their ends
    multiply();
  }
  Wide row(const Array<R>& y, int i, int j) const {
    return Wide(d[i]) * y(i, j) + (i > 0 ? Wide(dl[i - 1]) * y(i - 1, j) : 0) +
           (i + 1 < n ? Wide(du[i]) * y(i + 1, j) : 0);
  }
  void multiply() {
    b.fill([&](int i, int j) { return R(row(x, i, j)); });
  }
};

TYPED_TEST(DenseTest, Tridiagonal) {
  using R = TypeParam;
  for (int n : sizes)
    for (int nrhs : {0, 1, 3, 4, 7})
      for (R diagonal : {R(3), R(0)}) {
        TRACE("n " << n << " nrhs " << nrhs << " diagonal near " << diagonal);
        const System<R> s(n, nrhs, diagonal, 2);
        const int ld = s.ld;
        int info = 1;
        auto t = s;
        TestFixture::A::tsvb(&n, &nrhs, t.dl.data(), t.d.data(), t.du.data(), t.b.data(), &ld,
                             &info);
        ASSERT_EQ(0, info);
        t.b.expect_kept(s.b);
        EXPECT_TRUE(std::isnan(t.dl[n - 1]) && std::isnan(t.du[n - 1]));
        // A backward stable solver leaves a residual of the rounding of T times the solution.
        for (int j = 0; j < nrhs; ++j) {
          Wide largest = 1;
          for (int i = 0; i < n; ++i) largest = std::max(largest, std::fabs(Wide(t.b(i, j))));
          for (int i = 0; i < n; ++i)
            ASSERT_LE(std::fabs(s.row(t.b, i, j) - s.b(i, j)), 40 * eps<R> * largest) << i;
        }
        if (diagonal == 0) continue;

        auto f = s;
        TestFixture::A::ttrfb(&n, f.dl.data(), f.d.data(), f.du.data(), &info);
        ASSERT_EQ(0, info);
        EXPECT_TRUE(std::isnan(f.dl[n - 1]) && std::isnan(f.du[n - 1]));
        const auto solve = [&](int columns, R* b) {
          TestFixture::A::ttrsb("N", &n, &columns, f.dl.data(), f.d.data(), f.du.data(), b, &ld,
                                &info);
          ASSERT_EQ(0, info);
        };
        auto alone = f.b;
        solve(nrhs, f.b.data());
        f.b.expect_kept(s.b);
        f.b.expect_near([&](int i, int j) { return s.x(i, j); }, 20 * eps<R>);
        for (int j = 0; j < nrhs; ++j) solve(1, &alone(0, j));
        EXPECT_EQ(0, memcmp(alone.data(), f.b.data(), alone.v.size() * sizeof(R)));
        if (this->HasFatalFailure()) return;
      }
}

// The rows of a spline whose end pieces are one cubic with their neighbours: not dominated
// by the diagonal at the ends, on a grid whose steps change by up to a thousand.
TYPED_TEST(DenseTest, TridiagonalSpline) {
  using R = TypeParam;
  for (int n : {4, 5, 40}) {
    System<R> s(n, 1, R(3), 0);
    std::vector<R> h(n - 1);
    for (R& step : h) step = std::pow(R(1000), (draw<R>() + 1) / 2);
    for (int i = 1; i + 1 < n; ++i)
      s.dl[i - 1] = h[i], s.d[i] = 2 * (h[i - 1] + h[i]), s.du[i] = h[i - 1];
    s.d[0] = h[1], s.du[0] = h[0] + h[1];
    s.dl[n - 2] = h[n - 2] + h[n - 3], s.d[n - 1] = h[n - 3];
    s.multiply();
    auto f = s;
    const int one = 1;
    int info = 1;
    TestFixture::A::ttrfb(&n, f.dl.data(), f.d.data(), f.du.data(), &info);
    ASSERT_EQ(0, info);
    TestFixture::A::ttrsb("n", &n, &one, f.dl.data(), f.d.data(), f.du.data(), f.b.data(), &n,
                          &info);
    ASSERT_EQ(0, info);
    for (int i = 0; i < n; ++i) {
      const Wide scale = std::fabs(s.d[i]) + (i > 0 ? s.dl[i - 1] : 0) + (i + 1 < n ? s.du[i] : 0);
      Wide largest = 0;
      for (int k = 0; k < n; ++k) largest = std::max(largest, std::fabs(Wide(f.b(k, 0))));
      EXPECT_LE(std::fabs(s.row(f.b, i, 0) - s.b(i, 0)), 40 * eps<R> * scale * largest)
          << n << " " << i;
    }
  }
}

TYPED_TEST(DenseTest, TridiagonalSingular) {
  using R = TypeParam;
  const int n = 3, one = 1;
  const struct {
    R dl[2], d[3], du[2];
    int solved, factored;
  } cases[] = {
      {{0, 0}, {0, 1, 1}, {0, 0}, 1, 1},  // empty first column
      {{1, 0}, {0, 0, 1}, {1, 0}, 0, 1},  // regular, but not without an interchange
      {{1, 2}, {1, 4, 1}, {2, 1}, 3, 3},  // last row = second row - first row
      {{2, 1}, {1, 2, 0}, {1, 0}, 2, 2},  // second row = 2 first row
  };
  for (const auto& c : cases) {
    auto solved = c, factored = c;
    R b[3] = {1, 2, 3};
    int info = -99;
    TestFixture::A::tsvb(&n, &one, solved.dl, solved.d, solved.du, b, &n, &info);
    EXPECT_EQ(c.solved == 0, info == 0) << &c - cases;
    TestFixture::A::ttrfb(&n, factored.dl, factored.d, factored.du, &info);
    EXPECT_EQ(c.factored, info) << &c - cases;
  }
}

// Each argument wrong in turn: its position comes back and nothing is written.
TYPED_TEST(DenseTest, WrongArguments) {
  using R = TypeParam;
  using A = typename TestFixture::A;
  const int n = 3, small = 2, minus = -1, tiny = -2, zero = 0, lwork = 64, liwork = 32;
  const R one = 1;
  std::vector<R> a(16, R(2)), b(16, R(3)), c(16, R(4)), work(64, R(5));
  std::vector<int> iwork(32, 6);
  R* const p = a.data();
  R* const q = b.data();
  R* const r = c.data();
  int info = 0;
  const struct {
    int expected;
    std::function<void()> call;
  } cases[] = {
      {-1, [&] { A::potrf("x", &n, p, &n, &info); }},
      {-2, [&] { A::potrf("U", &minus, p, &n, &info); }},
      {-4, [&] { A::potrf("U", &n, p, &small, &info); }},
      {-4, [&] { A::potri("U", &n, p, &small, &info); }},
      {-2, [&] { A::trtri("U", "x", &n, p, &n, &info); }},
      {-5, [&] { A::trtri("U", "N", &n, p, &small, &info); }},
      {-1, [&] { A::syev("x", "U", &n, p, &n, q, r, &lwork, &info); }},
      {-2, [&] { A::syev("V", "x", &n, p, &n, q, r, &lwork, &info); }},
      {-3, [&] { A::syev("V", "U", &minus, p, &n, q, r, &lwork, &info); }},
      {-5, [&] { A::syev("V", "U", &n, p, &small, q, r, &lwork, &info); }},
      {-8, [&] { A::syev("V", "U", &n, p, &n, q, r, &small, &info); }},
      {-7,
       [&] {
         A::spevd("V", "U", &n, p, q, r, &small, work.data(), &lwork, iwork.data(), &liwork, &info);
       }},
      {-9,
       [&] { A::spevd("V", "U", &n, p, q, r, &n, work.data(), &n, iwork.data(), &liwork, &info); }},
      {-11,
       [&] { A::spevd("V", "U", &n, p, q, r, &n, work.data(), &lwork, iwork.data(), &n, &info); }},
      {-1, [&] { A::tsvb(&minus, &n, p, q, r, work.data(), &n, &info); }},
      {-2, [&] { A::tsvb(&n, &minus, p, q, r, work.data(), &n, &info); }},
      {-7, [&] { A::tsvb(&n, &n, p, q, r, work.data(), &small, &info); }},
      {-1, [&] { A::ttrfb(&minus, p, q, r, &info); }},
      {-1, [&] { A::ttrsb("T", &n, &n, p, q, r, work.data(), &n, &info); }},
      {-8, [&] { A::ttrsb("N", &n, &n, p, q, r, work.data(), &small, &info); }},
      {0, [&] { A::gemm("x", "N", &n, &n, &n, &one, p, &n, q, &n, &one, r, &n); }},
      {0, [&] { A::gemm("N", "N", &n, &n, &n, &one, p, &n, q, &small, &one, r, &n); }},
      {0, [&] { A::gemv("N", &n, &n, &one, p, &n, q, &zero, &one, r, &n); }},
      {0, [&] { A::syr("x", &n, &one, p, &n, r, &n); }},
      {0, [&] { A::syrk("U", "N", &n, &tiny, &one, p, &n, &one, r, &n); }},
      {0, [&] { A::symm("x", "U", &n, &n, &one, p, &n, q, &n, &one, r, &n); }},
      {0, [&] { A::trmm[0]("L", "U", "N", "x", &n, &n, &one, p, &n, r, &n); }},
      {0, [&] { A::ptrmm("L", "U", "N", "N", &n, &n, &one, p, r, &small); }},
      {0, [&] { A::potrf("U", &zero, p, &n, &info); }},
      {0, [&] { A::tsvb(&zero, &n, p, q, r, work.data(), &n, &info); }},
  };
  for (const auto& one_case : cases) {
    info = 0;
    one_case.call();
    const auto at = &one_case - cases;
    EXPECT_EQ(one_case.expected, info) << at;
    for (int i = 0; i < 16; ++i) ASSERT_TRUE(a[i] == 2 && b[i] == 3 && c[i] == 4) << at;
    for (R x : work) ASSERT_EQ(5, x) << at;
    for (int x : iwork) ASSERT_EQ(6, x) << at;
  }
  A::syev("V", "U", &n, p, &n, q, work.data(), &minus, &info);
  EXPECT_TRUE(info == 0 && work[0] == 3 * n - 1 && a[0] == 2);
  A::spevd("V", "U", &n, p, q, r, &n, work.data(), &lwork, iwork.data(), &minus, &info);
  EXPECT_TRUE(info == 0 && work[0] == n * n + 6 * n + 1 && iwork[0] == 5 * n + 3 && c[0] == 4);
}

}  // namespace
