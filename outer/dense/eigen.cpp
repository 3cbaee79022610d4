// Eigenvalues and eigenvectors of symmetric matrices: Householder reduction to tridiagonal
// form and implicit QR steps. Eigen's steps are called one by one, since its solver class
// would hold a second copy of the matrix.
#include <Eigen/Eigenvalues>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "ork/serv.h"
#include "outer/dense/dense.hpp"

namespace ork::dense {
namespace {

// Room for n * n reals, or null.
template <class R>
struct Block {
  R* data = nullptr;
  explicit Block(long long n) {
    const long long bytes = n * n * sizeof(R);
    if (bytes <= PTRDIFF_MAX) data = static_cast<R*>(ork_serv_allocate(size_t(bytes), 128));
  }
  ~Block() { ork_serv_deallocate(data); }
  Block(const Block&) = delete;
};

// Eigenvalues to w and, if asked, eigenvectors to q, which holds the matrix (n by n, no
// gaps, lower triangle read). work: 3n - 1 reals.
template <class R>
int decompose(bool vectors, int n, R* q, R* w, R* work) {
  auto Q = matrix(q, n, n, n);
  R largest = 0;
  for (int j = 0; j < n; ++j)
    for (int i = j; i < n; ++i) {
      const R x = std::fabs(Q(i, j));
      if (!(x <= std::numeric_limits<R>::max())) return n;
      largest = std::max(largest, x);
    }
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

// Fills the lower triangle of q (n by n, no gaps) from element(i, j), i >= j.
template <class R, class Element>
void gather(int n, Element element, R* q) {
  for (int j = 0; j < n; ++j)
    for (int i = j; i < n; ++i) q[i + j * n] = element(i, j);
}

template <class R>
int syev(bool vectors, bool upper, int n, R* a, int lda, R* w, R* work) {
  if (n == 0) return 0;
  const auto element = [=](int i, int j) { return upper ? a[j + i * lda] : a[i + j * lda]; };
  if (lda == n && (vectors || !upper)) {
    if (upper) gather(n, element, a);
    return decompose(vectors, n, a, w, work);
  }
  const Block<R> block(n);
  R* const q = block.data;
  if (q == nullptr) return n + 1;
  gather(n, element, q);
  const int info = decompose(vectors, n, q, w, work);
  if (vectors && info == 0) matrix(a, n, n, lda) = matrix(q, n, n, n);
  return info;
}

template <class R>
int spevd(bool vectors, bool upper, int n, const R* ap, R* w, R* z, int ldz, R* work) {
  if (n == 0) return 0;
  const auto element = [=](int i, int j) {
    return upper ? ap[j + i * (i + 1) / 2] : ap[i + j * (2 * n - j - 1) / 2];
  };
  const bool in_place = vectors && ldz == n;
  const Block<R> block(vectors ? 0 : n);
  R* const q = in_place ? z : vectors ? work + 3 * n : block.data;
  if (q == nullptr) return n + 1;
  gather(n, element, q);
  const int info = decompose(vectors, n, q, w, work);
  if (vectors && !in_place && info == 0) matrix(z, n, n, ldz) = matrix(q, n, n, n);
  return info;
}

struct Sizes {
  long long reals;
  int ints;
};
Sizes spevd_sizes(bool vectors, long long n) {
  if (n < 2) return {1, 1};
  return vectors ? Sizes{n * n + 6 * n + 1, int(5 * n + 3)} : Sizes{2 * n, 1};
}

}  // namespace
}  // namespace ork::dense

using namespace ork::dense;

#define ORK_TWIN(t, R)                                                                          \
  ORK_OUTER void ork_lapack_##t##syev(const char* jobz, const char* uplo, const int* n, R* a,   \
                                      const int* lda, R* w, R* work, const int* lwork,          \
                                      int* info) {                                              \
    const Option vectors = wants_vectors(jobz), upper = is_upper(uplo);                         \
    const long long needed = std::max(1LL, 3LL * *n - 1);                                       \
    *info = !vectors.valid                    ? -1                                              \
            : !upper.valid                    ? -2                                              \
            : *n < 0                          ? -3                                              \
            : !ld_ok(*lda, *n)                ? -5                                              \
            : *lwork < needed && *lwork != -1 ? -8                                              \
                                              : 0;                                              \
    if (*info == 0 && *lwork != -1) *info = syev<R>(vectors, upper, *n, a, *lda, w, work);      \
    if (*info == 0) work[0] = R(needed);                                                        \
  }                                                                                             \
  ORK_OUTER void ork_lapack_##t##spevd(const char* jobz, const char* uplo, const int* n, R* ap, \
                                       R* w, R* z, const int* ldz, R* work, const int* lwork,   \
                                       int* iwork, const int* liwork, int* info) {              \
    const Option vectors = wants_vectors(jobz), upper = is_upper(uplo);                         \
    const Sizes needed = spevd_sizes(vectors, *n);                                              \
    const bool query = *lwork == -1 || *liwork == -1;                                           \
    *info = !vectors.valid                    ? -1                                              \
            : !upper.valid                    ? -2                                              \
            : *n < 0                          ? -3                                              \
            : !ld_ok(*ldz, vectors ? *n : 1)  ? -7                                              \
            : !query && *lwork < needed.reals ? -9                                              \
            : !query && *liwork < needed.ints ? -11                                             \
                                              : 0;                                              \
    if (*info == 0 && !query) *info = spevd<R>(vectors, upper, *n, ap, w, z, *ldz, work);       \
    if (*info != 0) return;                                                                     \
    work[0] = R(needed.reals);                                                                  \
    iwork[0] = needed.ints;                                                                     \
  }
ORK_TWIN(d, double)
ORK_TWIN(s, float)
