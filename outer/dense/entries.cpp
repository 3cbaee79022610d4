// The exported names: arguments by pointer, checked, then by value to what computes. That is Eigen
// and code around it (eigen/), or the system's BLAS and LAPACK (system/).
#include <algorithm>

#include "outer/dense/dense.hpp"
#include "outer/dense/eigenvalues.hpp"

namespace ork::dense {
namespace {

template <class R>
int first_zero(int n, const R* a, int lda) {
  for (int i = 0; i < n; ++i)
    if (a[i * (lda + 1)] == R(0)) return i + 1;
  return 0;
}

}  // namespace
}  // namespace ork::dense

using namespace ork::dense;

#define ORK_PRODUCTS(t, R)                                                                         \
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
ORK_PRODUCTS(d, double)
ORK_PRODUCTS(s, float)

#define ORK_FACTORS(t, R)                                                                      \
  ORK_OUTER void ork_lapack_##t##potrf(const char* uplo, const int* n, R* a, const int* lda,   \
                                       int* info) {                                            \
    const Option upper = is_upper(uplo);                                                       \
    *info = !upper.valid ? -1 : *n < 0 ? -2 : !ld_ok(*lda, *n) ? -4 : 0;                       \
    if (*info == 0) *info = cholesky(upper, *n, a, *lda);                                      \
  }                                                                                            \
  ORK_OUTER void ork_lapack_##t##potri(const char* uplo, const int* n, R* a, const int* lda,   \
                                       int* info) {                                            \
    const Option upper = is_upper(uplo);                                                       \
    *info = !upper.valid ? -1 : *n < 0 ? -2 : !ld_ok(*lda, *n) ? -4 : first_zero(*n, a, *lda); \
    if (*info != 0) return;                                                                    \
    invert(upper, false, *n, a, *lda);                                                         \
    square(upper, *n, a, *lda);                                                                \
  }                                                                                            \
  ORK_OUTER void ork_lapack_##t##trtri(const char* uplo, const char* diag, const int* n, R* a, \
                                       const int* lda, int* info) {                            \
    const Option upper = is_upper(uplo), unit = is_unit(diag);                                 \
    *info = !upper.valid ? -1 : !unit.valid ? -2 : *n < 0 ? -3 : !ld_ok(*lda, *n) ? -5 : 0;    \
    if (*info == 0 && !unit) *info = first_zero(*n, a, *lda);                                  \
    if (*info == 0) invert(upper, unit, *n, a, *lda);                                          \
  }
ORK_FACTORS(d, double)
ORK_FACTORS(s, float)

#define ORK_EIGENVALUES(t, R)                                                                   \
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
ORK_EIGENVALUES(d, double)
ORK_EIGENVALUES(s, float)

#define ORK_TRMM(name, R)                                                                       \
  ORK_OUTER void name(const char* side, const char* uplo, const char* transa, const char* diag, \
                      const int* m, const int* n, const R* alpha, const R* a, const int* lda,   \
                      R* b, const int* ldb) {                                                   \
    const Option left = is_left(side), upper = is_upper(uplo), trans = is_transposed(transa),   \
                 unit = is_unit(diag);                                                          \
    if (left.valid && upper.valid && trans.valid && unit.valid && *m >= 0 && *n >= 0 &&         \
        ld_ok(*lda, left ? *m : *n) && ld_ok(*ldb, *m))                                         \
      trmm(left, upper, trans, unit, *m, *n, *alpha, a, *lda, b, *ldb);                         \
  }
#define ORK_PTRMM(name, R)                                                                      \
  ORK_OUTER void name(const char* side, const char* uplo, const char* transa, const char* diag, \
                      const int* m, const int* n, const R* alpha, const R* ap, R* b,            \
                      const int* ldb) {                                                         \
    const Option left = is_left(side), upper = is_upper(uplo), trans = is_transposed(transa),   \
                 unit = is_unit(diag);                                                          \
    if (left.valid && upper.valid && trans.valid && unit.valid && *m >= 0 && *n >= 0 &&         \
        ld_ok(*ldb, *m))                                                                        \
      ptrmm(left, upper, trans, unit, *m, *n, *alpha, ap, b, *ldb);                             \
  }
ORK_TRMM(ork_blas_dtrmm, double)
ORK_TRMM(ork_blas_strmm, float)
ORK_TRMM(ork_blas_xdtrmm_4zem, double)
ORK_TRMM(ork_blas_xstrmm_4zem, float)
ORK_TRMM(ork_blas4zem_dtrmm, double)
ORK_TRMM(ork_blas4zem_strmm, float)
ORK_PTRMM(ork_blas4zem_dptrmm, double)
ORK_PTRMM(ork_blas4zem_sptrmm, float)
