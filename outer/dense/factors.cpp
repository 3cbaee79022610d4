// Cholesky factor, inverse from it, inverse of a triangle: each splits its matrix in four,
// recurses on the diagonal blocks and leaves the rest to the products. The lower triangle
// is the upper one of the transposed matrix, so the small cases take strides.
#include <algorithm>
#include <cmath>

#include "outer/dense/eigen/views.hpp"

namespace ork::dense {
namespace {

constexpr int small = 16;  // order from which on a matrix is split

template <class R>
struct Upper {  // element (i, j), i <= j, of an upper triangle or of a lower one transposed
  R* a;
  int row, col;
  Upper(bool upper, R* a, int lda) : a(a), row(upper ? 1 : lda), col(upper ? lda : 1) {}
  R& operator()(int i, int j) const { return a[i * row + j * col]; }
};

// X := U'^-1 X, with U of order n and m columns of X; for the lower triangle L, X := X L'^-1 with m
// rows.
template <class R>
void solve(bool upper, int n, int m, const R* a, int lda, R* x, int ldx) {
  if (n <= small) {
    constexpr int chunk = 128;  // Eigen packs this much on the stack
    const auto A = matrix(a, n, n, lda);
    for (int j = 0; j < m; j += chunk) {
      const int part = std::min(chunk, m - j);
      if (upper) {
        auto X = matrix(x + j * ldx, n, part, ldx);
        A.template triangularView<Eigen::Upper>().transpose().solveInPlace(X);
      } else {
        auto X = matrix(x + j, part, n, ldx);
        A.template triangularView<Eigen::Lower>()
            .transpose()
            .template solveInPlace<Eigen::OnTheRight>(X);
      }
    }
    return;
  }
  const int n1 = n / 2, n2 = n - n1;
  const R* const off = off_diagonal(a, lda, n1, upper);
  R* const x2 = upper ? x + n1 : x + n1 * ldx;
  solve(upper, n1, m, a, lda, x, ldx);
  if (upper)
    gemm(true, false, n2, m, n1, R(-1), off, lda, x, ldx, R(1), x2, ldx);
  else
    gemm(false, true, m, n2, n1, R(-1), x, ldx, off, lda, R(1), x2, ldx);
  solve(upper, n2, m, a + n1 * (lda + 1), lda, x2, ldx);
}

}  // namespace

template <class R>
int cholesky(bool upper, int n, R* a, int lda) {
  if (n <= small) {
    const Upper<R> u(upper, a, lda);
    for (int j = 0; j < n; ++j)
      for (int i = 0; i <= j; ++i) {
        R sum = u(i, j);
        for (int k = 0; k < i; ++k) sum -= u(k, i) * u(k, j);
        if (i < j)
          sum /= u(i, i);
        else if (!(sum > R(0)))
          return j + 1;
        else
          sum = std::sqrt(sum);
        u(i, j) = sum;
      }
    return 0;
  }
  const int n1 = n / 2, n2 = n - n1;
  R* const off = off_diagonal(a, lda, n1, upper);
  R* const a22 = a + n1 * (lda + 1);
  if (const int minor = cholesky(upper, n1, a, lda)) return minor;
  solve(upper, n1, n2, a, lda, off, lda);
  syrk(upper, upper, n2, n1, R(-1), off, lda, R(1), a22, lda);
  const int minor = cholesky(upper, n2, a22, lda);
  return minor != 0 ? n1 + minor : 0;
}

template <class R>
void invert(bool upper, bool unit, int n, R* a, int lda) {
  if (n <= small) {
    const Upper<R> u(upper, a, lda);
    for (int j = 0; j < n; ++j) {
      const R inverse = unit ? R(1) : R(1) / u(j, j);
      for (int i = 0; i < j; ++i) {
        R sum = unit ? u(i, j) : u(i, i) * u(i, j);
        for (int k = i + 1; k < j; ++k) sum += u(i, k) * u(k, j);
        u(i, j) = -sum * inverse;
      }
      if (!unit) u(j, j) = inverse;
    }
    return;
  }
  const int n1 = n / 2, n2 = n - n1;
  R* const off = off_diagonal(a, lda, n1, upper);
  R* const a22 = a + n1 * (lda + 1);
  invert(upper, unit, n1, a, lda);
  invert(upper, unit, n2, a22, lda);
  const int rows = upper ? n1 : n2, cols = n - rows;
  trmm(true, upper, false, unit, rows, cols, R(-1), upper ? a : a22, lda, off, lda);
  trmm(false, upper, false, unit, rows, cols, R(1), upper ? a22 : a, lda, off, lda);
}

template <class R>
void square(bool upper, int n, R* a, int lda) {
  if (n <= small) {
    const Upper<R> u(upper, a, lda);
    for (int j = 0; j < n; ++j)
      for (int i = 0; i <= j; ++i) {
        R sum = 0;
        for (int k = j; k < n; ++k) sum += u(i, k) * u(j, k);
        u(i, j) = sum;
      }
    return;
  }
  const int n1 = n / 2, n2 = n - n1;
  R* const off = off_diagonal(a, lda, n1, upper);
  R* const a22 = a + n1 * (lda + 1);
  square(upper, n1, a, lda);
  syrk(upper, !upper, n1, n2, R(1), off, lda, R(1), a, lda);
  trmm(!upper, upper, true, false, upper ? n1 : n2, upper ? n2 : n1, R(1), a22, lda, off, lda);
  square(upper, n2, a22, lda);
}

#define ORK_TWIN(R)                               \
  template int cholesky(bool, int, R*, int);      \
  template void invert(bool, bool, int, R*, int); \
  template void square(bool, int, R*, int);
ORK_TWIN(double)
ORK_TWIN(float)

}  // namespace ork::dense
