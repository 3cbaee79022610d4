/* Complex scalars: the functions of one complex number in double precision that the kernels of
 * complex functions ("c" and "z" vectors) call for each element or for their rare ones.
 *
 * Each takes the place of its result, two doubles, real part first, and the real and imaginary
 * part of its argument; it returns that place. They compute in the x87 unit's 64 bits and expect
 * its control word as the platform leaves it: extended precision (0x300), rounding to nearest.
 * They keep no state and report nothing; a part of the result that is denormal raises underflow
 * (the logarithms leave that to the conversion). Results are rounded from 64 bits, at most 0.51
 * ulp a part, and wrong by a bit in at most one of 250 parts, with these exceptions: cpow,
 * whose logarithm and product are doubles (2^-53 |b ln a| of the result in all), and a zero of the
 * result next to which the formula cancels.
 *
 * Special values follow the manner of C's Annex G; docs/decisions.md lists where they differ. */
#ifndef ORK_ZEM_COMPLEX_SCALAR_H
#define ORK_ZEM_COMPLEX_SCALAR_H

#ifdef __cplusplus
extern "C" {
#endif

/* e^re (cos im + i sin im). */
double* ork_zem_kernel_cexp_scalar(double* result, double re, double im);
/* Natural and decimal logarithm; the imaginary part is the angle, for the decimal one over ln 10,
 * from -pi to pi with the sign of im. */
double* ork_zem_kernel_clog_scalar(double* result, double re, double im);
double* ork_zem_kernel_clog10_scalar(double* result, double re, double im);
/* The root with a real part of at least 0, cut along the negative real axis. */
double* ork_zem_kernel_csqrt_scalar(double* result, double re, double im);
/* (a_re + i a_im) to the power b_re + i b_im, exp(b ln a). */
double* ork_zem_kernel_cpow_scalar(double* result, double a_re, double a_im, double b_re,
                                   double b_im);

/* Circular (radians) and hyperbolic functions. */
double* ork_zem_kernel_csin_scalar(double* result, double re, double im);
double* ork_zem_kernel_ccos_scalar(double* result, double re, double im);
double* ork_zem_kernel_ctan_scalar(double* result, double re, double im);
double* ork_zem_kernel_csinh_scalar(double* result, double re, double im);
double* ork_zem_kernel_ccosh_scalar(double* result, double re, double im);
double* ork_zem_kernel_ctanh_scalar(double* result, double re, double im);

/* Their inverses, with the cuts of C: casin, cacos, catanh on the real axis beyond -1 and 1,
 * casinh, catan on the imaginary axis beyond -i and i, cacosh on the real axis below 1. */
double* ork_zem_kernel_casin_scalar(double* result, double re, double im);
double* ork_zem_kernel_cacos_scalar(double* result, double re, double im);
double* ork_zem_kernel_catan_scalar(double* result, double re, double im);
double* ork_zem_kernel_casinh_scalar(double* result, double re, double im);
double* ork_zem_kernel_cacosh_scalar(double* result, double re, double im);
double* ork_zem_kernel_catanh_scalar(double* result, double re, double im);

#ifdef __cplusplus
}
#endif

#endif
