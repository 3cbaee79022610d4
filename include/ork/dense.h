/* Dense layer: the linear algebra that random streams, statistics and data fitting call.
 *
 * libork_outer.so defines these names; the kernels call them through the PLT, so a program
 * may define its own and have the library use them.
 *
 * Conventions of every routine:
 *   - All arguments pass by pointer. Integers are 32 bits wide; options are one letter, in
 *     either case: trans "N", "T" (or "C", the same for real data), uplo "U" or "L", side
 *     "L" or "R", diag "N" or "U" (unit), job "N" or "V".
 *   - Matrices are stored by columns: element (i, j) at a[i + j * lda], lda at least the
 *     number of rows and at least 1. Packed triangles are stored by columns with no gaps.
 *   - Of a symmetric or triangular matrix only the named triangle is read or written, and
 *     nothing between a column's end and the next column's start.
 *   - A result scaled by beta = 0 is not read: what it held, NaN too, vanishes. With
 *     alpha = 0 the factors are not read.
 *   - Inputs and outputs do not overlap. All arrays belong to the caller; every routine is
 *     reentrant and runs on the calling thread.
 *   - Large products and factors copy blocks of their operands, some hundred rows or columns at
 *     a time, to memory from ork_serv_allocate. Where it gives none they go on in small
 *     blocks on the stack: slower, rounded differently.
 *   - With a wrong option, size or leading dimension nothing is written; a routine with
 *     `info` then stores minus the position of the first wrong argument. info = 0: success.
 *
 * The d form is described; each s form is the same over float.
 */
#ifndef ORK_DENSE_H
#define ORK_DENSE_H

