#pragma once
// The caller's arrays as Eigen sees them.

// The caller's threads are the only ones.
#define EIGEN_DONT_PARALLELIZE
#include <Eigen/Core>

#include "outer/dense/dense.hpp"

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

// The leading position of `a` that a triangle's off-diagonal block starts at, when the
// first diagonal block has order n1.
template <class R>
R* off_diagonal(R* a, int lda, int n1, bool upper) {
  return upper ? a + n1 * lda : a + n1;
}

}  // namespace ork::dense
