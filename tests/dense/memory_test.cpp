// Large products and the Cholesky factor where memory is short: the same result, slower.
#include "dense/dense.hpp"
#include "support/blocks.hpp"

namespace dense {
namespace {

template <class R>
struct DenseMemory : Dense<R> {
  // `run` brings a copy of `start` to `expected`, whatever is allocated.
  template <class Expected>
  static void check(const Array<R>& start, const std::function<void(Array<R>&)>& run,
                    Expected expected, Wide tolerance, bool allocates) {
    const auto attempt = [&] {
      auto c = start;
      run(c);
      c.expect_kept(start);
      c.expect_near(expected, tolerance);
      EXPECT_EQ(0, blocks::live());
    };
    EXPECT_EQ(allocates, blocks::fail_each(attempt) > 0);
    const blocks::None none;
    attempt();
  }
};
TYPED_TEST_SUITE(DenseMemory, Reals);

TYPED_TEST(DenseMemory, Products) {
  using R = TypeParam;
  const R alpha = R(0.75), beta = R(-0.5);
  for (int n : {3, 40, 150}) {
    const int m = n + 7, k = 2 * n;
    for (char ta : {'N', 'T'})
      for (char tb : {'N', 'T'}) {
        TRACE("gemm " << ta << tb << " n " << n);
        const bool at = transposed(ta), bt = transposed(tb);
        Array<R> a(at ? k : m, at ? m : k, 3), b(bt ? n : k, bt ? k : n, 2);
        const Array<R> start(m, n, 1);
        this->check(
            start,
            [&](Array<R>& c) {
              TestFixture::A::gemm(&ta, &tb, &m, &n, &k, &alpha, a.data(), &a.ld, b.data(), &b.ld,
                                   &beta, c.data(), &c.ld);
            },
            [&](int i, int j) {
              return blend(beta, start(i, j), alpha * sum(k, [&](int l) {
                                                return Wide(at ? a(l, i) : a(i, l)) *
                                                       (bt ? b(j, l) : b(l, j));
                                              }));
            },
            sum_error<R>(k), n > 3);
      }
    for (char uplo : {'U', 'L'})
      for (char trans : {'N', 'T'}) {
        TRACE("syrk " << uplo << trans << " n " << n);
        const bool t = transposed(trans);
        Array<R> a(t ? k : n, t ? n : k, 1);
        const Array<R> start(n, n, 2, triangle(uplo));
        this->check(
            start,
            [&](Array<R>& c) {
              TestFixture::A::syrk(&uplo, &trans, &n, &k, &alpha, a.data(), &a.ld, &beta, c.data(),
                                   &c.ld);
            },
            [&](int i, int j) {
              return blend(beta, start(i, j), alpha * sum(k, [&](int l) {
                                                return Wide(t ? a(l, i) : a(i, l)) *
                                                       (t ? a(l, j) : a(j, l));
                                              }));
            },
            sum_error<R>(k), n > 3);
      }
  }
}

TYPED_TEST(DenseMemory, SymmetricProducts) {
  using R = TypeParam;
  const R alpha = R(0.75), beta = R(-0.5);
  struct {
    char side;
    int m, n;
  } const shapes[] = {
      {'L', 157, 150}, {'L', 50, 90}, {'L', 1, 3000}, {'R', 150, 157}, {'R', 600, 33}};
  for (auto [side, m, n] : shapes)
    for (char uplo : {'U', 'L'}) {
      TRACE(side << uplo << " m " << m << " n " << n);
      const bool left = side == 'L';
      const int order = left ? m : n;
      Array<R> a(order, order, 1, triangle(uplo)), b(m, n, 2);
      const Array<R> start(m, n, 3);
      this->check(
          start,
          [&](Array<R>& c) {
            TestFixture::A::symm(&side, &uplo, &m, &n, &alpha, a.data(), &a.ld, b.data(), &b.ld,
                                 &beta, c.data(), &c.ld);
          },
          [&](int i, int j) {
            return blend(beta, start(i, j), alpha * sum(order, [&](int l) {
                                              return left ? Wide(a.symmetric(i, l)) * b(l, j)
                                                          : Wide(b(i, l)) * a.symmetric(l, j);
                                            }));
          },
          sum_error<R>(order), true);
    }
}

// A = T'T of a triangle T with a large diagonal has T as its factor.
TYPED_TEST(DenseMemory, Cholesky) {
  using R = TypeParam;
  const int n = 200;
  for (char uplo : {'U', 'L'}) {
    TRACE(uplo);
    const auto inside = triangle(uplo);
    Array<R> t(n, n, 0, inside), start(n, n, 3, inside);
    t.fill([&](int i, int j) { return i == j ? R(n + draw<R>()) : draw<R>(); });
    start.fill([&](int i, int j) {
      return R(sum(std::min(i, j) + 1, [&](int l) {
        return uplo == 'U' ? Wide(t(l, i)) * t(l, j) : Wide(t(i, l)) * t(j, l);
      }));
    });
    this->check(
        start,
        [&](Array<R>& c) {
          int info = -1;
          TestFixture::A::potrf(&uplo, &n, c.data(), &c.ld, &info);
          EXPECT_EQ(0, info);
        },
        // A / n has a condition near 1; its elements, below 2 n, are right to an eps.
        [&](int i, int j) { return Wide(t(i, j)); }, Wide(8 * n) * eps<R>, true);
  }
}

}  // namespace
}  // namespace dense
