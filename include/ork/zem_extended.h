/* Extended scalars: twenty real functions on the x87 unit's 80-bit format, the ground that the
 * complex functions stand on, a reduction modulo pi/4, and the tables they share.
 *
 * All expect the unit's control word as the platform leaves it: extended precision (0x300),
 * rounding to nearest. They keep no state, touch neither MXCSR nor the vector state and report
 * nothing: special values give the IEEE 754 results and raise the unit's exception flags. A
 * signalling NaN comes out quiet, an argument outside a function's domain gives the default NaN
 * and raises invalid. Angles are in radians. Results are within 0.75 of a unit in the last of 64
 * places, denormal ones included. */
#ifndef ORK_ZEM_EXTENDED_H
#define ORK_ZEM_EXTENDED_H

#ifdef __cplusplus
extern "C" {
#endif

/* Overflow beyond 11356.52, underflow to zero below -11400.19. */
long double ork_zem_kernel_expl_scalar(long double x);
/* ln x: -infinity and division by zero at a zero of either sign, invalid below. */
long double ork_zem_kernel_logl_scalar(long double x);
/* ln(1 + x): -infinity and division by zero at -1, invalid below. */
long double ork_zem_kernel_log1pl_scalar(long double x);
/* Correctly rounded; the root of -0 is -0. */
long double ork_zem_kernel_sqrtl_scalar(long double x);
/* |x|, exact. */
long double ork_zem_kernel_fabsl_scalar(long double x);

/* Sine, cosine, tangent and the first two at once, x in radians: finite arguments of any size; an
 * infinity is invalid. */
long double ork_zem_kernel_sinl_scalar(long double x);
long double ork_zem_kernel_cosl_scalar(long double x);
long double ork_zem_kernel_tanl_scalar(long double x);
void ork_zem_kernel_sincosl_scalar(long double x, long double* sine, long double* cosine);

/* Hyperbolic sine, cosine, tangent and the first two at once: overflow beyond 11357.2 in absolute
 * value, but for the tangent. */
long double ork_zem_kernel_sinhl_scalar(long double x);
long double ork_zem_kernel_coshl_scalar(long double x);
long double ork_zem_kernel_tanhl_scalar(long double x);
void ork_zem_kernel_sinhcoshl_scalar(long double x, long double* sinh, long double* cosh);

/* Arc sine and arc cosine, in radians: domain [-1, 1]. */
long double ork_zem_kernel_asinl_scalar(long double x);
long double ork_zem_kernel_acosl_scalar(long double x);

/* Arc tangent of any x, from -pi/2 to pi/2. */
long double ork_zem_kernel_atanl_scalar(long double x);
/* The angle of the point (x, y), from -pi to pi, with C's values at zeros and infinities. */
long double ork_zem_kernel_atan2l_scalar(long double y, long double x);

/* ln(x + sqrt(x^2 + 1)) for any x. */
long double ork_zem_kernel_asinhl_scalar(long double x);
/* ln(x + sqrt(x^2 - 1)): domain from 1 on. */
long double ork_zem_kernel_acoshl_scalar(long double x);
/* ln((1 + x)/(1 - x))/2: domain [-1, 1], infinities and division by zero at its ends. */
long double ork_zem_kernel_atanhl_scalar(long double x);

/* x = n pi/4 + reduced[0] + reduced[1] for a finite x from 2^-900 on: head and tail, together right
 * to 104 bits for every such x (the method of M. Payne and R. Hanek in integers). With s = 0 n is
 * the even one of the two neighbouring octants, so that the head is at most about pi/4 in size; in
 * general n = q + (q + s modulo 2), q = floor(x 4/pi). Returns n modulo 2^32. */
int ork_zem_kernel_reduce_pi04l(long double x, int s, double* reduced);

/* Row j, 0 to 255: c = 1/(1 + (j + 1/2)/256) to a multiple of 2^-11, as float and as double. */
extern const float ork_zem_core_rcp_table_256[256];
extern const double ork_zem_core_double_rcp_table_256[256];
/* Row j: -ln c as head (a multiple of 2^-48) and tail; and as tail and head (of 2^-29). */
extern const double ork_zem_core_logl_table_256[256][2];
extern const double ork_zem_core_log_table_256[256][2];
/* Row j + 128, j from -128 to 128: 2^(j/256) as head of 30 bits and tail. */
extern const double ork_zem_core_expl_table_256[257][2];
/* Angles as head of 40 bits and tail: atan(j/128) in row j up to 128, pi/2 - atan(j/128) in row
 * 256 - j, pi/2 + atan(j/128) in row 256 + j, pi - atan(j/128) in row 512 - j; row 513 is zero. */
extern const double ork_zem_core_atanl_table_128[514][2];

#ifdef __cplusplus
}
#endif

#endif
