/* Scalar trigonometry: the routines under the vector kernels of sine, cosine and tangent, for
 * arguments of any size. All are reentrant and keep no state but the thread's error status. */
#ifndef ORK_ZEM_SCALAR_H
#define ORK_ZEM_SCALAR_H

#ifdef __cplusplus
extern "C" {
#endif

/* Reduces a finite x modulo pi/2: x = k * pi/2 + reduced[0] + reduced[1], where the second
 * is at most half an ulp of the first and |reduced[0]| at most about pi/4. Returns k modulo 4,
 * in 0..3. Below 2^30 pi/4 is subtracted in parts (W. J. Cody, W. Waite), above that x is
 * multiplied by the bits of 4/pi that matter (M. Payne, R. Hanek). Sets the x87 unit to
 * extended precision and puts it back. */
int ork_zem_kernel_reduce_pio2d(double x, double* reduced);

/* Sine, cosine (radians) and tangent of one value, correct to 0.52 ulp (tangent 0.55) under
 * rounding to nearest. An infinity gives a NaN, a NaN a quiet NaN; a zero keeps its sign in
 * sine and tangent. They report nothing. */
double _dSin(double x);
double _dCos(double x);
double _dTan(double x);
void _dSinCos(double x, double* sine, double* cosine);

/* The same for a[index], stored to r[index] (sine to r, cosine to r2), with the x87 unit in
 * double precision for the time of the computation. An infinite input raises status 1
 * (ZEM_STATUS_DOMAIN) with `name` in the report. `r` may be `a`. */
void ork_zem_kernel_dSin_SC(const double* a, double* r, int index, const char* name);
void ork_zem_kernel_dCos_SC(const double* a, double* r, int index, const char* name);
void ork_zem_kernel_dTan_SC(const double* a, double* r, int index, const char* name);
void ork_zem_kernel_dSinCos_SC(const double* a, double* r, double* r2, int index, const char* name);

/* The same with the name of their level: "dSin_HA", "dSin_LA", "dSin_A11" and so on. All
 * levels compute alike. */
void ork_zem_kernel_dSin_SC_HA(const double* a, double* r, int index);
void ork_zem_kernel_dSin_SC_LA(const double* a, double* r, int index);
void ork_zem_kernel_dSin_SC_A11(const double* a, double* r, int index);
void ork_zem_kernel_dCos_SC_HA(const double* a, double* r, int index);
void ork_zem_kernel_dCos_SC_LA(const double* a, double* r, int index);
void ork_zem_kernel_dCos_SC_A11(const double* a, double* r, int index);
void ork_zem_kernel_dTan_SC_HA(const double* a, double* r, int index);
void ork_zem_kernel_dTan_SC_LA(const double* a, double* r, int index);
void ork_zem_kernel_dTan_SC_A11(const double* a, double* r, int index);
void ork_zem_kernel_dSinCos_SC_HA(const double* a, double* r, double* r2, int index);
void ork_zem_kernel_dSinCos_SC_LA(const double* a, double* r, double* r2, int index);
void ork_zem_kernel_dSinCos_SC_A11(const double* a, double* r, double* r2, int index);

/* In single precision: the double result rounded once more; names "sSin_HA" and so on. */
void ork_zem_kernel_sSin_SC_HA(const float* a, float* r, int index);
void ork_zem_kernel_sSin_SC_LA(const float* a, float* r, int index);
void ork_zem_kernel_sSin_SC_A11(const float* a, float* r, int index);
void ork_zem_kernel_sCos_SC_HA(const float* a, float* r, int index);
void ork_zem_kernel_sCos_SC_LA(const float* a, float* r, int index);
void ork_zem_kernel_sCos_SC_A11(const float* a, float* r, int index);
void ork_zem_kernel_sTan_SC_HA(const float* a, float* r, int index);
void ork_zem_kernel_sTan_SC_LA(const float* a, float* r, int index);
void ork_zem_kernel_sTan_SC_A11(const float* a, float* r, int index);
void ork_zem_kernel_sSinCos_SC_HA(const float* a, float* r, float* r2, int index);
void ork_zem_kernel_sSinCos_SC_LA(const float* a, float* r, float* r2, int index);
void ork_zem_kernel_sSinCos_SC_A11(const float* a, float* r, float* r2, int index);

/* cos x + i sin x for x = a[index], stored as a pair to r[2 index] and r[2 index + 1], with the x87
 * unit in double precision for the time of the computation; correct to 0.52 ulp (single precision
 * 0.51) in each part. An infinity or a NaN gives NaNs in both; nothing is reported. All levels
 * compute alike. */
void ork_zem_kernel_zCIS_SC(int index, const double* a, double* r);
void ork_zem_kernel_zCIS_SC_HA(int index, const double* a, double* r);
void ork_zem_kernel_zCIS_SC_LA(int index, const double* a, double* r);
void ork_zem_kernel_zCIS_SC_A11(int index, const double* a, double* r);
void ork_zem_kernel_cCIS_SC_HA(int index, const float* a, float* r);
void ork_zem_kernel_cCIS_SC_LA(int index, const float* a, float* r);
void ork_zem_kernel_cCIS_SC_A11(int index, const float* a, float* r);

#ifdef __cplusplus
}
#endif

#endif
