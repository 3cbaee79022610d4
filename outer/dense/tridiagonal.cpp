// Tridiagonal systems.
#include <cmath>
#include <utility>

#include "outer/dense/dense.hpp"

namespace ork::dense {
namespace {

// Gaussian elimination with partial pivoting. Interchanging rows i and i + 1 brings an
// element two above the diagonal into row i; it takes the place of dl[i], which the
// elimination has just used up.
template <class R>
int solve_pivoting(int n, int nrhs, R* dl, R* d, R* du, R* b, int ldb) {
  for (int i = 0; i + 1 < n; ++i) {
    const bool interchange = std::fabs(dl[i]) > std::fabs(d[i]);
    if (!interchange && d[i] == R(0)) return i + 1;
    if (interchange) {
      std::swap(d[i], dl[i]);
      std::swap(du[i], d[i + 1]);
    }
    const R m = dl[i] / d[i];
    d[i + 1] -= m * du[i];
    dl[i] = 0;
    if (interchange && i + 2 < n) {
      dl[i] = du[i + 1];
      du[i + 1] *= -m;
    }
    for (int j = 0; j < nrhs; ++j) {
      R* const x = b + i + j * ldb;
      if (interchange) std::swap(x[0], x[1]);
      x[1] -= m * x[0];
    }
  }
  if (n > 0 && d[n - 1] == R(0)) return n;
  for (int j = 0; j < nrhs; ++j) {
    R* const x = b + j * ldb;
    for (int i = n - 1; i >= 0; --i) {
      R sum = x[i];
      if (i + 1 < n) sum -= du[i] * x[i + 1];
      if (i + 2 < n) sum -= dl[i] * x[i + 2];
      x[i] = sum / d[i];
    }
  }
  return 0;
}

// Whether elimination without interchanges is safe from both ends: every row between the
// first and the last is dominated by its diagonal, and so are the two rows beside the ends
// when the end rows, whatever they hold, have been eliminated from them.
template <class R>
bool dominated(int n, const R* dl, const R* d, const R* du) {
  bool yes = true;
  for (int i = 1; i + 1 < n; ++i) yes &= std::fabs(d[i]) >= std::fabs(dl[i - 1]) + std::fabs(du[i]);
  const int m = n - 2;
  return yes && std::fabs(dl[0]) <= std::fabs(d[0]) && std::fabs(du[m]) <= std::fabs(d[m + 1]) &&
         std::fabs(d[1] - dl[0] * du[0] / d[0]) >= std::fabs(du[1]) &&
         std::fabs(d[m] - du[m] * dl[m] / d[m + 1]) >= std::fabs(dl[m - 1]);
}

// Elimination from both ends at once, which meet in the middle: two recurrences of half the
// length side by side, where a step of either waits for a division. One right side, n > 3.
template <class R>
int solve_from_both_ends(int n, R* dl, R* d, R* du, R* b) {
  const int half = n / 2;  // rows above it are eliminated downwards, the others upwards
  int bad = 0;             // 1 + the row whose pivot has no reciprocal
  const auto down = [&](int i) {
    const R r = R(1) / d[i];
    if (std::isinf(r)) bad = i + 1;
    d[i + 1] -= dl[i] * du[i] * r;
    b[i] *= r, du[i] *= r;
    b[i + 1] -= dl[i] * b[i];
  };
  const auto up = [&](int i) {
    const R r = R(1) / d[i];
    if (std::isinf(r)) bad = i + 1;
    d[i - 1] -= du[i - 1] * dl[i - 1] * r;
    b[i] *= r, dl[i - 1] *= r;
    b[i - 1] -= du[i - 1] * b[i];
  };
  for (int i = 0; i + 1 < half; ++i) {
    down(i), up(n - 1 - i);
    if (bad != 0) return bad;
  }
  const int top = half - 1;
  const bool odd = n - half > half;  // the lower part has a row more
  if (odd) up(half + 1);
  down(top);
  if (bad == 0 && d[half] == R(0)) bad = half + 1;
  if (bad != 0) return bad;
  b[half] /= d[half];
  b[top] -= du[top] * b[half];
  R above = b[top], below = b[half];
  if (odd) below = b[half + 1] -= dl[half] * below;
  for (int i = top - 1, k = n - 1 - i; i >= 0; --i, ++k) {
    above = b[i] -= du[i] * above;
    below = b[k] -= dl[k - 1] * below;
  }
  return 0;
}

template <class R>
int solve(int n, int nrhs, R* dl, R* d, R* du, R* b, int ldb) {
  return nrhs == 1 && n > 3 && dominated(n, dl, d, du) ? solve_from_both_ends(n, dl, d, du, b)
                                                       : solve_pivoting(n, nrhs, dl, d, du, b, ldb);
}

// L D U with unit bidiagonal L and U: afterwards dl and du hold these two's off-diagonals
// and d the reciprocals of D, so that the solver does not divide and each step of its two
// recurrences is one multiplication and one subtraction.
template <class R>
int factor(int n, R* dl, R* d, R* du) {
  for (int i = 0; i < n; ++i) {
    const R reciprocal = R(1) / d[i];
    if (std::isinf(reciprocal)) return i + 1;
    d[i] = reciprocal;
    if (i + 1 == n) break;
    dl[i] *= reciprocal;
    d[i + 1] -= dl[i] * du[i];
    du[i] *= reciprocal;
  }
  return 0;
}

// K columns side by side hide the latency of the recurrences.
template <int K, class R>
void solve_columns(int n, const R* dl, const R* d, const R* du, R* b, int ldb) {
  R x[K] = {};
  for (int i = 0; i < n; ++i)
    for (int c = 0; c < K; ++c) {
      x[c] = i == 0 ? b[c * ldb] : b[i + c * ldb] - dl[i - 1] * x[c];
      b[i + c * ldb] = x[c];
    }
  for (int i = n - 1; i >= 0; --i)
    for (int c = 0; c < K; ++c) {
      const R y = b[i + c * ldb] * d[i];
      x[c] = i == n - 1 ? y : y - du[i] * x[c];
      b[i + c * ldb] = x[c];
    }
}

template <class R>
void solve_factored(int n, int nrhs, const R* dl, const R* d, const R* du, R* b, int ldb) {
  int j = 0;
  for (; j + 4 <= nrhs; j += 4) solve_columns<4>(n, dl, d, du, b + j * ldb, ldb);
  for (; j < nrhs; ++j) solve_columns<1>(n, dl, d, du, b + j * ldb, ldb);
}

}  // namespace
}  // namespace ork::dense

