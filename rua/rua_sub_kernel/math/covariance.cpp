// Test and inversion of covariance matrices. Row after row, the lower triangle counts; the
// dense layer, which goes by columns, sees it as the upper one.
#include "base/dense.hpp"
#include "base/export.hpp"
#include "base/scratch.hpp"
#include "ork/ss.h"
#include "ork/ss_math.h"

namespace ork {
namespace {

// Eigenvalues from here on count as positive: 1000 denormal steps.
template <class R>
inline constexpr R kLeast = 4.94e-321;
template <>
inline constexpr float kLeast<float> = 1.401e-42f;

template <class R>
int32_t test_rank(int p, R* a) {
  constexpr R least = kLeast<R>;
  if (p < 1) return ORK_SS_OK;
  if (p == 1) {
    if (a[0] > 0) return ORK_SS_OK;
    if (!(a[0] >= -least)) return ORK_SS_RANK_DEFICIENT;
    a[0] = least;
    return ORK_SS_OK;
  }
  const Scratch<R> block(5 * uint64_t(p));
  if (!block) return ORK_SS_NO_MEMORY;
  R *values = block.get(), *diagonal = values + p, *work = diagonal + p;
  const size_t step = size_t(p) + 1;
  for (int i = 0; i < p; ++i) diagonal[i] = a[i * step];
  // The solver destroys the triangle it reads: let that be a copy of the one that counts.
  for (int i = 0; i < p; ++i)
    for (int j = 0; j < i; ++j) a[j * size_t(p) + i] = a[i * size_t(p) + j];
  const int work_size = 3 * p;
  int info = 0;
  Dense<R>::syev("N", "L", &p, a, &p, values, work, &work_size, &info);
  if (info != 0) return ORK_SS_RANK_EIGEN;
  for (int i = 0; i < p; ++i) a[i * step] = diagonal[i];
  if (values[0] > 0) return ORK_SS_OK;
  int k = 1;
  while (k < p && !(values[k] >= least)) ++k;
  if (k == p) return ORK_SS_RANK_DEFICIENT;
  const R lift = R(0.01) * values[k];
  for (int i = 0; i < p; ++i) a[i * step] += lift;
  return ORK_SS_OK;
}

// Closed forms: cofactors over the determinant.
template <class R>
void invert1(R* a) {
  a[0] = 1 / a[0];
}
template <class R>
void invert2(R* a) {
  const R x = a[0], y = a[2], z = a[3], det = x * z - y * y;
  a[0] = z / det;
  a[2] = -y / det;
  a[3] = x / det;
}
template <class R>
void invert3(R* a) {
  const R a00 = a[0], a10 = a[3], a11 = a[4], a20 = a[6], a21 = a[7], a22 = a[8];
  const R c00 = a11 * a22 - a21 * a21, c10 = a20 * a21 - a10 * a22, c20 = a10 * a21 - a11 * a20;
  const R det = a00 * c00 + a10 * c10 + a20 * c20;
  a[0] = c00 / det;
  a[3] = c10 / det;
  a[4] = (a00 * a22 - a20 * a20) / det;
  a[6] = c20 / det;
  a[7] = (a10 * a20 - a00 * a21) / det;
  a[8] = (a00 * a11 - a10 * a10) / det;
}
template <class R>
constexpr void (*const closed_form[])(R* a) = {invert1<R>, invert2<R>, invert3<R>};

template <class R>
int32_t invert(int p, R* a) {
  if (p < 1) return ORK_SS_OK;
  if (p < 4) {
    closed_form<R>[p - 1](a);
    return ORK_SS_OK;
  }
  int info = 0;
  Dense<R>::potrf("U", &p, a, &p, &info);
  if (info != 0) return ORK_SS_INV_COV_CHOLESKY;
  Dense<R>::potri("U", &p, a, &p, &info);
  return info != 0 ? ORK_SS_INV_COV_INVERSE : ORK_SS_OK;
}

}  // namespace

#define ORK_TEST_COV_RANK(t, R) \
  ORK_EXPORT int32_t __rua##t##TestCovRank(int p, R* a) { return test_rank(p, a); }
ORK_TWINS(ORK_TEST_COV_RANK)
#define ORK_INV_COV(t, R) \
  ORK_EXPORT int32_t __rua##t##InvCov(int p, R* a) { return invert(p, a); }
ORK_TWINS(ORK_INV_COV)

}  // namespace ork
