/* Helpers of random streams and statistics: selection, sorting, the chi-square distribution,
 * the test and inversion of covariance matrices, scalar functions.
 *
 * Everything runs on the calling thread and keeps no state. Routines with s in the place of d
 * are the same over float. Where NaN may stand among sorted values, all values survive, but
 * in no useful order (radix sorts: by the image, NaN beyond the infinities).
 */
#ifndef ORK_SS_MATH_H
#define ORK_SS_MATH_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Selection and sorting, ascending --------------------------------------------------- */

/* The element that sorting would put at place k, 0 <= k < n. Reorders a: nothing before
 * place k is above it, nothing behind is below. Time linear in n, on any input: up to 20
 * comparisons an element, about 3 on the mean. */
double __ruadQSortSelect(int n, double* a, int k);
float __ruasQSortSelect(int n, float* a, int k);

/* Sorts a[0..n-1], or the n elements a[i * stride]. Time n log n on the mean, without memory
 * beyond 1 KB of stack. */
void __ruadQSort(int n, double* a);
void __ruasQSort(int n, float* a);
void __ruadQSortStep(int n, double* a, int stride);
void __ruasQSortStep(int n, float* a, int stride);

/* Sorts keys; each value moves with its key. Equal keys have their values in any order. */
void _vdSSQuickMapSort(int n, double* keys, double* values);
void _vsSSQuickMapSort(int n, float* keys, float* values);

/* Sorts by digits of 11 bits, in time linear in n; -0 stands before +0. scratch holds n
 * elements, and anything afterwards; the counters take 24 KB (32f) or 40 KB (64f) of stack.
 * Returns 0; a null pointer: -8; n below 1: -6; nothing is written then. */
int32_t v8_opxsSortRadixAscend_32f_I(float* data, float* scratch, int n);
int32_t v8_opxsSortRadixAscend_64f_I(double* data, double* scratch, int n);

/* Block copy and clear, by elements or bytes. Blocks do not overlap; n < 1: nothing. */
void v8_opxsCopy_32f(const float* source, float* destination, int n);
void v8_opxsZero_32s(int32_t* destination, int n);
void v8_ownsCopy_8u(const uint8_t* source, uint8_t* destination, int n);
void v8_ownsZero_8u(uint8_t* destination, int n);

/* ---- Chi-square distribution ------------------------------------------------------------
 *
 * dof: degrees of freedom, at least 1. Logarithms and exponentials are calls of vector
 * kernels, whose events go to the caller's error mode; ordinary arguments raise none.
 * Up to dof = 2000000 errors grow with dof, as those of a ln x - x - ln Gamma(a) do: some
 * 10^-13 relative at dof = 1000, some 10^-9 at the end. From there on (Q: from a = 1000000)
 * an expansion around the normal limit is right to some 10^-12 of the smaller tail for any dof,
 * tails below 10^-305 being 0, and the quantile works on p itself. */

/* P(chi2 <= x); 0 for x <= 0. Series and continued fraction of the incomplete gamma function. */
double __ruadChi2CDF(double dof, double x);

/* Density at x; 0 for x <= 0. Too small by dof * 2e-11 of itself: a rounded ln 2 is part of its
 * definition. */
double __ruadChi2PDF(double dof, double x);

/* The x with CDF(x) = p, by Newton steps, then bisection. 0 for p <= 0, the largest finite
 * double for p >= 1. Works on 1 - p: below 10^-16 p counts as about that. */
double __ruadChi2ICDF(double dof, double p);

/* Upper regularised incomplete gamma function Q(a, x); 1 for x <= 0 or a <= 0. */
double _vdSSQ(double a, double x);

/* ---- Covariance matrices ----------------------------------------------------------------
 *
 * p by p, row after row; the lower triangle and the diagonal count, p >= 1. */

/* Whether a can be inverted: 0, ORK_SS_RANK_DEFICIENT (no positive eigenvalue, the first left
 * out), ORK_SS_NO_MEMORY or ORK_SS_RANK_EIGEN. A matrix whose smallest eigenvalue is not
 * positive, another one being so, gets 1% of the smallest positive of the others on its
 * diagonal and passes; p = 1: a zero becomes the smallest positive value that counts.
 * For p >= 2 the upper triangle is destroyed. */
int32_t __ruadTestCovRank(int p, double* a);
int32_t __ruasTestCovRank(int p, float* a);

/* The inverse in place, of the lower triangle; for p >= 4 by Cholesky factors: 0,
 * ORK_SS_INV_COV_CHOLESKY (not positive definite) or ORK_SS_INV_COV_INVERSE. Below that by
 * closed forms without a test; the upper triangle is never looked at. */
int32_t __ruadInvCov(int p, double* a);
int32_t __ruasInvCov(int p, float* a);

/* ---- Scalar functions: no mode, no status, no events -------------------------------------- */

/* ln |Gamma(x)|, below 1 ulp but near the zeros at negative x; +infinity at 0, at the negative
 * integers and at infinities. */
double __ruadLGamma(double x);

/* Square root, rounded once. */
double __ruadSqrt(double x);

/* The largest integer value not above x; infinities, NaN and -0 are kept. */
double __ruadFloor(double x);

/* Natural logarithm, below 0.52 ulp (s: 0.51). -infinity at 0, NaN below. */
double __ruadLn(double x);
float __ruasLn(float x);

#ifdef __cplusplus
}
#endif

#endif
