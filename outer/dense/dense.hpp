#pragma once
// What the dense routines share: views of the caller's arrays and the core products, by
// value. The exported names take the same by pointer and check it first.

// The caller's threads are the only ones.
#define EIGEN_DONT_PARALLELIZE
#include <Eigen/Core>
#include <cstdlib>

#include "ork/dense.h"
#include "outer/export.hpp"

namespace ork::dense {

template <class R>
using Columns = Eigen::Matrix<R, Eigen::Dynamic, Eigen::Dynamic>;
template <class R>
using Matrix = Eigen::Map<Columns<R>, 0, Eigen::OuterStride<>>;
template <class R>
using ConstMatrix = Eigen::Map<const Columns<R>, 0, Eigen::OuterStride<>>;
template <class R>
using Vector = Eigen::Map<Eigen::Matrix<R, Eigen::Dynamic, 1>>;
template <class R>
using ConstVector = Eigen::Map<const Eigen::Matrix<R, Eigen::Dynamic, 1>>;

template <class R>
Matrix<R> matrix(R* a, int rows, int cols, int ld) {
  return {a, rows, cols, Eigen::OuterStride<>(ld)};
}
template <class R>
ConstMatrix<R> matrix(const R* a, int rows, int cols, int ld) {
  return {a, rows, cols, Eigen::OuterStride<>(ld)};
}

// An option letter, either case. `flag` tells which of two letters it is; "C" means "T".
struct Option {
  bool valid, flag;
  Option(const char* letter, char off, char on) {
    const char c = *letter & ~0x20;
    flag = c == on;
    valid = flag || c == off;
  }
  operator bool() const { return flag; }
};
inline Option is_left(const char* side) { return {side, 'R', 'L'}; }
inline Option is_upper(const char* uplo) { return {uplo, 'L', 'U'}; }
inline Option is_unit(const char* diag) { return {diag, 'N', 'U'}; }
inline Option wants_vectors(const char* job) { return {job, 'N', 'V'}; }
inline Option is_transposed(const char* trans) {
  return {(*trans & ~0x20) == 'C' ? "T" : trans, 'N', 'T'};
}

inline bool ld_ok(int ld, int rows) { return ld >= 1 && ld >= rows; }

// The leading position of `a` that a triangle's off-diagonal block starts at, when the
// first diagonal block has order n1.
template <class R>
R* off_diagonal(R* a, int lda, int n1, bool upper) {
  return upper ? a + n1 * lda : a + n1;
}

template <class R>
void gemm(bool transa, bool transb, int m, int n, int k, R alpha, const R* a, int lda, const R* b,
          int ldb, R beta, R* c, int ldc);
template <class R>
void syrk(bool upper, bool trans, int n, int k, R alpha, const R* a, int lda, R beta, R* c,
          int ldc);
template <class R>
void trmm(bool left, bool upper, bool trans, bool unit, int m, int n, R alpha, const R* a, int lda,
          R* b, int ldb);

extern template void gemm(bool, bool, int, int, int, double, const double*, int, const double*, int,
                          double, double*, int);
extern template void gemm(bool, bool, int, int, int, float, const float*, int, const float*, int,
                          float, float*, int);
extern template void syrk(bool, bool, int, int, double, const double*, int, double, double*, int);
extern template void syrk(bool, bool, int, int, float, const float*, int, float, float*, int);
extern template void trmm(bool, bool, bool, bool, int, int, double, const double*, int, double*,
                          int);
extern template void trmm(bool, bool, bool, bool, int, int, float, const float*, int, float*, int);

}  // namespace ork::dense