using namespace ork::dense;

#define ORK_TWIN(t, R)                                                                         \
  ORK_OUTER void t##dtsvb_4dfl(const int* n, const int* nrhs, R* dl, R* d, R* du, R* b,        \
                               const int* ldb, int* info) {                                    \
    *info = *n < 0 ? -1 : *nrhs < 0 ? -2 : !ld_ok(*ldb, *n) ? -7 : 0;                          \
    if (*info == 0) *info = solve(*n, *nrhs, dl, d, du, b, *ldb);                              \
  }                                                                                            \
  ORK_OUTER void t##dttrfb_4dfl(const int* n, R* dl, R* d, R* du, int* info) {                 \
    *info = *n < 0 ? -1 : factor(*n, dl, d, du);                                               \
  }                                                                                            \
  ORK_OUTER void t##dttrsb_4dfl(const char* trans, const int* n, const int* nrhs, const R* dl, \
                                const R* d, const R* du, R* b, const int* ldb, int* info) {    \
    const Option plain(trans, 'N', 'N');                                                       \
    *info = !plain.valid ? -1 : *n < 0 ? -2 : *nrhs < 0 ? -3 : !ld_ok(*ldb, *n) ? -8 : 0;      \
    if (*info == 0) solve_factored(*n, *nrhs, dl, d, du, b, *ldb);                             \
  }
ORK_TWIN(d, double)
ORK_TWIN(s, float)
