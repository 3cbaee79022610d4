// Large products and the Cholesky factor where memory is short: the same result, slower.
#include "dense/dense.hpp"
#include "support/blocks.hpp"

namespace dense {
namespace {

template <class R>
struct DenseMemory : Dense<R> {
  // `attempt` has to succeed whatever is allocated, and to leave nothing behind.
  static void try_all(const std::function<void()>& attempt, bool allocates) {
#ifdef ORK_DENSE_IS_BLAS
    allocates = false;  // the system's library has memory of its own
#endif
    const auto whole = [&] {
      attempt();
      EXPECT_EQ(0, blocks::live());
    };
    blocks::least_alignment();
    EXPECT_EQ(allocates, blocks::fail_each(whole) > 0);
    EXPECT_EQ(allocates ? 128u : 0u, blocks::least_alignment());
    const blocks::None none;
    whole();
  }
  template <class Product>
  static void try_product(Product product, const Array<R>& start, bool allocates = true) {
    try_all(
        [&] {
          auto c = start;
          Dense<R>::check(product, c);
        },
        allocates);
  }
  static constexpr R alpha = R(0.75), beta = R(-0.5);
};
TYPED_TEST_SUITE(DenseMemory, Reals);

TYPED_TEST(DenseMemory, Products) {
  using R = TypeParam;
  for (int n : {3, 40, 150}) {
    const int m = n + 7, k = 2 * n;
    for (char ta : {'N', 'T'})
      for (char tb : {'N', 'T'}) {
        TRACE("gemm " << ta << tb << " n " << n);
        this->try_product(Gemm<R>{ta, tb, m, n, k, this->alpha, this->beta}, Array<R>(m, n, 1),
                          n > 3);
      }
    for (char uplo : {'U', 'L'})
      for (char trans : {'N', 'T'}) {
        TRACE("syrk " << uplo << trans << " n " << n);
        this->try_product(Syrk<R>{uplo, trans, n, k, this->alpha, this->beta, 1},
                          Array<R>(n, n, 2, triangle(uplo)), n > 3);
      }
  }
}

TYPED_TEST(DenseMemory, SymmetricProducts) {
  using R = TypeParam;
  struct {
    char side;
    int m, n;
  } const shapes[] = {
      {'L', 157, 150}, {'L', 50, 90}, {'L', 1, 3000}, {'R', 150, 157}, {'R', 600, 33}};
  for (auto [side, m, n] : shapes)
    for (char uplo : {'U', 'L'}) {
      TRACE(side << uplo << " m " << m << " n " << n);
      this->try_product(Symm<R>{side, uplo, m, n, this->alpha, this->beta}, Array<R>(m, n, 3));
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
    this->try_all(
        [&] {
          auto c = start;
          int info = -1;
          TestFixture::A::potrf(&uplo, &n, c.data(), &c.ld, &info);
          EXPECT_EQ(0, info);
          c.expect_kept(start);
          // A / n has a condition near 1; its elements, below 2 n, are right to an eps.
          c.expect_near([&](int i, int j) { return Wide(t(i, j)); }, Wide(8 * n) * eps<R>);
        },
        true);
  }
}

}  // namespace
}  // namespace dense
