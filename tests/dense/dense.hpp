// The dense layer against sums in extended precision over plain loops. Places a routine
// may not read hold NaN, places it may not write must keep their bits.
#pragma once
#include <algorithm>
#include <functional>
#include <random>

#include "ork/dense.h"
#include "support/pch.hpp"

namespace dense {

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

inline std::mt19937 generator(20240611);
template <class R>
R draw() {
  return std::uniform_real_distribution<R>(-1, 1)(generator);
}

inline bool everywhere(int, int) { return true; }
inline std::function<bool(int, int)> triangle(char uplo) {
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
inline Wide sum(int n, F term) {
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
inline Wide blend(R scale, R old, Wide value) {
  return (scale == 0 ? 0 : Wide(scale) * old) + value;
}

inline bool transposed(char trans) { return trans != 'N' && trans != 'n'; }

// A product to be computed: its factors, the call that makes it from C, and element (i, j) of it.
template <class R>
struct Gemm {
  char ta, tb;
  int m, n, k;
  R alpha, beta;
  Array<R> a{transposed(ta) ? k : m, transposed(ta) ? m : k, 3};
  Array<R> b{transposed(tb) ? n : k, transposed(tb) ? k : n, 2};

  void operator()(Array<R>& c) {
    Api<R>::gemm(&ta, &tb, &m, &n, &k, &alpha, a.data(), &a.ld, b.data(), &b.ld, &beta, c.data(),
                 &c.ld);
  }
  Wide expected(const Array<R>& old, int i, int j) const {
    const bool at = transposed(ta), bt = transposed(tb);
    const auto product = [&](int l) {
      return Wide(at ? a(l, i) : a(i, l)) * (bt ? b(j, l) : b(l, j));
    };
    return blend(beta, old(i, j), alpha == 0 ? 0 : alpha * sum(k, product));
  }
  Wide tolerance() const { return sum_error<R>(k); }
};

template <class R>
struct Syrk {
  char uplo, trans;
  int n, k;
  R alpha, beta;
  int gap;
  Array<R> a{transposed(trans) ? k : n, transposed(trans) ? n : k, gap};

  void operator()(Array<R>& c) {
    Api<R>::syrk(&uplo, &trans, &n, &k, &alpha, a.data(), &a.ld, &beta, c.data(), &c.ld);
  }
  Wide expected(const Array<R>& old, int i, int j) const {
    const bool t = transposed(trans);
    const auto product = [&](int l) {
      return Wide(t ? a(l, i) : a(i, l)) * (t ? a(l, j) : a(j, l));
    };
    return blend(beta, old(i, j), alpha == 0 ? 0 : alpha * sum(k, product));
  }
  Wide tolerance() const { return sum_error<R>(k); }
};

template <class R>
struct Symm {
  char side, uplo;
  int m, n;
  R alpha, beta;
  bool left = side == 'L';
  int order = left ? m : n;
  Array<R> a{order, order, 1, triangle(uplo)}, b{m, n, 2};

  void operator()(Array<R>& c) {
    Api<R>::symm(&side, &uplo, &m, &n, &alpha, a.data(), &a.ld, b.data(), &b.ld, &beta, c.data(),
                 &c.ld);
  }
  Wide expected(const Array<R>& old, int i, int j) const {
    const auto product = [&](int l) {
      return left ? Wide(a.symmetric(i, l)) * b(l, j) : Wide(b(i, l)) * a.symmetric(l, j);
    };
    return blend(beta, old(i, j), alpha * sum(order, product));
  }
  Wide tolerance() const { return sum_error<R>(order); }
};

template <class R>
struct Dense : testing::Test {
  // Makes the product from c and checks it whole.
  template <class Product>
  static void check(Product& product, Array<R>& c) {
    const auto old = c;
    product(c);
    c.expect_kept(old);
    c.expect_near([&](int i, int j) { return product.expected(old, i, j); }, product.tolerance());
  }

  using A = Api<R>;
};
using Reals = testing::Types<double, float>;

}  // namespace dense

#define TRACE(...) SCOPED_TRACE(testing::Message() << __VA_ARGS__)
