// The dense routines of a BLAS and a LAPACK with Fortran names and 32-bit integers. What
// stands on products stays our own: a library may multiply the zeros of the other triangle or go on
// over a NaN, and the spotrf of OpenBLAS 0.3.21 for i386 is wrong at order 31 on some processors.
#include <cmath>

#include "outer/dense/dense.hpp"

namespace ork::dense {
namespace {

#define ORK_IMPORTS(t, R)                                                                         \
  extern "C" {                                                                                    \
  void t##gemm_(const char*, const char*, const int*, const int*, const int*, const R*, const R*, \
                const int*, const R*, const int*, const R*, R*, const int*);                      \
  void t##gemv_(const char*, const int*, const int*, const R*, const R*, const int*, const R*,    \
                const int*, const R*, R*, const int*);                                            \
  void t##syr_(const char*, const int*, const R*, const R*, const int*, R*, const int*);          \
  void t##syrk_(const char*, const char*, const int*, const int*, const R*, const R*, const int*, \
                const R*, R*, const int*);                                                        \
  void t##symm_(const char*, const char*, const int*, const int*, const R*, const R*, const int*, \
                const R*, const int*, const R*, R*, const int*);                                  \
  void t##syev_(const char*, const char*, const int*, R*, const int*, R*, R*, const int*, int*);  \
  }
ORK_IMPORTS(d, double)
ORK_IMPORTS(s, float)
#undef ORK_IMPORTS

const char* letter(bool flag, const char* on, const char* off) { return flag ? on : off; }
const char* transposed(bool flag) { return letter(flag, "T", "N"); }
const char* triangle(bool upper) { return letter(upper, "U", "L"); }
const char* side(bool left) { return letter(left, "L", "R"); }

}  // namespace

#define ORK_ROUTINES(t, R)                                                                        \
  template <>                                                                                     \
  void gemm(bool transa, bool transb, int m, int n, int k, R alpha, const R* a, int lda,          \
            const R* b, int ldb, R beta, R* c, int ldc) {                                         \
    t##gemm_(transposed(transa), transposed(transb), &m, &n, &k, &alpha, a, &lda, b, &ldb, &beta, \
             c, &ldc);                                                                            \
  }                                                                                               \
  template <>                                                                                     \
  void gemv(bool trans, int m, int n, R alpha, const R* a, int lda, const R* x, int incx, R beta, \
            R* y, int incy) {                                                                     \
    t##gemv_(transposed(trans), &m, &n, &alpha, a, &lda, x, &incx, &beta, y, &incy);              \
  }                                                                                               \
  template <>                                                                                     \
  void syr(bool upper, int n, R alpha, const R* x, int incx, R* a, int lda) {                     \
    t##syr_(triangle(upper), &n, &alpha, x, &incx, a, &lda);                                      \
  }                                                                                               \
  template <>                                                                                     \
  void syrk(bool upper, bool trans, int n, int k, R alpha, const R* a, int lda, R beta, R* c,     \
            int ldc) {                                                                            \
    t##syrk_(triangle(upper), transposed(trans), &n, &k, &alpha, a, &lda, &beta, c, &ldc);        \
  }                                                                                               \
  template <>                                                                                     \
  void symm(bool left, bool upper, int m, int n, R alpha, const R* a, int lda, const R* b,        \
            int ldb, R beta, R* c, int ldc) {                                                     \
    t##symm_(side(left), triangle(upper), &m, &n, &alpha, a, &lda, b, &ldb, &beta, c, &ldc);      \
  }                                                                                               \
  template <>                                                                                     \
  int decompose(bool vectors, int n, R* q, R* w, R* work) {                                       \
    const int most = 3 * n - 1;                                                                   \
    int info;                                                                                     \
    t##syev_(letter(vectors, "V", "N"), "L", &n, q, &n, w, work, &most, &info);                   \
    return info == 0 ? 0 : n;                                                                     \
  }
ORK_ROUTINES(d, double)
ORK_ROUTINES(s, float)

}  // namespace ork::dense
