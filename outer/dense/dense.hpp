#pragma once
// What the dense routines share: options, and the routines that compute, by value and for arguments
// that are known to be right. eigen/ or system/ has the products and the
// eigenvalues.
#include "ork/dense.h"
#include "outer/export.hpp"

namespace ork::dense {

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

template <class R>
void gemm(bool transa, bool transb, int m, int n, int k, R alpha, const R* a, int lda, const R* b,
          int ldb, R beta, R* c, int ldc);
template <class R>
void gemv(bool trans, int m, int n, R alpha, const R* a, int lda, const R* x, int incx, R beta,
          R* y, int incy);
template <class R>
void syr(bool upper, int n, R alpha, const R* x, int incx, R* a, int lda);
template <class R>
void syrk(bool upper, bool trans, int n, int k, R alpha, const R* a, int lda, R beta, R* c,
          int ldc);
template <class R>
void symm(bool left, bool upper, int m, int n, R alpha, const R* a, int lda, const R* b, int ldb,
          R beta, R* c, int ldc);
template <class R>
void trmm(bool left, bool upper, bool trans, bool unit, int m, int n, R alpha, const R* a, int lda,
          R* b, int ldb);

// The same with A packed.
template <class R>
void ptrmm(bool left, bool upper, bool trans, bool unit, int m, int n, R alpha, const R* ap, R* b,
           int ldb);

// U'U = A. The result is the order of the first minor that is not positive, or 0.
template <class R>
int cholesky(bool upper, int n, R* a, int lda);
// No element of the diagonal is 0.
template <class R>
void invert(bool upper, bool unit, int n, R* a, int lda);
// The triangle of U U' replaces U; of L'L, L.
template <class R>
void square(bool upper, int n, R* a, int lda);

// Eigenvalues to w, ascending, and if asked for eigenvectors to q, which holds the matrix (n by n,
// no gaps, lower triangle read, all elements finite). work: 3n - 1 reals. 0, or n without
// convergence.
template <class R>
int decompose(bool vectors, int n, R* q, R* w, R* work);

}  // namespace ork::dense
