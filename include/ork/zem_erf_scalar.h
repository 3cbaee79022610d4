/* Scalar error functions: the far tails under the vector kernels of CdfNormInv and ErfcInv.
 * Argument and result stand in the low half of xmm0. They report nothing. */
#ifndef ORK_ZEM_ERF_SCALAR_H
#define ORK_ZEM_ERF_SCALAR_H

#include <emmintrin.h>

#ifdef __cplusplus
extern "C" {
#endif

/* The quantile of the standard normal distribution at p, 0 < p < 2^-22, down to the smallest
 * denormal (about -38.47): correct to 0.6 ulp under rounding to nearest. */
__m128d dCdfNormInv_Tail(__m128d p);

/* y with erfc(y) = x, 0 < x < 2^-22, likewise. */
__m128d dErfcInv_Tail(__m128d x);

#ifdef __cplusplus
}
#endif
#endif
