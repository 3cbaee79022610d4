// Householder reduction to tridiagonal form and implicit QR steps. Eigen's steps are called one by
// one, since its solver class would hold a second copy of the matrix.
#include <Eigen/Eigenvalues>
#include <algorithm>
#include <cmath>
#include <limits>

#include "outer/dense/eigen/views.hpp"

namespace ork::dense {

template <class R>
int decompose(bool vectors, int n, R* q, R* w, R* work) {
  auto Q = matrix(q, n, n, n);
  R largest = 0;
  for (int j = 0; j < n; ++j)
    for (int i = j; i < n; ++i) largest = std::max(largest, std::fabs(Q(i, j)));
  // The QR steps drop an off-diagonal element by an absolute measure that supposes a
  // largest element near 1. A power of two keeps the digits.
  constexpr int reach = std::numeric_limits<R>::max_exponent - 2;
  int exponent = 0;
  std::frexp(largest, &exponent);
  exponent = std::clamp(exponent, -reach, reach);
  Q.template triangularView<Eigen::Lower>() *= std::ldexp(R(1), -exponent);

  Vector<R> diagonal(w, n), below(work, n - 1), tau(work + n - 1, n - 1);
  Eigen::internal::tridiagonalization_inplace(Q, tau);
  diagonal = Q.diagonal();
  below = Q.template diagonal<-1>();
  if (vectors) {
    Eigen::Map<Eigen::Matrix<R, 1, Eigen::Dynamic>> scratch(work + 2 * (n - 1), n);
    Eigen::householderSequence(Q, tau).setLength(n - 1).setShift(1).evalTo(Q, scratch);
  }
  constexpr int steps = 30;  // per eigenvalue; two or three are usual
  if (Eigen::internal::computeFromTridiagonal_impl(diagonal, below, steps, vectors, Q) !=
      Eigen::Success)
    return n;
  diagonal *= std::ldexp(R(1), exponent);
  return 0;
}
template int decompose(bool, int, double*, double*, double*);
template int decompose(bool, int, float*, float*, float*);

}  // namespace ork::dense
