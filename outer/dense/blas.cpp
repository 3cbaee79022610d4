// General and symmetric products.
#include <algorithm>

#include "outer/dense/dense.hpp"

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

template <unsigned Triangle, class A, class B, class C, class R>
void add_symmetric_product(bool left, const A& a, const B& b, R alpha, C& c) {
  const auto s = a.template selfadjointView<Triangle>();
  if (left)
    c.noalias() += s * (alpha * b);
  else
    c.noalias() += (alpha * b) * s;
}

template <class R>
void symm(bool left, bool upper, int m, int n, R alpha, const R* a, int lda, const R* b, int ldb,
          R beta, R* c, int ldc) {
  constexpr int chunk_reals = 32768;  // of B and C at a time, to stay in cache
  const int chunk = std::max(chunk_reals / std::max(m, 1), 64);
  if (left && n > chunk) {
    for (int j = 0; j < n; j += chunk)
      symm(left, upper, m, std::min(chunk, n - j), alpha, a, lda, b + j * ldb, ldb, beta,
           c + j * ldc, ldc);
    return;
  }
  auto C = matrix(c, m, n, ldc);
  scale(C, beta);
  if (alpha == R(0) || m == 0 || n == 0) return;
  const auto A = matrix(a, left ? m : n, left ? m : n, lda);
  const auto B = matrix(b, m, n, ldb);
  if (upper)
    add_symmetric_product<Eigen::Upper>(left, A, B, alpha, C);
  else
    add_symmetric_product<Eigen::Lower>(left, A, B, alpha, C);
}

}  // namespace

template <class R>
void gemm(bool transa, bool transb, int m, int n, int k, R alpha, const R* a, int lda, const R* b,
          int ldb, R beta, R* c, int ldc) {
  auto C = matrix(c, m, n, ldc);
  scale(C, beta);
  if (alpha == R(0) || m == 0 || n == 0 || k == 0) return;
  const auto A = transa ? matrix(a, k, m, lda) : matrix(a, m, k, lda);
  const auto B = transb ? matrix(b, n, k, ldb) : matrix(b, k, n, ldb);
  if (transa && transb)
    C.noalias() += alpha * A.transpose() * B.transpose();
  else if (transa)
    C.noalias() += alpha * A.transpose() * B;
  else if (transb)
    C.noalias() += alpha * A * B.transpose();
  else
    C.noalias() += alpha * A * B;
}

template <class R>
void syrk(bool upper, bool trans, int n, int k, R alpha, const R* a, int lda, R beta, R* c,
          int ldc) {
  scale_triangle(upper, n, beta, c, ldc);
  if (alpha == R(0) || n == 0 || k == 0) return;
  auto C = matrix(c, n, n, ldc);
  const auto A = trans ? matrix(a, k, n, lda) : matrix(a, n, k, lda);
  if (upper && trans)
    C.template selfadjointView<Eigen::Upper>().rankUpdate(A.transpose(), alpha);
  else if (upper)
    C.template selfadjointView<Eigen::Upper>().rankUpdate(A, alpha);
  else if (trans)
    C.template selfadjointView<Eigen::Lower>().rankUpdate(A.transpose(), alpha);
  else
    C.template selfadjointView<Eigen::Lower>().rankUpdate(A, alpha);
}

template void gemm(bool, bool, int, int, int, double, const double*, int, const double*, int,
                   double, double*, int);
template void gemm(bool, bool, int, int, int, float, const float*, int, const float*, int, float,
                   float*, int);
template void syrk(bool, bool, int, int, double, const double*, int, double, double*, int);
template void syrk(bool, bool, int, int, float, const float*, int, float, float*, int);

}  // namespace ork::dense

using namespace ork::dense;

#define ORK_TWIN(t, R)                                                                             \
  ORK_OUTER void ork_blas_##t##gemm(const char* transa, const char* transb, const int* m,          \
                                    const int* n, const int* k, const R* alpha, const R* a,        \
                                    const int* lda, const R* b, const int* ldb, const R* beta,     \
                                    R* c, const int* ldc) {                                        \
    const Option ta = is_transposed(transa), tb = is_transposed(transb);                           \
    if (ta.valid && tb.valid && *m >= 0 && *n >= 0 && *k >= 0 && ld_ok(*lda, ta ? *k : *m) &&      \
        ld_ok(*ldb, tb ? *n : *k) && ld_ok(*ldc, *m))                                              \
      gemm(ta, tb, *m, *n, *k, *alpha, a, *lda, b, *ldb, *beta, c, *ldc);                          \
  }                                                                                                \
  ORK_OUTER void ork_blas_##t##gemv(const char* trans, const int* m, const int* n, const R* alpha, \
                                    const R* a, const int* lda, const R* x, const int* incx,       \
                                    const R* beta, R* y, const int* incy) {                        \
    const Option ta = is_transposed(trans);                                                        \
    if (ta.valid && *m >= 0 && *n >= 0 && ld_ok(*lda, *m) && *incx != 0 && *incy != 0)             \
      gemv(ta, *m, *n, *alpha, a, *lda, x, *incx, *beta, y, *incy);                                \
  }                                                                                                \
  ORK_OUTER void ork_blas_##t##syr(const char* uplo, const int* n, const R* alpha, const R* x,     \
                                   const int* incx, R* a, const int* lda) {                        \
    const Option upper = is_upper(uplo);                                                           \
    if (upper.valid && *n >= 0 && *incx != 0 && ld_ok(*lda, *n))                                   \
      syr(upper, *n, *alpha, x, *incx, a, *lda);                                                   \
  }                                                                                                \
  ORK_OUTER void ork_blas_##t##syrk(const char* uplo, const char* trans, const int* n,             \
                                    const int* k, const R* alpha, const R* a, const int* lda,      \
                                    const R* beta, R* c, const int* ldc) {                         \
    const Option upper = is_upper(uplo), ta = is_transposed(trans);                                \
    if (upper.valid && ta.valid && *n >= 0 && *k >= 0 && ld_ok(*lda, ta ? *k : *n) &&              \
        ld_ok(*ldc, *n))                                                                           \
      syrk(upper, ta, *n, *k, *alpha, a, *lda, *beta, c, *ldc);                                    \
  }                                                                                                \
  ORK_OUTER void ork_blas_x##t##symm(                                                              \
      const char* side, const char* uplo, const int* m, const int* n, const R* alpha, const R* a,  \
      const int* lda, const R* b, const int* ldb, const R* beta, R* c, const int* ldc) {           \
    const Option left = is_left(side), upper = is_upper(uplo);                                     \
    if (left.valid && upper.valid && *m >= 0 && *n >= 0 && ld_ok(*lda, left ? *m : *n) &&          \
        ld_ok(*ldb, *m) && ld_ok(*ldc, *m))                                                        \
      symm(left, upper, *m, *n, *alpha, a, *lda, b, *ldb, *beta, c, *ldc);                         \
  }
ORK_TWIN(d, double)
ORK_TWIN(s, float)
