// Products and rank updates, whole, by triangles and packed.
#include "dense/dense.hpp"

namespace dense {
namespace {

template <class R>
struct DenseProducts : Dense<R> {};
TYPED_TEST_SUITE(DenseProducts, Reals);

TYPED_TEST(DenseProducts, Gemm) {
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
              Gemm<R> gemm{ta, tb, m, n, k, alpha, beta};
              Array<R> c(m, n, 1);
              if (beta == 0) c.fill([](int, int) { return nan<R>; });
              if (alpha == 0) gemm.a.fill([](int, int) { return nan<R>; });
              this->check(gemm, c);
              if (this->HasFatalFailure()) return;
            }
}

TYPED_TEST(DenseProducts, Gemv) {
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

TYPED_TEST(DenseProducts, Syr) {
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

TYPED_TEST(DenseProducts, Syrk) {
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
              Syrk<R> syrk{uplo, trans, n, k, alpha, beta, gap};
              Array<R> c(n, n, gap, triangle(uplo));
              if (beta == 0) c.fill([](int, int) { return nan<R>; });
              if (alpha == 0) syrk.a.fill([](int, int) { return nan<R>; });
              this->check(syrk, c);
              if (this->HasFatalFailure()) return;
            }
}

TYPED_TEST(DenseProducts, Symm) {
  using R = TypeParam;
  for (char side : {'L', 'r'})
    for (char uplo : {'U', 'l'})
      for (int m : {1, 2, 5, 12, 40})
        for (int n : {1, 3, 8, 33, 900})
          for (R beta : {R(0), R(-1.5)}) {
            if (n == 900 && (side != 'L' || m < 40)) continue;  // more than a cached piece of B
            TRACE(side << uplo << " m " << m << " n " << n << " beta " << beta);
            Symm<R> symm{side, uplo, m, n, R(1.5), beta};
            Array<R> c(m, n, 3);
            if (beta == 0) c.fill([](int, int) { return nan<R>; });
            this->check(symm, c);
            if (this->HasFatalFailure()) return;
          }
}

// All four names; packed storage is the same triangle with the gaps taken out.
TYPED_TEST(DenseProducts, Trmm) {
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
TYPED_TEST(DenseProducts, TrmmKeepsRowsApart) {
  using R = TypeParam;
  const int n = 40, cols = 5;
  const R one = 1;
  Array<R> a(n, n, 0, triangle('U')), b(n, cols, 0);
  for (int j = 0; j < cols; ++j) b(20, j) = nan<R>;
  TestFixture::A::trmm[0]("L", "U", "N", "N", &n, &cols, &one, a.data(), &a.ld, b.data(), &b.ld);
  for (int i = 0; i < n; ++i) EXPECT_EQ(i <= 20, std::isnan(b(i, 0))) << i;
}

}  // namespace
}  // namespace dense