#ifdef __cplusplus
extern "C" {
#endif

/* Products ------------------------------------------------------------------------- */

/* C (m by n) := alpha op(A) op(B) + beta C, with op(A) m by k and op(B) k by n. */
void ork_blas_dgemm(const char* transa, const char* transb, const int* m, const int* n,
                    const int* k, const double* alpha, const double* a, const int* lda,
                    const double* b, const int* ldb, const double* beta, double* c, const int* ldc);
void ork_blas_sgemm(const char* transa, const char* transb, const int* m, const int* n,
                    const int* k, const float* alpha, const float* a, const int* lda,
                    const float* b, const int* ldb, const float* beta, float* c, const int* ldc);

/* y := alpha op(A) x + beta y, with A m by n. A negative increment walks its vector from
 * the far end; an increment of 0 is wrong. */
void ork_blas_dgemv(const char* trans, const int* m, const int* n, const double* alpha,
                    const double* a, const int* lda, const double* x, const int* incx,
                    const double* beta, double* y, const int* incy);
void ork_blas_sgemv(const char* trans, const int* m, const int* n, const float* alpha,
                    const float* a, const int* lda, const float* x, const int* incx,
                    const float* beta, float* y, const int* incy);

/* A (n by n, symmetric) := A + alpha x x'. */
void ork_blas_dsyr(const char* uplo, const int* n, const double* alpha, const double* x,
                   const int* incx, double* a, const int* lda);
void ork_blas_ssyr(const char* uplo, const int* n, const float* alpha, const float* x,
                   const int* incx, float* a, const int* lda);

/* C (n by n, symmetric) := alpha A A' + beta C with A n by k (trans "N"), or
 * alpha A' A + beta C with A k by n (trans "T"). */
void ork_blas_dsyrk(const char* uplo, const char* trans, const int* n, const int* k,
                    const double* alpha, const double* a, const int* lda, const double* beta,
                    double* c, const int* ldc);
void ork_blas_ssyrk(const char* uplo, const char* trans, const int* n, const int* k,
                    const float* alpha, const float* a, const int* lda, const float* beta, float* c,
                    const int* ldc);

/* C (m by n) := alpha A B + beta C (side "L") or alpha B A + beta C (side "R"), with A
 * symmetric. */
void ork_blas_xdsymm(const char* side, const char* uplo, const int* m, const int* n,
                     const double* alpha, const double* a, const int* lda, const double* b,
                     const int* ldb, const double* beta, double* c, const int* ldc);
void ork_blas_xssymm(const char* side, const char* uplo, const int* m, const int* n,
                     const float* alpha, const float* a, const int* lda, const float* b,
                     const int* ldb, const float* beta, float* c, const int* ldc);

/* B (m by n) := alpha op(A) B (side "L") or alpha B op(A) (side "R"), in place, with A
 * triangular. One routine under three names; the second is meant for dimensions below 11,
 * the third for those from 11 on, and each serves all. */
void ork_blas_dtrmm(const char* side, const char* uplo, const char* transa, const char* diag,
                    const int* m, const int* n, const double* alpha, const double* a,
                    const int* lda, double* b, const int* ldb);
void ork_blas_strmm(const char* side, const char* uplo, const char* transa, const char* diag,
                    const int* m, const int* n, const float* alpha, const float* a, const int* lda,
                    float* b, const int* ldb);
void ork_blas_xdtrmm_4zem(const char* side, const char* uplo, const char* transa, const char* diag,
                          const int* m, const int* n, const double* alpha, const double* a,
                          const int* lda, double* b, const int* ldb);
void ork_blas_xstrmm_4zem(const char* side, const char* uplo, const char* transa, const char* diag,
                          const int* m, const int* n, const float* alpha, const float* a,
                          const int* lda, float* b, const int* ldb);
void ork_blas4zem_dtrmm(const char* side, const char* uplo, const char* transa, const char* diag,
                        const int* m, const int* n, const double* alpha, const double* a,
                        const int* lda, double* b, const int* ldb);
void ork_blas4zem_strmm(const char* side, const char* uplo, const char* transa, const char* diag,
                        const int* m, const int* n, const float* alpha, const float* a,
                        const int* lda, float* b, const int* ldb);

/* The same with A packed. */
void ork_blas4zem_dptrmm(const char* side, const char* uplo, const char* transa, const char* diag,
                         const int* m, const int* n, const double* alpha, const double* ap,
                         double* b, const int* ldb);
void ork_blas4zem_sptrmm(const char* side, const char* uplo, const char* transa, const char* diag,
                         const int* m, const int* n, const float* alpha, const float* ap, float* b,
                         const int* ldb);

/* Factors and inverses -------------------------------------------------------------- */

/* Cholesky factor in place: A = U'U or A = LL'. info = i > 0: the leading minor of order i
 * is not positive (a NaN is not); the triangle is then partly overwritten. */
void ork_lapack_dpotrf(const char* uplo, const int* n, double* a, const int* lda, int* info);
void ork_lapack_spotrf(const char* uplo, const int* n, float* a, const int* lda, int* info);

/* The factor of potrf is replaced by the same triangle of the inverse matrix. info = i > 0:
 * diagonal element i of the factor is 0; nothing is written. */
void ork_lapack_dpotri(const char* uplo, const int* n, double* a, const int* lda, int* info);
void ork_lapack_spotri(const char* uplo, const int* n, float* a, const int* lda, int* info);

/* Inverse of a triangular matrix in place. info = i > 0: diagonal element i is 0; nothing
 * is written. */
void ork_lapack_dtrtri(const char* uplo, const char* diag, const int* n, double* a, const int* lda,
                       int* info);
void ork_lapack_strtri(const char* uplo, const char* diag, const int* n, float* a, const int* lda,
                       int* info);

/* Eigenvalues of symmetric matrices -------------------------------------------------- */

/* Eigenvalues in w, ascending. Job "V": orthonormal eigenvectors replace A, vector k in
 * column k. Job "N": the named triangle of A is destroyed, the other is intact.
 *
 * work: lwork reals, lwork at least max(1, 3n - 1); lwork = -1 only stores the size needed
 * in work[0]. Job "V" with lda = n, and job "N" with lda = n and uplo "L", work inside A;
 * the other cases take n * n reals from ork_serv_allocate.
 *
 * info > 0: no convergence, A and w are undefined: n also for an infinite or NaN element,
 * n + 1 when there is no memory (then nothing was written). */
void ork_lapack_dsyev(const char* jobz, const char* uplo, const int* n, double* a, const int* lda,
                      double* w, double* work, const int* lwork, int* info);
void ork_lapack_ssyev(const char* jobz, const char* uplo, const int* n, float* a, const int* lda,
                      float* w, float* work, const int* lwork, int* info);

/* The same for a packed triangle, which is kept; job "V" stores the eigenvectors in z, n by
 * n with leading dimension ldz; job "N" does not touch z and takes n * n reals from
 * ork_serv_allocate. For n > 1, lwork is at least n*n + 6n + 1 and liwork 5n + 3 with job
 * "V", 2n and 1 with job "N"; for n below 2 both are at least 1. lwork = -1 or liwork = -1
 * only stores both sizes in work[0] and iwork[0]. iwork has no other use. */
void ork_lapack_dspevd(const char* jobz, const char* uplo, const int* n, double* ap, double* w,
                       double* z, const int* ldz, double* work, const int* lwork, int* iwork,
                       const int* liwork, int* info);
void ork_lapack_sspevd(const char* jobz, const char* uplo, const int* n, float* ap, float* w,
                       float* z, const int* ldz, float* work, const int* lwork, int* iwork,
                       const int* liwork, int* info);

/* Tridiagonal systems ----------------------------------------------------------------
 *
 * Row i of the matrix is dl[i - 1], d[i], du[i]: dl and du hold n - 1 reals, d holds n. */

/* Solves for nrhs right sides, the columns of b, by elimination with row interchanges
 * wherever the element below the pivot is the larger one. One right side with a matrix
 * dominated by its diagonal is eliminated from both ends at once, which takes half the
 * time. b holds the solution; dl, d and du are overwritten. info = i > 0: pivot i is exactly
 * 0, the matrix is singular (from both ends: 0 or so small that its reciprocal overflows);
 * all arrays are then partly overwritten. */
void ddtsvb_4dfl(const int* n, const int* nrhs, double* dl, double* d, double* du, double* b,
                 const int* ldb, int* info);
void sdtsvb_4dfl(const int* n, const int* nrhs, float* dl, float* d, float* du, float* b,
                 const int* ldb, int* info);

/* Factors in place for dttrsb. There is no room for the fill-in of row interchanges, so
 * there are none: meant for matrices that need none, such as those dominated by their
 * diagonal. The factors are opaque. info = i > 0: pivot i is 0, or so small that its
 * reciprocal overflows. */
void ddttrfb_4dfl(const int* n, double* dl, double* d, double* du, int* info);
void sdttrfb_4dfl(const int* n, float* dl, float* d, float* du, int* info);

/* Solves with those factors, which any number of threads may share; trans is "N". A right
 * side gives the same bits alone and among others. */
void ddttrsb_4dfl(const char* trans, const int* n, const int* nrhs, const double* dl,
                  const double* d, const double* du, double* b, const int* ldb, int* info);
void sdttrsb_4dfl(const char* trans, const int* n, const int* nrhs, const float* dl, const float* d,
                  const float* du, float* b, const int* ldb, int* info);

#ifdef __cplusplus
}
#endif

#endif
