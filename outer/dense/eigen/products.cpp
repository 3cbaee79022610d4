// General and symmetric products.
#include <algorithm>

#include "outer/dense/eigen/blocks.hpp"

namespace ork::dense {
namespace {

// beta = 0 stores, so that what C held does not matter.
template <class Block, class R>
void scale(Block&& c, R beta) {
  if (beta == R(0))
    c.setZero();
  else if (beta != R(1))
    c *= beta;
}

template <class R>
void scale_triangle(bool upper, int n, R beta, R* c, int ldc) {
  for (int j = 0; j < n; ++j) {
    const int first = upper ? 0 : j, last = upper ? j + 1 : n;
    scale(Vector<R>(c + first + j * ldc, last - first), beta);
  }
}

// Element i of a vector with an increment is at first[i * inc].
template <class R>
R* first_element(R* x, int n, int inc) {
  return inc < 0 ? x - (n - 1) * inc : x;
}

// C += alpha A B. Where there is no room for the blocks, B and C go by halves.
template <bool upper, class R>
void add_left(int m, int n, R alpha, const R* a, int lda, const R* b, int ldb, R* c, int ldc) {
  if (add_symmetric<true, upper>(m, n, alpha, a, lda, b, ldb, c, ldc)) return;
  const int n1 = n / 2;
  add_left<upper>(m, n1, alpha, a, lda, b, ldb, c, ldc);
  add_left<upper>(m, n - n1, alpha, a, lda, b + n1 * ldb, ldb, c + n1 * ldc, ldc);
}

// C += alpha B A. Where there is no room for the blocks, A goes by quarters.
template <bool upper, class R>
void add_right(int m, int n, R alpha, const R* a, int lda, const R* b, int ldb, R* c, int ldc) {
  if (add_symmetric<false, upper>(m, n, alpha, a, lda, b, ldb, c, ldc)) return;
  const int n1 = n / 2, n2 = n - n1;
  const R *const off = off_diagonal(a, lda, n1, upper), *const b2 = b + n1 * ldb;
  R* const c2 = c + n1 * ldc;
  add_right<upper>(m, n1, alpha, a, lda, b, ldb, c, ldc);
  add_right<upper>(m, n2, alpha, a + n1 * (lda + 1), lda, b2, ldb, c2, ldc);
  gemm(false, upper, m, n1, n2, alpha, b2, ldb, off, lda, R(1), c, ldc);
  gemm(false, !upper, m, n2, n1, alpha, b, ldb, off, lda, R(1), c2, ldc);
}

// A triangle of C += alpha op(A) op(A)'. Where there is no room for the blocks, C goes by quarters.
template <unsigned triangle, bool trans, class R>
void add_quarters(int n, int k, R alpha, const R* a, int lda, R* c, int ldc) {
  if (add_square<triangle, trans>(n, k, alpha, a, lda, c, ldc)) return;
  const int n1 = n / 2, n2 = n - n1;
  const R* const a2 = trans ? a + n1 * lda : a + n1;
  add_quarters<triangle, trans>(n1, k, alpha, a, lda, c, ldc);
  add_quarters<triangle, trans>(n2, k, alpha, a2, lda, c + n1 * (ldc + 1), ldc);
  if (triangle == Eigen::Upper)
    gemm(trans, !trans, n1, n2, k, alpha, a, lda, a2, lda, R(1), c + n1 * ldc, ldc);
  else
    gemm(trans, !trans, n2, n1, k, alpha, a2, lda, a, lda, R(1), c + n1, ldc);
}

}  // namespace

template <class R>
void gemv(bool trans, int m, int n, R alpha, const R* a, int lda, const R* x, int incx, R beta,
          R* y, int incy) {
  const int rows = trans ? n : m, cols = trans ? m : n;
  if (m == 0 || n == 0) return;
  const auto A = matrix(a, m, n, lda);
  if (incx == 1 && incy == 1) {
    Vector<R> Y(y, rows);
    const ConstVector<R> X(x, cols);
    scale(Y, beta);
    if (alpha == R(0)) return;
    if (trans)
      Y.noalias() += alpha * A.transpose() * X;
    else
      Y.noalias() += alpha * A * X;
    return;
  }
  x = first_element(x, cols, incx);
  y = first_element(y, rows, incy);
  for (int i = 0; i < rows; ++i) {
    R sum = 0;
    if (alpha != R(0))
      for (int k = 0; k < cols; ++k) sum += (trans ? A(k, i) : A(i, k)) * x[k * incx];
    y[i * incy] = (beta == R(0) ? R(0) : beta * y[i * incy]) + alpha * sum;
  }
}

template <class R>
void syr(bool upper, int n, R alpha, const R* x, int incx, R* a, int lda) {
  if (alpha == R(0)) return;
  x = first_element(x, n, incx);
  for (int j = 0; j < n; ++j) {
    const R t = alpha * x[j * incx];
    for (int i = upper ? 0 : j, end = upper ? j + 1 : n; i < end; ++i)
      a[i + j * lda] += t * x[i * incx];
  }
}

template <class R>
void gemm(bool transa, bool transb, int m, int n, int k, R alpha, const R* a, int lda, const R* b,
          int ldb, R beta, R* c, int ldc) {
  scale(matrix(c, m, n, ldc), beta);
  if (alpha == R(0) || m == 0 || n == 0 || k == 0) return;
  if (n == 1 && !transb)
    return gemv(transa, transa ? k : m, transa ? m : k, alpha, a, lda, b, 1, R(1), c, 1);
  if (transa && transb)
    add_general<true, true>(m, n, k, alpha, a, lda, b, ldb, c, ldc);
  else if (transa)
    add_general<true, false>(m, n, k, alpha, a, lda, b, ldb, c, ldc);
  else if (transb)
    add_general<false, true>(m, n, k, alpha, a, lda, b, ldb, c, ldc);
  else
    add_general<false, false>(m, n, k, alpha, a, lda, b, ldb, c, ldc);
}

template <class R>
void syrk(bool upper, bool trans, int n, int k, R alpha, const R* a, int lda, R beta, R* c,
          int ldc) {
  scale_triangle(upper, n, beta, c, ldc);
  if (alpha == R(0) || n == 0 || k == 0) return;
  if (upper && trans)
    add_quarters<Eigen::Upper, true>(n, k, alpha, a, lda, c, ldc);
  else if (upper)
    add_quarters<Eigen::Upper, false>(n, k, alpha, a, lda, c, ldc);
  else if (trans)
    add_quarters<Eigen::Lower, true>(n, k, alpha, a, lda, c, ldc);
  else
    add_quarters<Eigen::Lower, false>(n, k, alpha, a, lda, c, ldc);
}

template <class R>
void symm(bool left, bool upper, int m, int n, R alpha, const R* a, int lda, const R* b, int ldb,
          R beta, R* c, int ldc) {
  scale(matrix(c, m, n, ldc), beta);
  if (alpha == R(0) || m == 0 || n == 0) return;
  if (!left)
    return upper ? add_right<true>(m, n, alpha, a, lda, b, ldb, c, ldc)
                 : add_right<false>(m, n, alpha, a, lda, b, ldb, c, ldc);
  constexpr int chunk_reals = 32768;  // of B and C at a time, to stay in cache
  const int chunk = std::max(chunk_reals / m, 64);
  for (int j = 0; j < n; j += chunk) {
    const int cols = std::min(chunk, n - j);
    if (upper)
      add_left<true>(m, cols, alpha, a, lda, b + j * ldb, ldb, c + j * ldc, ldc);
    else
      add_left<false>(m, cols, alpha, a, lda, b + j * ldb, ldb, c + j * ldc, ldc);
  }
}

#define ORK_TWIN(R)                                                                           \
  template void gemm(bool, bool, int, int, int, R, const R*, int, const R*, int, R, R*, int); \
  template void gemv(bool, int, int, R, const R*, int, const R*, int, R, R*, int);            \
  template void syr(bool, int, R, const R*, int, R*, int);                                    \
  template void syrk(bool, bool, int, int, R, const R*, int, R, R*, int);                     \
  template void symm(bool, bool, int, int, R, const R*, int, const R*, int, R, R*, int);
ORK_TWIN(double)
ORK_TWIN(float)

}  // namespace ork::dense
