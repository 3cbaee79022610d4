// Product with a triangle in place, full or packed.
//
// The triangle is cut into small blocks, each copied to the stack with op and alpha
// applied: full and packed storage differ only in how an element is fetched. A diagonal
// block multiplies a copy of its rows of B, an off-diagonal one goes through gemm. Rows are
// finished in the order that leaves those still needed untouched. Side R is side L of the
// transposed B, whose strides are exchanged.
#include <algorithm>

#include "outer/dense/dense.hpp"

namespace ork::dense {
namespace {

constexpr int block = 32;           // order of a block of the triangle
constexpr int chunk_reals = 32768;  // of B worked on at a time, to stay in cache

template <class R>
struct Panel {
  R* data;
  int row, col;  // strides
  R* at(int i, int j) const { return data + i * row + j * col; }
};

// rows [0, n) of x := T x, with T the dense block t[i * block + k] and its zeros skipped.
// Two registers of columns go side by side.
template <class R>
void multiply_diagonal(bool upper, int n, const R* t, Panel<R> x, int cols) {
  typedef R Lanes __attribute__((vector_size(16)));
  constexpr int lanes = sizeof(Lanes) / sizeof(R);
  for (int j = 0; j < cols; j += 2 * lanes) {
    const int width = std::min(2 * lanes, cols - j);
    Lanes copy[block][2] = {};
    for (int c = 0; c < width; ++c)
      for (int k = 0; k < n; ++k) copy[k][c / lanes][c % lanes] = *x.at(k, j + c);
    for (int i = 0; i < n; ++i) {
      Lanes sum[2] = {};
      for (int k = upper ? i : 0, end = upper ? n : i + 1; k < end; ++k) {
        sum[0] += t[i * block + k] * copy[k][0];
        sum[1] += t[i * block + k] * copy[k][1];
      }
      for (int c = 0; c < width; ++c) *x.at(i, j + c) = sum[c / lanes][c % lanes];
    }
  }
}

// x(i0..) += T x(k0..) for an off-diagonal block of rows by inner elements.
template <class R>
void add_product(int rows, int inner, const R* t, Panel<R> x, int i0, int k0, int cols) {
  if (x.row == 1)  // t is stored by rows: its transpose is what columns see
    gemm(true, false, rows, cols, inner, R(1), t, block, x.at(k0, 0), x.col, R(1), x.at(i0, 0),
         x.col);
  else
    gemm(false, false, cols, rows, inner, R(1), x.at(k0, 0), x.row, t, block, R(1), x.at(i0, 0),
         x.row);
}

// x (n by cols) := T x, with element (i, k) of the triangle T from at(i, k).
template <class R, class At>
void multiply(bool upper, int n, At at, Panel<R> x, int cols) {
  alignas(16) R t[block * block];
  const auto fetch = [&](int i0, int rows, int k0, int inner) {
    for (int i = 0; i < rows; ++i)
      for (int k = 0; k < inner; ++k) t[i * block + k] = at(i0 + i, k0 + k);
  };
  const int blocks = (n + block - 1) / block;
  for (int step = 0; step < blocks; ++step) {
    const int i0 = (upper ? step : blocks - 1 - step) * block;
    const int rows = std::min(block, n - i0);
    for (int i = 0; i < rows; ++i)
      for (int k = upper ? i : 0, end = upper ? rows : i + 1; k < end; ++k)
        t[i * block + k] = at(i0 + i, i0 + k);
    multiply_diagonal(upper, rows, t, Panel<R>{x.at(i0, 0), x.row, x.col}, cols);
    for (int k0 = upper ? i0 + rows : 0, end = upper ? n : i0; k0 < end; k0 += block) {
      const int inner = std::min(block, end - k0);
      fetch(i0, rows, k0, inner);
      add_product(rows, inner, t, x, i0, k0, cols);
    }
  }
}

// B := alpha op(A) B or alpha B op(A), with element (i, k) of the stored A from stored(i, k).
template <class R, class Stored>
void triangular_product(bool left, bool upper, bool trans, bool unit, int m, int n, R alpha,
                        Stored stored, R* b, int ldb) {
  if (alpha == R(0)) {
    for (int j = 0; j < n; ++j) std::fill_n(b + j * ldb, m, R(0));
    return;
  }
  const bool flip = trans == left;  // the stored triangle is seen transposed
  const auto at = [=](int i, int k) {
    return unit && i == k ? alpha : alpha * (flip ? stored(k, i) : stored(i, k));
  };
  const int order = left ? m : n, cols = left ? n : m;
  const int chunk = std::max(chunk_reals / std::max(order, 1), 2 * block);
  for (int j = 0; j < cols; j += chunk)
    multiply(upper != flip, order, at,
             left ? Panel<R>{b + j * ldb, 1, ldb} : Panel<R>{b + j, ldb, 1},
             std::min(chunk, cols - j));
}

}  // namespace

template <class R>
void trmm(bool left, bool upper, bool trans, bool unit, int m, int n, R alpha, const R* a, int lda,
          R* b, int ldb) {
  const auto stored = [=](int i, int k) { return a[i + k * lda]; };
  triangular_product(left, upper, trans, unit, m, n, alpha, stored, b, ldb);
}

template <class R>
void ptrmm(bool left, bool upper, bool trans, bool unit, int m, int n, R alpha, const R* ap, R* b,
           int ldb) {
  const int order = left ? m : n;
  const auto stored = [=](int i, int k) {
    return ap[i + k * (upper ? k + 1 : 2 * order - k - 1) / 2];
  };
  triangular_product(left, upper, trans, unit, m, n, alpha, stored, b, ldb);
}

#define ORK_TWIN(R)                                                                \
  template void trmm(bool, bool, bool, bool, int, int, R, const R*, int, R*, int); \
  template void ptrmm(bool, bool, bool, bool, int, int, R, const R*, R*, int);
ORK_TWIN(double)
ORK_TWIN(float)

}  // namespace ork::dense
