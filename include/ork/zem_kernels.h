/* Generated from zem/zem_core/frame/slots.tsv by ./dev tables slots; edit that.
 *
 * The vector kernels. For every function and type:
 *
 *   ork_zem_kernel_<t><Function>_ttab[3]   kernels by level: 0 LA, 1 HA, 2 EP
 *   ork_zem_kernel_<t><Function>_ctab[3]   their relative costs per element
 *   _zem<t><Function>                      entry at slot 1; also _HA. Slot 0 is _50 (d, z) or
 *                                          _21 (s, c), slot 2 is _26 or _11
 *   ork_zem_kernel_<t><Function>_<kernel>  the kernels that the slots hold
 *
 * n counts elements; nothing is done for n <= 0. Arrays need no alignment. An output may be
 * an input array itself; arrays that overlap in part are not supported. Kernels have no result:
 * special elements are reported through the error dispatch of zem.h. Every kernel leaves
 * MXCSR and the x87 control word as it found them, and runs in round-to-nearest but for Rint
 * and NearbyInt.
 *
 * Complex elements (c, z) are pairs of float or double, real part first, and n counts pairs. So
 * do std::complex in C++ and _Complex in C lie in memory: their arrays may be passed as they are,
 * with a cast of the pointer. Abs and Arg of c and z write one real number for an element, CIS
 * (cos x + i sin x) reads one. The complex Add, Sub, Mul, MulByConj and Div raise status 3 at LA and
 * HA, where finite operands give an infinite part, and no other; Conj, Abs, Arg, CIS and all EP kernels
 * raise none. Infinities and NaNs follow C99's Annex G: an infinite operand makes products infinite
 * and, as a divisor of a finite one, quotients zero.
 *
 * Forms: (n, a, r); (n, a, b, r), with b one value in Powx; SinCos and Modf (n, a, r, r2): sine
 * and cosine, integer part and fraction; LinearFrac:
 * r = (scale_a * a + shift_a) / (scale_b * b + shift_b). MulByConj is a times the conjugate of b.
 * Pack gathers, unpack scatters, by stride (I), mask (M) or index (V). With width = 1 the count
 * is n_low and strides, masks and indices are 32 bits wide; otherwise all are 64 bits wide.
 * The stubs of pack and unpack set width to 1 whatever was passed. */
#ifndef ORK_ZEM_KERNELS_H
#define ORK_ZEM_KERNELS_H

#include "ork/zem.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef void (*ork_d_unary)(int n, const double* a, double* r);
typedef void (*ork_d_binary)(int n, const double* a, const double* b, double* r);
typedef void (*ork_d_linear)(int n, const double* a, const double* b, double scale_a, double shift_a, double scale_b, double shift_b, double* r);
typedef void (*ork_d_two)(int n, const double* a, double* r, double* r2);
typedef void (*ork_d_pack_i)(int32_t n_low, int32_t n_high, const double* a, int32_t stride_low, int32_t stride_high, double* y, int width);
typedef void (*ork_d_pack_m)(int32_t n_low, int32_t n_high, const double* a, const void* mask, double* y, int width);
typedef void (*ork_d_pack_v)(int32_t n_low, int32_t n_high, const double* a, const void* index, double* y, int width);
typedef void (*ork_d_scalar)(int n, const double* a, double b, double* r);
typedef void (*ork_d_unpack_i)(int32_t n_low, int32_t n_high, const double* a, double* y, int32_t stride_low, int32_t stride_high, int width);
typedef void (*ork_d_unpack_m)(int32_t n_low, int32_t n_high, const double* a, double* y, const void* mask, int width);
typedef void (*ork_d_unpack_v)(int32_t n_low, int32_t n_high, const double* a, double* y, const void* index, int width);
typedef void (*ork_s_unary)(int n, const float* a, float* r);
typedef void (*ork_s_binary)(int n, const float* a, const float* b, float* r);
typedef void (*ork_s_linear)(int n, const float* a, const float* b, float scale_a, float shift_a, float scale_b, float shift_b, float* r);
typedef void (*ork_s_two)(int n, const float* a, float* r, float* r2);
typedef void (*ork_s_pack_i)(int32_t n_low, int32_t n_high, const float* a, int32_t stride_low, int32_t stride_high, float* y, int width);
typedef void (*ork_s_pack_m)(int32_t n_low, int32_t n_high, const float* a, const void* mask, float* y, int width);
typedef void (*ork_s_pack_v)(int32_t n_low, int32_t n_high, const float* a, const void* index, float* y, int width);
typedef void (*ork_s_scalar)(int n, const float* a, float b, float* r);
typedef void (*ork_s_unpack_i)(int32_t n_low, int32_t n_high, const float* a, float* y, int32_t stride_low, int32_t stride_high, int width);
typedef void (*ork_s_unpack_m)(int32_t n_low, int32_t n_high, const float* a, float* y, const void* mask, int width);
typedef void (*ork_s_unpack_v)(int32_t n_low, int32_t n_high, const float* a, float* y, const void* index, int width);
typedef void (*ork_c_to_real)(int n, const float* a, float* r);
typedef void (*ork_c_unary)(int n, const float* a, float* r);
typedef void (*ork_c_binary)(int n, const float* a, const float* b, float* r);
typedef void (*ork_c_from_real)(int n, const float* a, float* r);
typedef void (*ork_c_pack_i)(int32_t n_low, int32_t n_high, const float* a, int32_t stride_low, int32_t stride_high, float* y, int width);
typedef void (*ork_c_pack_m)(int32_t n_low, int32_t n_high, const float* a, const void* mask, float* y, int width);
typedef void (*ork_c_pack_v)(int32_t n_low, int32_t n_high, const float* a, const void* index, float* y, int width);
typedef void (*ork_c_scalar)(int n, const float* a, ork_c b, float* r);
typedef void (*ork_c_unpack_i)(int32_t n_low, int32_t n_high, const float* a, float* y, int32_t stride_low, int32_t stride_high, int width);
typedef void (*ork_c_unpack_m)(int32_t n_low, int32_t n_high, const float* a, float* y, const void* mask, int width);
typedef void (*ork_c_unpack_v)(int32_t n_low, int32_t n_high, const float* a, float* y, const void* index, int width);
typedef void (*ork_z_to_real)(int n, const double* a, double* r);
typedef void (*ork_z_unary)(int n, const double* a, double* r);
typedef void (*ork_z_binary)(int n, const double* a, const double* b, double* r);
typedef void (*ork_z_from_real)(int n, const double* a, double* r);
typedef void (*ork_z_pack_i)(int32_t n_low, int32_t n_high, const double* a, int32_t stride_low, int32_t stride_high, double* y, int width);
typedef void (*ork_z_pack_m)(int32_t n_low, int32_t n_high, const double* a, const void* mask, double* y, int width);
typedef void (*ork_z_pack_v)(int32_t n_low, int32_t n_high, const double* a, const void* index, double* y, int width);
typedef void (*ork_z_scalar)(int n, const double* a, ork_z b, double* r);
typedef void (*ork_z_unpack_i)(int32_t n_low, int32_t n_high, const double* a, double* y, int32_t stride_low, int32_t stride_high, int width);
typedef void (*ork_z_unpack_m)(int32_t n_low, int32_t n_high, const double* a, double* y, const void* mask, int width);
typedef void (*ork_z_unpack_v)(int32_t n_low, int32_t n_high, const double* a, double* y, const void* index, int width);

/* r = |x|, exact; a NaN loses its sign. No status. */
extern const ork_d_unary ork_zem_kernel_dAbs_ttab[3];
extern const float ork_zem_kernel_dAbs_ctab[3];
void ork_zem_kernel_dAbs_W7HAynn(int n, const double* a, double* r);
void _zemdAbs_50(int n, const double* a, double* r);
void _zemdAbs_HA(int n, const double* a, double* r);
void _zemdAbs(int n, const double* a, double* r);
void _zemdAbs_26(int n, const double* a, double* r);

/* r = arc cosine of x, from 0 to pi, for -1 <= x <= 1. Error at most 2 ulp (LA); 0.80 ulp (HA);
 * 2^-26 of the result (EP). Status: 1 for |x| > 1, infinities too. */
extern const ork_d_unary ork_zem_kernel_dAcos_ttab[3];
extern const float ork_zem_kernel_dAcos_ctab[3];
void ork_zem_kernel_dAcos_V8LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dAcos_V8HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dAcos_V8EPnnn(int n, const double* a, double* r);
void _zemdAcos_50(int n, const double* a, double* r);
void _zemdAcos_HA(int n, const double* a, double* r);
void _zemdAcos(int n, const double* a, double* r);
void _zemdAcos_26(int n, const double* a, double* r);

/* r = arcosh x = ln(x + sqrt(x^2 - 1)), from 0 on, for x >= 1. Error at most 2.5 ulp (LA, EP);
 * 0.60 ulp (HA). Status: 1 for x < 1. */
extern const ork_d_unary ork_zem_kernel_dAcosh_ttab[3];
extern const float ork_zem_kernel_dAcosh_ctab[3];
void ork_zem_kernel_dAcosh_V8LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dAcosh_W7HAynn(int n, const double* a, double* r);
void _zemdAcosh_50(int n, const double* a, double* r);
void _zemdAcosh_HA(int n, const double* a, double* r);
void _zemdAcosh(int n, const double* a, double* r);
void _zemdAcosh_26(int n, const double* a, double* r);

/* r = x + y. Error at most 0.5 ulp (LA, HA, EP). No status. */
extern const ork_d_binary ork_zem_kernel_dAdd_ttab[3];
extern const float ork_zem_kernel_dAdd_ctab[3];
void ork_zem_kernel_dAdd_V8HAynn(int n, const double* a, const double* b, double* r);
void _zemdAdd_50(int n, const double* a, const double* b, double* r);
void _zemdAdd_HA(int n, const double* a, const double* b, double* r);
void _zemdAdd(int n, const double* a, const double* b, double* r);
void _zemdAdd_26(int n, const double* a, const double* b, double* r);

/* r = arc sine of x, from -pi/2 to pi/2, for -1 <= x <= 1. Error at most 2 ulp (LA); 0.80 ulp
 * (HA); 2^-26 of the result (EP). Status: 1 for |x| > 1, infinities too. */
extern const ork_d_unary ork_zem_kernel_dAsin_ttab[3];
extern const float ork_zem_kernel_dAsin_ctab[3];
void ork_zem_kernel_dAsin_V8LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dAsin_V8HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dAsin_V8EPnnn(int n, const double* a, double* r);
void _zemdAsin_50(int n, const double* a, double* r);
void _zemdAsin_HA(int n, const double* a, double* r);
void _zemdAsin(int n, const double* a, double* r);
void _zemdAsin_26(int n, const double* a, double* r);

/* r = arsinh x = ln(x + sqrt(x^2 + 1)), for all x. Error at most 2.5 ulp (LA, EP); 0.52 ulp (HA).
 * No status. */
extern const ork_d_unary ork_zem_kernel_dAsinh_ttab[3];
extern const float ork_zem_kernel_dAsinh_ctab[3];
void ork_zem_kernel_dAsinh_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dAsinh_W7HAynn(int n, const double* a, double* r);
void _zemdAsinh_50(int n, const double* a, double* r);
void _zemdAsinh_HA(int n, const double* a, double* r);
void _zemdAsinh(int n, const double* a, double* r);
void _zemdAsinh_26(int n, const double* a, double* r);

/* r = arc tangent of x, from -pi/2 to pi/2, for all x. Error at most 0.60 ulp (LA, HA); 2^-26 of
 * the result (EP). No status. */
extern const ork_d_unary ork_zem_kernel_dAtan_ttab[3];
extern const float ork_zem_kernel_dAtan_ctab[3];
void ork_zem_kernel_dAtan_W7HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dAtan_V8EPnnn(int n, const double* a, double* r);
void _zemdAtan_50(int n, const double* a, double* r);
void _zemdAtan_HA(int n, const double* a, double* r);
void _zemdAtan(int n, const double* a, double* r);
void _zemdAtan_26(int n, const double* a, double* r);

/* r = angle of the point (y, x), from -pi to pi: arc tangent of x/y in the quadrant that both
 * signs tell; a is the ordinate, b the abscissa. Error at most 2.5 ulp (LA); 0.51 ulp (HA); 2^-26
 * of the result (EP). No status. */
extern const ork_d_binary ork_zem_kernel_dAtan2_ttab[3];
extern const float ork_zem_kernel_dAtan2_ctab[3];
void ork_zem_kernel_dAtan2_W7LAynn(int n, const double* a, const double* b, double* r);
void ork_zem_kernel_dAtan2_W7HAynn(int n, const double* a, const double* b, double* r);
void ork_zem_kernel_dAtan2_V8EPnnn(int n, const double* a, const double* b, double* r);
void _zemdAtan2_50(int n, const double* a, const double* b, double* r);
void _zemdAtan2_HA(int n, const double* a, const double* b, double* r);
void _zemdAtan2(int n, const double* a, const double* b, double* r);
void _zemdAtan2_26(int n, const double* a, const double* b, double* r);

/* r = artanh x = ln((1 + x)/(1 - x))/2, for -1 < x < 1. Error at most 2.5 ulp (LA, EP); 0.60 ulp
 * (HA). Status: 1 for |x| > 1; 2 for x = -1 and 1. */
extern const ork_d_unary ork_zem_kernel_dAtanh_ttab[3];
extern const float ork_zem_kernel_dAtanh_ctab[3];
void ork_zem_kernel_dAtanh_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dAtanh_W7HAynn(int n, const double* a, double* r);
void _zemdAtanh_50(int n, const double* a, double* r);
void _zemdAtanh_HA(int n, const double* a, double* r);
void _zemdAtanh(int n, const double* a, double* r);
void _zemdAtanh_26(int n, const double* a, double* r);

/* r = cube root of x, with its sign, for all x. Error at most 1.95 ulp (LA, EP); 0.53 ulp (HA). No
 * status. */
extern const ork_d_unary ork_zem_kernel_dCbrt_ttab[3];
extern const float ork_zem_kernel_dCbrt_ctab[3];
void ork_zem_kernel_dCbrt_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dCbrt_W7HAynn(int n, const double* a, double* r);
void _zemdCbrt_50(int n, const double* a, double* r);
void _zemdCbrt_HA(int n, const double* a, double* r);
void _zemdCbrt(int n, const double* a, double* r);
void _zemdCbrt_26(int n, const double* a, double* r);

/* r = probability that a standard normal number is below x, erfc(-x/sqrt 2)/2, for all x. Error at
 * most 2.5 ulp (LA); 0.6 ulp (HA); 2^-26 of the result (EP). Status: 4 for x below -38.4854 (d) or
 * -14.1702 (s), where the result is 0. */
extern const ork_d_unary ork_zem_kernel_dCdfNorm_ttab[3];
extern const float ork_zem_kernel_dCdfNorm_ctab[3];
void ork_zem_kernel_dCdfNorm_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dCdfNorm_V8HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dCdfNorm_V8EPnnn(int n, const double* a, double* r);
void _zemdCdfNorm_50(int n, const double* a, double* r);
void _zemdCdfNorm_HA(int n, const double* a, double* r);
void _zemdCdfNorm(int n, const double* a, double* r);
void _zemdCdfNorm_26(int n, const double* a, double* r);

/* r = quantile of the standard normal distribution at probability x, for 0 < x < 1. Error at most
 * 2.5 ulp (LA); 0.6 ulp (HA); 2^-26 of the result (EP). Status: 1 for x below 0 or above 1; 2 for
 * x = 0 and 1. */
extern const ork_d_unary ork_zem_kernel_dCdfNormInv_ttab[3];
extern const float ork_zem_kernel_dCdfNormInv_ctab[3];
void ork_zem_kernel_dCdfNormInv_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dCdfNormInv_W7HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dCdfNormInv_W7EPnnn(int n, const double* a, double* r);
void _zemdCdfNormInv_50(int n, const double* a, double* r);
void _zemdCdfNormInv_HA(int n, const double* a, double* r);
void _zemdCdfNormInv(int n, const double* a, double* r);
void _zemdCdfNormInv_26(int n, const double* a, double* r);

/* r = least integer not below x, exact; ceil(-0.5) is -0. No status. */
extern const ork_d_unary ork_zem_kernel_dCeil_ttab[3];
extern const float ork_zem_kernel_dCeil_ctab[3];
void ork_zem_kernel_dCeil_W7HAynn(int n, const double* a, double* r);
void _zemdCeil_50(int n, const double* a, double* r);
void _zemdCeil_HA(int n, const double* a, double* r);
void _zemdCeil(int n, const double* a, double* r);
void _zemdCeil_26(int n, const double* a, double* r);

/* r = cosine of x, for all finite x: the angle is reduced exactly. Error at most 3.1 ulp (LA);
 * 0.60 ulp (HA); 2^-26 of the result (EP). Status: 1 for infinities. */
extern const ork_d_unary ork_zem_kernel_dCos_ttab[3];
extern const float ork_zem_kernel_dCos_ctab[3];
void ork_zem_kernel_dCos_V8LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dCos_T7HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dCos_V8EPnnn(int n, const double* a, double* r);
void _zemdCos_50(int n, const double* a, double* r);
void _zemdCos_HA(int n, const double* a, double* r);
void _zemdCos(int n, const double* a, double* r);
void _zemdCos_26(int n, const double* a, double* r);

/* r = hyperbolic cosine (e^x + e^-x)/2. Error at most 2 ulp (LA, EP); 0.60 ulp (HA). Status: 3
 * where a finite x has an infinite result. */
extern const ork_d_unary ork_zem_kernel_dCosh_ttab[3];
extern const float ork_zem_kernel_dCosh_ctab[3];
void ork_zem_kernel_dCosh_V8LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dCosh_W7HAynn(int n, const double* a, double* r);
void _zemdCosh_50(int n, const double* a, double* r);
void _zemdCosh_HA(int n, const double* a, double* r);
void _zemdCosh(int n, const double* a, double* r);
void _zemdCosh_26(int n, const double* a, double* r);

/* r = x / y. Error at most 0.51 ulp (LA, EP); 0.5 ulp (HA). Status: 2 for a finite x over 0 (0/0
 * is a NaN). */
extern const ork_d_binary ork_zem_kernel_dDiv_ttab[3];
extern const float ork_zem_kernel_dDiv_ctab[3];
void ork_zem_kernel_dDiv_W7LAynn(int n, const double* a, const double* b, double* r);
void ork_zem_kernel_dDiv_W7HAynn(int n, const double* a, const double* b, double* r);
void _zemdDiv_50(int n, const double* a, const double* b, double* r);
void _zemdDiv_HA(int n, const double* a, const double* b, double* r);
void _zemdDiv(int n, const double* a, const double* b, double* r);
void _zemdDiv_26(int n, const double* a, const double* b, double* r);

/* r = error function of x, 2/sqrt(pi) times the integral of e^(-t^2) from 0 to x, for all x. Error
 * at most 2.5 ulp (LA); 0.6 ulp (HA); 2^-26 of the result (EP). No status. */
extern const ork_d_unary ork_zem_kernel_dErf_ttab[3];
extern const float ork_zem_kernel_dErf_ctab[3];
void ork_zem_kernel_dErf_V8LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dErf_V8HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dErf_V8EPnnn(int n, const double* a, double* r);
void _zemdErf_50(int n, const double* a, double* r);
void _zemdErf_HA(int n, const double* a, double* r);
void _zemdErf(int n, const double* a, double* r);
void _zemdErf_26(int n, const double* a, double* r);

/* r = number whose error function is x, for -1 < x < 1. Error at most 2.5 ulp (LA); 0.6 ulp (HA);
 * 2^-26 of the result (EP). Status: 1 for |x| > 1; 2 for x = -1 and 1. */
extern const ork_d_unary ork_zem_kernel_dErfInv_ttab[3];
extern const float ork_zem_kernel_dErfInv_ctab[3];
void ork_zem_kernel_dErfInv_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dErfInv_W7HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dErfInv_W7EPnnn(int n, const double* a, double* r);
void _zemdErfInv_50(int n, const double* a, double* r);
void _zemdErfInv_HA(int n, const double* a, double* r);
void _zemdErfInv(int n, const double* a, double* r);
void _zemdErfInv_26(int n, const double* a, double* r);

/* r = 1 - erf(x) without its cancellation, for all x. Error at most 2.5 ulp (LA, EP); 0.65 ulp
 * (HA). Status: 4 where the result is 0 or denormal. */
extern const ork_d_unary ork_zem_kernel_dErfc_ttab[3];
extern const float ork_zem_kernel_dErfc_ctab[3];
void ork_zem_kernel_dErfc_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dErfc_W7HAynn(int n, const double* a, double* r);
void _zemdErfc_50(int n, const double* a, double* r);
void _zemdErfc_HA(int n, const double* a, double* r);
void _zemdErfc(int n, const double* a, double* r);
void _zemdErfc_26(int n, const double* a, double* r);

/* r = number whose complementary error function is x, for 0 < x < 2. Error at most 2.5 ulp (LA);
 * 0.6 ulp (HA); 2^-26 of the result (EP). Status: 1 for x below 0 or above 2; 2 for x = 0 and 2. */
extern const ork_d_unary ork_zem_kernel_dErfcInv_ttab[3];
extern const float ork_zem_kernel_dErfcInv_ctab[3];
void ork_zem_kernel_dErfcInv_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dErfcInv_W7HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dErfcInv_W7EPnnn(int n, const double* a, double* r);
void _zemdErfcInv_50(int n, const double* a, double* r);
void _zemdErfcInv_HA(int n, const double* a, double* r);
void _zemdErfcInv(int n, const double* a, double* r);
void _zemdErfcInv_26(int n, const double* a, double* r);

/* r = e^x. Error at most 3.75 ulp (LA); 0.55 ulp (HA); 2^-28 of the result (EP). Status: 3 where a
 * finite x has an infinite result; 4 where the result is 0 or denormal. */
extern const ork_d_unary ork_zem_kernel_dExp_ttab[3];
extern const float ork_zem_kernel_dExp_ctab[3];
void ork_zem_kernel_dExp_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dExp_W7HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dExp_W7EPnnn(int n, const double* a, double* r);
void _zemdExp_50(int n, const double* a, double* r);
void _zemdExp_HA(int n, const double* a, double* r);
void _zemdExp(int n, const double* a, double* r);
void _zemdExp_26(int n, const double* a, double* r);

/* r = e^x - 1 without its cancellation. Error at most 3.1 ulp (LA); 0.65 ulp (HA); 2^-30 of the
 * result (EP). Status: 3 where a finite x has an infinite result. */
extern const ork_d_unary ork_zem_kernel_dExpm1_ttab[3];
extern const float ork_zem_kernel_dExpm1_ctab[3];
void ork_zem_kernel_dExpm1_V8LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dExpm1_V8HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dExpm1_V8EPnnn(int n, const double* a, double* r);
void _zemdExpm1_50(int n, const double* a, double* r);
void _zemdExpm1_HA(int n, const double* a, double* r);
void _zemdExpm1(int n, const double* a, double* r);
void _zemdExpm1_26(int n, const double* a, double* r);

/* r = greatest integer not above x, exact. No status. */
extern const ork_d_unary ork_zem_kernel_dFloor_ttab[3];
extern const float ork_zem_kernel_dFloor_ctab[3];
void ork_zem_kernel_dFloor_W7HAynn(int n, const double* a, double* r);
void _zemdFloor_50(int n, const double* a, double* r);
void _zemdFloor_HA(int n, const double* a, double* r);
void _zemdFloor(int n, const double* a, double* r);
void _zemdFloor_26(int n, const double* a, double* r);

/* r = sqrt(x^2 + y^2) without overflow or underflow on the way; an infinite x or y gives infinity,
 * even beside a NaN. Error at most 0.51 ulp (LA, HA); 2^-31 of the result (EP). No status. */
extern const ork_d_binary ork_zem_kernel_dHypot_ttab[3];
extern const float ork_zem_kernel_dHypot_ctab[3];
void ork_zem_kernel_dHypot_W7HAynn(int n, const double* a, const double* b, double* r);
void ork_zem_kernel_dHypot_V8EPnnn(int n, const double* a, const double* b, double* r);
void _zemdHypot_50(int n, const double* a, const double* b, double* r);
void _zemdHypot_HA(int n, const double* a, const double* b, double* r);
void _zemdHypot(int n, const double* a, const double* b, double* r);
void _zemdHypot_26(int n, const double* a, const double* b, double* r);

/* r = 1 / x. Error at most 0.5 ulp (LA, HA, EP). Status: 2 for x = 0. */
extern const ork_d_unary ork_zem_kernel_dInv_ttab[3];
extern const float ork_zem_kernel_dInv_ctab[3];
void ork_zem_kernel_dInv_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dInv_W7HAynn(int n, const double* a, double* r);
void _zemdInv_50(int n, const double* a, double* r);
void _zemdInv_HA(int n, const double* a, double* r);
void _zemdInv(int n, const double* a, double* r);
void _zemdInv_26(int n, const double* a, double* r);

/* r = 1 / cube root of x, with its sign. Error at most 0.53 ulp (LA, HA, EP). Status: 2 for x = 0. */
extern const ork_d_unary ork_zem_kernel_dInvCbrt_ttab[3];
extern const float ork_zem_kernel_dInvCbrt_ctab[3];
void ork_zem_kernel_dInvCbrt_W7HAynn(int n, const double* a, double* r);
void _zemdInvCbrt_50(int n, const double* a, double* r);
void _zemdInvCbrt_HA(int n, const double* a, double* r);
void _zemdInvCbrt(int n, const double* a, double* r);
void _zemdInvCbrt_26(int n, const double* a, double* r);

/* r = 1 / sqrt(x), for x > 0. Error at most 1.1 ulp (LA, EP); 0.51 ulp (HA). Status: 1 for x < 0;
 * 2 for x = 0. */
extern const ork_d_unary ork_zem_kernel_dInvSqrt_ttab[3];
extern const float ork_zem_kernel_dInvSqrt_ctab[3];
void ork_zem_kernel_dInvSqrt_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dInvSqrt_W7HAynn(int n, const double* a, double* r);
void _zemdInvSqrt_50(int n, const double* a, double* r);
void _zemdInvSqrt_HA(int n, const double* a, double* r);
void _zemdInvSqrt(int n, const double* a, double* r);
void _zemdInvSqrt_26(int n, const double* a, double* r);

/* r = ln |gamma(x)|, for all x but 0, -1, -2, .... Error at most 0.7 ulp (LA, HA, EP). Status: 2
 * for x = 0, -1, -2, ...; 3 where a finite x has an infinite result. */
extern const ork_d_unary ork_zem_kernel_dLGamma_ttab[3];
extern const float ork_zem_kernel_dLGamma_ctab[3];
void ork_zem_kernel_dLGamma_PXHAynn(int n, const double* a, double* r);
void _zemdLGamma_50(int n, const double* a, double* r);
void _zemdLGamma_HA(int n, const double* a, double* r);
void _zemdLGamma(int n, const double* a, double* r);
void _zemdLGamma_26(int n, const double* a, double* r);

/* r = (scale_a x + shift_a) / (scale_b y + shift_b), each of the four real numbers by value. Error
 * at most 4.5 ulp (LA, HA, EP). No status. */
extern const ork_d_linear ork_zem_kernel_dLinearFrac_ttab[3];
extern const float ork_zem_kernel_dLinearFrac_ctab[3];
void ork_zem_kernel_dLinearFrac_V8HAynn(int n, const double* a, const double* b, double scale_a, double shift_a, double scale_b, double shift_b, double* r);
void _zemdLinearFrac_50(int n, const double* a, const double* b, double scale_a, double shift_a, double scale_b, double shift_b, double* r);
void _zemdLinearFrac_HA(int n, const double* a, const double* b, double scale_a, double shift_a, double scale_b, double shift_b, double* r);
void _zemdLinearFrac(int n, const double* a, const double* b, double scale_a, double shift_a, double scale_b, double shift_b, double* r);
void _zemdLinearFrac_26(int n, const double* a, const double* b, double scale_a, double shift_a, double scale_b, double shift_b, double* r);

/* r = natural logarithm of x, for x > 0. Error at most 0.6 ulp (LA, HA); 2^-19 of the result (EP).
 * Status: 1 for x < 0; 2 for x = 0. */
extern const ork_d_unary ork_zem_kernel_dLn_ttab[3];
extern const float ork_zem_kernel_dLn_ctab[3];
void ork_zem_kernel_dLn_W7HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dLn_W7EPnnn(int n, const double* a, double* r);
void _zemdLn_50(int n, const double* a, double* r);
void _zemdLn_HA(int n, const double* a, double* r);
void _zemdLn(int n, const double* a, double* r);
void _zemdLn_26(int n, const double* a, double* r);

/* r = logarithm of x to the base 10, for x > 0. Error at most 2.0 ulp (LA); 0.6 ulp (HA); 2^-19 of
 * the result (EP). Status: 1 for x < 0; 2 for x = 0. */
extern const ork_d_unary ork_zem_kernel_dLog10_ttab[3];
extern const float ork_zem_kernel_dLog10_ctab[3];
void ork_zem_kernel_dLog10_V8LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dLog10_W7HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dLog10_W7EPnnn(int n, const double* a, double* r);
void _zemdLog10_50(int n, const double* a, double* r);
void _zemdLog10_HA(int n, const double* a, double* r);
void _zemdLog10(int n, const double* a, double* r);
void _zemdLog10_26(int n, const double* a, double* r);

/* r = ln(1 + x) without its cancellation, for x > -1. Error at most 2.0 ulp (LA); 0.8 ulp (HA);
 * 2^-31 of the result (EP). Status: 1 for x < -1; 2 for x = -1. */
extern const ork_d_unary ork_zem_kernel_dLog1p_ttab[3];
extern const float ork_zem_kernel_dLog1p_ctab[3];
void ork_zem_kernel_dLog1p_V8LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dLog1p_V8HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dLog1p_V8EPnnn(int n, const double* a, double* r);
void _zemdLog1p_50(int n, const double* a, double* r);
void _zemdLog1p_HA(int n, const double* a, double* r);
void _zemdLog1p(int n, const double* a, double* r);
void _zemdLog1p_26(int n, const double* a, double* r);

/* r = x without its fraction, r2 = the fraction, both with the sign of x, exact; infinities have a
 * fraction of 0. No status. */
extern const ork_d_two ork_zem_kernel_dModf_ttab[3];
extern const float ork_zem_kernel_dModf_ctab[3];
void ork_zem_kernel_dModf_W7HAynn(int n, const double* a, double* r, double* r2);
void _zemdModf_50(int n, const double* a, double* r, double* r2);
void _zemdModf_HA(int n, const double* a, double* r, double* r2);
void _zemdModf(int n, const double* a, double* r, double* r2);
void _zemdModf_26(int n, const double* a, double* r, double* r2);

/* r = x y. Error at most 0.5 ulp (LA, HA, EP). No status. */
extern const ork_d_binary ork_zem_kernel_dMul_ttab[3];
extern const float ork_zem_kernel_dMul_ctab[3];
void ork_zem_kernel_dMul_V8HAynn(int n, const double* a, const double* b, double* r);
void _zemdMul_50(int n, const double* a, const double* b, double* r);
void _zemdMul_HA(int n, const double* a, const double* b, double* r);
void _zemdMul(int n, const double* a, const double* b, double* r);
void _zemdMul_26(int n, const double* a, const double* b, double* r);

/* r = x rounded to an integer in the caller's rounding mode, halves to even in the usual one; the
 * sign of x stays, of zeros too. The same results as Rint. Error at most 0 ulp (LA, HA, EP). No
 * status. */
extern const ork_d_unary ork_zem_kernel_dNearbyInt_ttab[3];
extern const float ork_zem_kernel_dNearbyInt_ctab[3];
void ork_zem_kernel_dNearbyInt_W7HAynn(int n, const double* a, double* r);
void _zemdNearbyInt_50(int n, const double* a, double* r);
void _zemdNearbyInt_HA(int n, const double* a, double* r);
void _zemdNearbyInt(int n, const double* a, double* r);
void _zemdNearbyInt_26(int n, const double* a, double* r);

/* y[i] = a[i stride]: gathers at equal distances. */
extern const ork_d_pack_i ork_zem_kernel_dPackI_ttab[3];
extern const float ork_zem_kernel_dPackI_ctab[3];
void ork_zem_kernel_dPackI_PXHAynn(int32_t n_low, int32_t n_high, const double* a, int32_t stride_low, int32_t stride_high, double* y, int width);
void _zemdPackI_50(int32_t n_low, int32_t n_high, const double* a, int32_t stride_low, int32_t stride_high, double* y, int width);
void _zemdPackI_HA(int32_t n_low, int32_t n_high, const double* a, int32_t stride_low, int32_t stride_high, double* y, int width);
void _zemdPackI(int32_t n_low, int32_t n_high, const double* a, int32_t stride_low, int32_t stride_high, double* y, int width);
void _zemdPackI_26(int32_t n_low, int32_t n_high, const double* a, int32_t stride_low, int32_t stride_high, double* y, int width);

/* y gets, side by side, those a[i] whose mask[i] is not 0. */
extern const ork_d_pack_m ork_zem_kernel_dPackM_ttab[3];
extern const float ork_zem_kernel_dPackM_ctab[3];
void ork_zem_kernel_dPackM_PXHAynn(int32_t n_low, int32_t n_high, const double* a, const void* mask, double* y, int width);
void _zemdPackM_50(int32_t n_low, int32_t n_high, const double* a, const void* mask, double* y, int width);
void _zemdPackM_HA(int32_t n_low, int32_t n_high, const double* a, const void* mask, double* y, int width);
void _zemdPackM(int32_t n_low, int32_t n_high, const double* a, const void* mask, double* y, int width);
void _zemdPackM_26(int32_t n_low, int32_t n_high, const double* a, const void* mask, double* y, int width);

/* y[i] = a[index[i]]. */
extern const ork_d_pack_v ork_zem_kernel_dPackV_ttab[3];
extern const float ork_zem_kernel_dPackV_ctab[3];
void ork_zem_kernel_dPackV_PXHAynn(int32_t n_low, int32_t n_high, const double* a, const void* index, double* y, int width);
void _zemdPackV_50(int32_t n_low, int32_t n_high, const double* a, const void* index, double* y, int width);
void _zemdPackV_HA(int32_t n_low, int32_t n_high, const double* a, const void* index, double* y, int width);
void _zemdPackV(int32_t n_low, int32_t n_high, const double* a, const void* index, double* y, int width);
void _zemdPackV_26(int32_t n_low, int32_t n_high, const double* a, const void* index, double* y, int width);

/* r = x^y; x < 0 has powers of integers y only. Error at most 0.60 ulp (LA, HA); 2^-22 of the
 * result (EP). Status: 1 for x < 0 to a power that is no integer, and for 0 to a negative power. */
extern const ork_d_binary ork_zem_kernel_dPow_ttab[3];
extern const float ork_zem_kernel_dPow_ctab[3];
void ork_zem_kernel_dPow_V8LAynn(int n, const double* a, const double* b, double* r);
void ork_zem_kernel_dPow_V8HAynn(int n, const double* a, const double* b, double* r);
void ork_zem_kernel_dPow_V8EPnnn(int n, const double* a, const double* b, double* r);
void _zemdPow_50(int n, const double* a, const double* b, double* r);
void _zemdPow_HA(int n, const double* a, const double* b, double* r);
void _zemdPow(int n, const double* a, const double* b, double* r);
void _zemdPow_26(int n, const double* a, const double* b, double* r);

/* r = cube root of x^2, for all x. Error at most 2.0 ulp (LA); 0.55 ulp (HA); 2^-28 of the result
 * (EP). No status. */
extern const ork_d_unary ork_zem_kernel_dPow2o3_ttab[3];
extern const float ork_zem_kernel_dPow2o3_ctab[3];
void ork_zem_kernel_dPow2o3_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dPow2o3_W7HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dPow2o3_W7EPnnn(int n, const double* a, double* r);
void _zemdPow2o3_50(int n, const double* a, double* r);
void _zemdPow2o3_HA(int n, const double* a, double* r);
void _zemdPow2o3(int n, const double* a, double* r);
void _zemdPow2o3_26(int n, const double* a, double* r);

/* r = sqrt(x^3), for x >= 0. Error at most 2.0 ulp (LA); 0.60 ulp (HA); 2^-28 of the result (EP).
 * Status: 1 for x < 0. */
extern const ork_d_unary ork_zem_kernel_dPow3o2_ttab[3];
extern const float ork_zem_kernel_dPow3o2_ctab[3];
void ork_zem_kernel_dPow3o2_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dPow3o2_V8HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dPow3o2_W7EPnnn(int n, const double* a, double* r);
void _zemdPow3o2_50(int n, const double* a, double* r);
void _zemdPow3o2_HA(int n, const double* a, double* r);
void _zemdPow3o2(int n, const double* a, double* r);
void _zemdPow3o2_26(int n, const double* a, double* r);

/* r = x^b with one power b for all elements; x < 0 has powers of integers only. Error at most 0.60
 * ulp (LA, HA); 2^-22 of the result (EP). Status: 1 for x < 0 to a power that is no integer, and
 * for 0 to a negative power; 2 (HA) for 0 to the power -1/2. */
extern const ork_d_scalar ork_zem_kernel_dPowx_ttab[3];
extern const float ork_zem_kernel_dPowx_ctab[3];
void ork_zem_kernel_dPowx_V8LAynn(int n, const double* a, double b, double* r);
void ork_zem_kernel_dPowx_W7HAynn(int n, const double* a, double b, double* r);
void ork_zem_kernel_dPowx_V8EPnnn(int n, const double* a, double b, double* r);
void _zemdPowx_50(int n, const double* a, double b, double* r);
void _zemdPowx_HA(int n, const double* a, double b, double* r);
void _zemdPowx(int n, const double* a, double b, double* r);
void _zemdPowx_26(int n, const double* a, double b, double* r);

/* r = x rounded to an integer in the caller's rounding mode, halves to even in the usual one; the
 * sign of x stays, of zeros too. Error at most 0 ulp (LA, HA, EP). No status. */
extern const ork_d_unary ork_zem_kernel_dRint_ttab[3];
extern const float ork_zem_kernel_dRint_ctab[3];
void ork_zem_kernel_dRint_W7HAynn(int n, const double* a, double* r);
void _zemdRint_50(int n, const double* a, double* r);
void _zemdRint_HA(int n, const double* a, double* r);
void _zemdRint(int n, const double* a, double* r);
void _zemdRint_26(int n, const double* a, double* r);

/* r = integer nearest to x, halves away from zero in every rounding mode, exact. No status. */
extern const ork_d_unary ork_zem_kernel_dRound_ttab[3];
extern const float ork_zem_kernel_dRound_ctab[3];
void ork_zem_kernel_dRound_W7HAynn(int n, const double* a, double* r);
void _zemdRound_50(int n, const double* a, double* r);
void _zemdRound_HA(int n, const double* a, double* r);
void _zemdRound(int n, const double* a, double* r);
void _zemdRound_26(int n, const double* a, double* r);

/* r = sine of x, for all finite x: the angle is reduced exactly. Error at most 3.1 ulp (LA); 0.60
 * ulp (HA); 2^-26 of the result (EP). Status: 1 for infinities. */
extern const ork_d_unary ork_zem_kernel_dSin_ttab[3];
extern const float ork_zem_kernel_dSin_ctab[3];
void ork_zem_kernel_dSin_V8LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dSin_T7HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dSin_V8EPnnn(int n, const double* a, double* r);
void _zemdSin_50(int n, const double* a, double* r);
void _zemdSin_HA(int n, const double* a, double* r);
void _zemdSin(int n, const double* a, double* r);
void _zemdSin_26(int n, const double* a, double* r);

/* r = sine of x, r2 = cosine of x, for all finite x. Error at most 2 ulp (LA); 0.60 ulp (HA);
 * 2^-26 of the result (EP). Status: 1 for infinities. */
extern const ork_d_two ork_zem_kernel_dSinCos_ttab[3];
extern const float ork_zem_kernel_dSinCos_ctab[3];
void ork_zem_kernel_dSinCos_W7LAynn(int n, const double* a, double* r, double* r2);
void ork_zem_kernel_dSinCos_T7HAynn(int n, const double* a, double* r, double* r2);
void ork_zem_kernel_dSinCos_V8EPnnn(int n, const double* a, double* r, double* r2);
void _zemdSinCos_50(int n, const double* a, double* r, double* r2);
void _zemdSinCos_HA(int n, const double* a, double* r, double* r2);
void _zemdSinCos(int n, const double* a, double* r, double* r2);
void _zemdSinCos_26(int n, const double* a, double* r, double* r2);

/* r = hyperbolic sine (e^x - e^-x)/2. Error at most 2.5 ulp (LA, EP); 0.60 ulp (HA). Status: 3
 * where a finite x has an infinite result. */
extern const ork_d_unary ork_zem_kernel_dSinh_ttab[3];
extern const float ork_zem_kernel_dSinh_ctab[3];
void ork_zem_kernel_dSinh_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dSinh_W7HAynn(int n, const double* a, double* r);
void _zemdSinh_50(int n, const double* a, double* r);
void _zemdSinh_HA(int n, const double* a, double* r);
void _zemdSinh(int n, const double* a, double* r);
void _zemdSinh_26(int n, const double* a, double* r);

/* r = x^2. Error at most 0.5 ulp (LA, HA, EP). No status. */
extern const ork_d_unary ork_zem_kernel_dSqr_ttab[3];
extern const float ork_zem_kernel_dSqr_ctab[3];
void ork_zem_kernel_dSqr_V8HAynn(int n, const double* a, double* r);
void _zemdSqr_50(int n, const double* a, double* r);
void _zemdSqr_HA(int n, const double* a, double* r);
void _zemdSqr(int n, const double* a, double* r);
void _zemdSqr_26(int n, const double* a, double* r);

/* r = square root of x, for x >= 0; sqrt(-0) is -0. Error at most 2 ulp (LA); 0.51 ulp (HA); 2^-30
 * of the result (EP). Status: 1 for x < 0. */
extern const ork_d_unary ork_zem_kernel_dSqrt_ttab[3];
extern const float ork_zem_kernel_dSqrt_ctab[3];
void ork_zem_kernel_dSqrt_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dSqrt_W7HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dSqrt_W7EPnnn(int n, const double* a, double* r);
void _zemdSqrt_50(int n, const double* a, double* r);
void _zemdSqrt_HA(int n, const double* a, double* r);
void _zemdSqrt(int n, const double* a, double* r);
void _zemdSqrt_26(int n, const double* a, double* r);

/* r = x - y. Error at most 0.5 ulp (LA, HA, EP). No status. */
extern const ork_d_binary ork_zem_kernel_dSub_ttab[3];
extern const float ork_zem_kernel_dSub_ctab[3];
void ork_zem_kernel_dSub_V8HAynn(int n, const double* a, const double* b, double* r);
void _zemdSub_50(int n, const double* a, const double* b, double* r);
void _zemdSub_HA(int n, const double* a, const double* b, double* r);
void _zemdSub(int n, const double* a, const double* b, double* r);
void _zemdSub_26(int n, const double* a, const double* b, double* r);

/* r = gamma(x), for all x but 0, -1, -2, .... Error at most 0.51 ulp (LA, HA, EP). Status: 1 for
 * negative integers and -infinity; 2 for x = 0; 3 where a finite x has an infinite result; 4 (s)
 * where the result is 0 or denormal. */
extern const ork_d_unary ork_zem_kernel_dTGamma_ttab[3];
extern const float ork_zem_kernel_dTGamma_ctab[3];
void ork_zem_kernel_dTGamma_PXHAynn(int n, const double* a, double* r);
void _zemdTGamma_50(int n, const double* a, double* r);
void _zemdTGamma_HA(int n, const double* a, double* r);
void _zemdTGamma(int n, const double* a, double* r);
void _zemdTGamma_26(int n, const double* a, double* r);

/* r = tangent of x, for all finite x: the angle is reduced exactly. Error at most 2.0 ulp (LA);
 * 0.60 ulp (HA); 2^-26 of the result (EP). Status: 1 for infinities. */
extern const ork_d_unary ork_zem_kernel_dTan_ttab[3];
extern const float ork_zem_kernel_dTan_ctab[3];
void ork_zem_kernel_dTan_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dTan_W7HAynn(int n, const double* a, double* r);
void ork_zem_kernel_dTan_W7EPnnn(int n, const double* a, double* r);
void _zemdTan_50(int n, const double* a, double* r);
void _zemdTan_HA(int n, const double* a, double* r);
void _zemdTan(int n, const double* a, double* r);
void _zemdTan_26(int n, const double* a, double* r);

/* r = hyperbolic tangent of x, for all x. Error at most 1.5 ulp (LA, EP); 0.76 ulp (HA). No
 * status. */
extern const ork_d_unary ork_zem_kernel_dTanh_ttab[3];
extern const float ork_zem_kernel_dTanh_ctab[3];
void ork_zem_kernel_dTanh_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_dTanh_T7HAynn(int n, const double* a, double* r);
void _zemdTanh_50(int n, const double* a, double* r);
void _zemdTanh_HA(int n, const double* a, double* r);
void _zemdTanh(int n, const double* a, double* r);
void _zemdTanh_26(int n, const double* a, double* r);

/* r = x without its fraction, exact; the sign of x stays, of zeros too. No status. */
extern const ork_d_unary ork_zem_kernel_dTrunc_ttab[3];
extern const float ork_zem_kernel_dTrunc_ctab[3];
void ork_zem_kernel_dTrunc_W7HAynn(int n, const double* a, double* r);
void _zemdTrunc_50(int n, const double* a, double* r);
void _zemdTrunc_HA(int n, const double* a, double* r);
void _zemdTrunc(int n, const double* a, double* r);
void _zemdTrunc_26(int n, const double* a, double* r);

/* y[i stride] = a[i]: scatters at equal distances. */
extern const ork_d_unpack_i ork_zem_kernel_dUnpackI_ttab[3];
extern const float ork_zem_kernel_dUnpackI_ctab[3];
void ork_zem_kernel_dUnpackI_PXHAynn(int32_t n_low, int32_t n_high, const double* a, double* y, int32_t stride_low, int32_t stride_high, int width);
void _zemdUnpackI_50(int32_t n_low, int32_t n_high, const double* a, double* y, int32_t stride_low, int32_t stride_high, int width);
void _zemdUnpackI_HA(int32_t n_low, int32_t n_high, const double* a, double* y, int32_t stride_low, int32_t stride_high, int width);
void _zemdUnpackI(int32_t n_low, int32_t n_high, const double* a, double* y, int32_t stride_low, int32_t stride_high, int width);
void _zemdUnpackI_26(int32_t n_low, int32_t n_high, const double* a, double* y, int32_t stride_low, int32_t stride_high, int width);

/* those y[i] whose mask[i] is not 0 get a[0], a[1], ... in their order; the others stay. */
extern const ork_d_unpack_m ork_zem_kernel_dUnpackM_ttab[3];
extern const float ork_zem_kernel_dUnpackM_ctab[3];
void ork_zem_kernel_dUnpackM_PXHAynn(int32_t n_low, int32_t n_high, const double* a, double* y, const void* mask, int width);
void _zemdUnpackM_50(int32_t n_low, int32_t n_high, const double* a, double* y, const void* mask, int width);
void _zemdUnpackM_HA(int32_t n_low, int32_t n_high, const double* a, double* y, const void* mask, int width);
void _zemdUnpackM(int32_t n_low, int32_t n_high, const double* a, double* y, const void* mask, int width);
void _zemdUnpackM_26(int32_t n_low, int32_t n_high, const double* a, double* y, const void* mask, int width);

/* y[index[i]] = a[i]; of equal indices the last wins. */
extern const ork_d_unpack_v ork_zem_kernel_dUnpackV_ttab[3];
extern const float ork_zem_kernel_dUnpackV_ctab[3];
void ork_zem_kernel_dUnpackV_PXHAynn(int32_t n_low, int32_t n_high, const double* a, double* y, const void* index, int width);
void _zemdUnpackV_50(int32_t n_low, int32_t n_high, const double* a, double* y, const void* index, int width);
void _zemdUnpackV_HA(int32_t n_low, int32_t n_high, const double* a, double* y, const void* index, int width);
void _zemdUnpackV(int32_t n_low, int32_t n_high, const double* a, double* y, const void* index, int width);
void _zemdUnpackV_26(int32_t n_low, int32_t n_high, const double* a, double* y, const void* index, int width);

/* r = |x|, exact; a NaN loses its sign. No status. */
extern const ork_s_unary ork_zem_kernel_sAbs_ttab[3];
extern const float ork_zem_kernel_sAbs_ctab[3];
void ork_zem_kernel_sAbs_W7HAynn(int n, const float* a, float* r);
void _zemsAbs_21(int n, const float* a, float* r);
void _zemsAbs_HA(int n, const float* a, float* r);
void _zemsAbs(int n, const float* a, float* r);
void _zemsAbs_11(int n, const float* a, float* r);

/* r = arc cosine of x, from 0 to pi, for -1 <= x <= 1. Error at most 2.5 ulp (LA); 0.51 ulp (HA);
 * 2^-12 of the result (EP). Status: 1 for |x| > 1, infinities too. */
extern const ork_s_unary ork_zem_kernel_sAcos_ttab[3];
extern const float ork_zem_kernel_sAcos_ctab[3];
void ork_zem_kernel_sAcos_V8LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sAcos_V8HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sAcos_W7EPnnn(int n, const float* a, float* r);
void _zemsAcos_21(int n, const float* a, float* r);
void _zemsAcos_HA(int n, const float* a, float* r);
void _zemsAcos(int n, const float* a, float* r);
void _zemsAcos_11(int n, const float* a, float* r);

/* r = arcosh x = ln(x + sqrt(x^2 - 1)), from 0 on, for x >= 1. Error at most 0.51 ulp (LA, HA);
 * 2^-12 of the result (EP). Status: 1 for x < 1. */
extern const ork_s_unary ork_zem_kernel_sAcosh_ttab[3];
extern const float ork_zem_kernel_sAcosh_ctab[3];
void ork_zem_kernel_sAcosh_T7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sAcosh_W7EPnnn(int n, const float* a, float* r);
void _zemsAcosh_21(int n, const float* a, float* r);
void _zemsAcosh_HA(int n, const float* a, float* r);
void _zemsAcosh(int n, const float* a, float* r);
void _zemsAcosh_11(int n, const float* a, float* r);

/* r = x + y. Error at most 0.5 ulp (LA, HA, EP). No status. */
extern const ork_s_binary ork_zem_kernel_sAdd_ttab[3];
extern const float ork_zem_kernel_sAdd_ctab[3];
void ork_zem_kernel_sAdd_V8HAynn(int n, const float* a, const float* b, float* r);
void _zemsAdd_21(int n, const float* a, const float* b, float* r);
void _zemsAdd_HA(int n, const float* a, const float* b, float* r);
void _zemsAdd(int n, const float* a, const float* b, float* r);
void _zemsAdd_11(int n, const float* a, const float* b, float* r);

/* r = arc sine of x, from -pi/2 to pi/2, for -1 <= x <= 1. Error at most 2.5 ulp (LA); 0.51 ulp
 * (HA); 2^-12 of the result (EP). Status: 1 for |x| > 1, infinities too. */
extern const ork_s_unary ork_zem_kernel_sAsin_ttab[3];
extern const float ork_zem_kernel_sAsin_ctab[3];
void ork_zem_kernel_sAsin_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sAsin_T7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sAsin_W7EPnnn(int n, const float* a, float* r);
void _zemsAsin_21(int n, const float* a, float* r);
void _zemsAsin_HA(int n, const float* a, float* r);
void _zemsAsin(int n, const float* a, float* r);
void _zemsAsin_11(int n, const float* a, float* r);

/* r = arsinh x = ln(x + sqrt(x^2 + 1)), for all x. Error at most 2.5 ulp (LA); 0.51 ulp (HA);
 * 2^-12 of the result (EP). No status. */
extern const ork_s_unary ork_zem_kernel_sAsinh_ttab[3];
extern const float ork_zem_kernel_sAsinh_ctab[3];
void ork_zem_kernel_sAsinh_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sAsinh_T7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sAsinh_W7EPnnn(int n, const float* a, float* r);
void _zemsAsinh_21(int n, const float* a, float* r);
void _zemsAsinh_HA(int n, const float* a, float* r);
void _zemsAsinh(int n, const float* a, float* r);
void _zemsAsinh_11(int n, const float* a, float* r);

/* r = arc tangent of x, from -pi/2 to pi/2, for all x. Error at most 3.6 ulp (LA); 0.95 ulp (HA);
 * 2^-12 of the result (EP). No status. */
extern const ork_s_unary ork_zem_kernel_sAtan_ttab[3];
extern const float ork_zem_kernel_sAtan_ctab[3];
void ork_zem_kernel_sAtan_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sAtan_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sAtan_W7EPnnn(int n, const float* a, float* r);
void _zemsAtan_21(int n, const float* a, float* r);
void _zemsAtan_HA(int n, const float* a, float* r);
void _zemsAtan(int n, const float* a, float* r);
void _zemsAtan_11(int n, const float* a, float* r);

/* r = angle of the point (y, x), from -pi to pi: arc tangent of x/y in the quadrant that both
 * signs tell; a is the ordinate, b the abscissa. Error at most 2.5 ulp (LA); 0.51 ulp (HA); 2^-12
 * of the result (EP). No status. */
extern const ork_s_binary ork_zem_kernel_sAtan2_ttab[3];
extern const float ork_zem_kernel_sAtan2_ctab[3];
void ork_zem_kernel_sAtan2_V8LAynn(int n, const float* a, const float* b, float* r);
void ork_zem_kernel_sAtan2_V8HAynn(int n, const float* a, const float* b, float* r);
void ork_zem_kernel_sAtan2_W7EPnnn(int n, const float* a, const float* b, float* r);
void _zemsAtan2_21(int n, const float* a, const float* b, float* r);
void _zemsAtan2_HA(int n, const float* a, const float* b, float* r);
void _zemsAtan2(int n, const float* a, const float* b, float* r);
void _zemsAtan2_11(int n, const float* a, const float* b, float* r);

/* r = artanh x = ln((1 + x)/(1 - x))/2, for -1 < x < 1. Error at most 2.5 ulp (LA); 0.51 ulp (HA);
 * 2^-12 of the result (EP). Status: 1 for |x| > 1; 2 for x = -1 and 1. */
extern const ork_s_unary ork_zem_kernel_sAtanh_ttab[3];
extern const float ork_zem_kernel_sAtanh_ctab[3];
void ork_zem_kernel_sAtanh_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sAtanh_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sAtanh_W7EPnnn(int n, const float* a, float* r);
void _zemsAtanh_21(int n, const float* a, float* r);
void _zemsAtanh_HA(int n, const float* a, float* r);
void _zemsAtanh(int n, const float* a, float* r);
void _zemsAtanh_11(int n, const float* a, float* r);

/* r = cube root of x, with its sign, for all x. Error at most 0.55 ulp (LA); 0.51 ulp (HA); 2^-15
 * of the result (EP). No status. */
extern const ork_s_unary ork_zem_kernel_sCbrt_ttab[3];
extern const float ork_zem_kernel_sCbrt_ctab[3];
void ork_zem_kernel_sCbrt_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sCbrt_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sCbrt_W7EPnnn(int n, const float* a, float* r);
void _zemsCbrt_21(int n, const float* a, float* r);
void _zemsCbrt_HA(int n, const float* a, float* r);
void _zemsCbrt(int n, const float* a, float* r);
void _zemsCbrt_11(int n, const float* a, float* r);

/* r = probability that a standard normal number is below x, erfc(-x/sqrt 2)/2, for all x. Error at
 * most 0.6 ulp (LA); 0.55 ulp (HA); 2^-14 of the result (EP). Status: 4 for x below -38.4854 (d)
 * or -14.1702 (s), where the result is 0. */
extern const ork_s_unary ork_zem_kernel_sCdfNorm_ttab[3];
extern const float ork_zem_kernel_sCdfNorm_ctab[3];
void ork_zem_kernel_sCdfNorm_T7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sCdfNorm_T7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sCdfNorm_W7EPnnn(int n, const float* a, float* r);
void _zemsCdfNorm_21(int n, const float* a, float* r);
void _zemsCdfNorm_HA(int n, const float* a, float* r);
void _zemsCdfNorm(int n, const float* a, float* r);
void _zemsCdfNorm_11(int n, const float* a, float* r);

/* r = quantile of the standard normal distribution at probability x, for 0 < x < 1. Error at most
 * 0.6 ulp (LA); 0.51 ulp (HA); 2^-14 of the result (EP). Status: 1 for x below 0 or above 1; 2 for
 * x = 0 and 1. */
extern const ork_s_unary ork_zem_kernel_sCdfNormInv_ttab[3];
extern const float ork_zem_kernel_sCdfNormInv_ctab[3];
void ork_zem_kernel_sCdfNormInv_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sCdfNormInv_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sCdfNormInv_W7EPnnn(int n, const float* a, float* r);
void _zemsCdfNormInv_21(int n, const float* a, float* r);
void _zemsCdfNormInv_HA(int n, const float* a, float* r);
void _zemsCdfNormInv(int n, const float* a, float* r);
void _zemsCdfNormInv_11(int n, const float* a, float* r);

/* r = least integer not below x, exact; ceil(-0.5) is -0. No status. */
extern const ork_s_unary ork_zem_kernel_sCeil_ttab[3];
extern const float ork_zem_kernel_sCeil_ctab[3];
void ork_zem_kernel_sCeil_W7HAynn(int n, const float* a, float* r);
void _zemsCeil_21(int n, const float* a, float* r);
void _zemsCeil_HA(int n, const float* a, float* r);
void _zemsCeil(int n, const float* a, float* r);
void _zemsCeil_11(int n, const float* a, float* r);

/* r = cosine of x, for all finite x: the angle is reduced exactly. Error at most 2 ulp (LA); 0.85
 * ulp (HA); 2^-12 of the result (EP). Status: 1 for infinities. */
extern const ork_s_unary ork_zem_kernel_sCos_ttab[3];
extern const float ork_zem_kernel_sCos_ctab[3];
void ork_zem_kernel_sCos_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sCos_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sCos_W7EPnnn(int n, const float* a, float* r);
void _zemsCos_21(int n, const float* a, float* r);
void _zemsCos_HA(int n, const float* a, float* r);
void _zemsCos(int n, const float* a, float* r);
void _zemsCos_11(int n, const float* a, float* r);

/* r = hyperbolic cosine (e^x + e^-x)/2. Error at most 2 ulp (LA); 0.55 ulp (HA); 2^-12 of the
 * result (EP). Status: 3 where a finite x has an infinite result. */
extern const ork_s_unary ork_zem_kernel_sCosh_ttab[3];
extern const float ork_zem_kernel_sCosh_ctab[3];
void ork_zem_kernel_sCosh_V8LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sCosh_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sCosh_V8EPnnn(int n, const float* a, float* r);
void _zemsCosh_21(int n, const float* a, float* r);
void _zemsCosh_HA(int n, const float* a, float* r);
void _zemsCosh(int n, const float* a, float* r);
void _zemsCosh_11(int n, const float* a, float* r);

/* r = x / y. Error at most 3.6 ulp (LA); 0.5 ulp (HA); 2^-11 of the result (EP). Status: 2 for a
 * finite x over 0 (0/0 is a NaN). */
extern const ork_s_binary ork_zem_kernel_sDiv_ttab[3];
extern const float ork_zem_kernel_sDiv_ctab[3];
void ork_zem_kernel_sDiv_W7LAynn(int n, const float* a, const float* b, float* r);
void ork_zem_kernel_sDiv_W7HAynn(int n, const float* a, const float* b, float* r);
void ork_zem_kernel_sDiv_W7EPnnn(int n, const float* a, const float* b, float* r);
void _zemsDiv_21(int n, const float* a, const float* b, float* r);
void _zemsDiv_HA(int n, const float* a, const float* b, float* r);
void _zemsDiv(int n, const float* a, const float* b, float* r);
void _zemsDiv_11(int n, const float* a, const float* b, float* r);

/* r = error function of x, 2/sqrt(pi) times the integral of e^(-t^2) from 0 to x, for all x. Error
 * at most 0.6 ulp (LA); 0.51 ulp (HA); 2^-20 of the result (EP). No status. */
extern const ork_s_unary ork_zem_kernel_sErf_ttab[3];
extern const float ork_zem_kernel_sErf_ctab[3];
void ork_zem_kernel_sErf_V8LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sErf_V8HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sErf_V8EPnnn(int n, const float* a, float* r);
void _zemsErf_21(int n, const float* a, float* r);
void _zemsErf_HA(int n, const float* a, float* r);
void _zemsErf(int n, const float* a, float* r);
void _zemsErf_11(int n, const float* a, float* r);

/* r = number whose error function is x, for -1 < x < 1. Error at most 0.8 ulp (LA); 0.51 ulp (HA);
 * 2^-14 of the result (EP). Status: 1 for |x| > 1; 2 for x = -1 and 1. */
extern const ork_s_unary ork_zem_kernel_sErfInv_ttab[3];
extern const float ork_zem_kernel_sErfInv_ctab[3];
void ork_zem_kernel_sErfInv_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sErfInv_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sErfInv_W7EPnnn(int n, const float* a, float* r);
void _zemsErfInv_21(int n, const float* a, float* r);
void _zemsErfInv_HA(int n, const float* a, float* r);
void _zemsErfInv(int n, const float* a, float* r);
void _zemsErfInv_11(int n, const float* a, float* r);

/* r = 1 - erf(x) without its cancellation, for all x. Error at most 1.5 ulp (LA); 0.51 ulp (HA);
 * 2^-14 of the result (EP). Status: 4 where the result is 0 or denormal. */
extern const ork_s_unary ork_zem_kernel_sErfc_ttab[3];
extern const float ork_zem_kernel_sErfc_ctab[3];
void ork_zem_kernel_sErfc_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sErfc_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sErfc_W7EPnnn(int n, const float* a, float* r);
void _zemsErfc_21(int n, const float* a, float* r);
void _zemsErfc_HA(int n, const float* a, float* r);
void _zemsErfc(int n, const float* a, float* r);
void _zemsErfc_11(int n, const float* a, float* r);

/* r = number whose complementary error function is x, for 0 < x < 2. Error at most 0.6 ulp (LA);
 * 0.51 ulp (HA); 2^-14 of the result (EP). Status: 1 for x below 0 or above 2; 2 for x = 0 and 2. */
extern const ork_s_unary ork_zem_kernel_sErfcInv_ttab[3];
extern const float ork_zem_kernel_sErfcInv_ctab[3];
void ork_zem_kernel_sErfcInv_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sErfcInv_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sErfcInv_W7EPnnn(int n, const float* a, float* r);
void _zemsErfcInv_21(int n, const float* a, float* r);
void _zemsErfcInv_HA(int n, const float* a, float* r);
void _zemsErfcInv(int n, const float* a, float* r);
void _zemsErfcInv_11(int n, const float* a, float* r);

/* r = e^x. Error at most 2.0 ulp (LA); 1.0 ulp (HA); 2^-12 of the result (EP). Status: 3 where a
 * finite x has an infinite result; 4 where the result is 0 or denormal. */
extern const ork_s_unary ork_zem_kernel_sExp_ttab[3];
extern const float ork_zem_kernel_sExp_ctab[3];
void ork_zem_kernel_sExp_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sExp_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sExp_V8EPnnn(int n, const float* a, float* r);
void _zemsExp_21(int n, const float* a, float* r);
void _zemsExp_HA(int n, const float* a, float* r);
void _zemsExp(int n, const float* a, float* r);
void _zemsExp_11(int n, const float* a, float* r);

/* r = e^x - 1 without its cancellation. Error at most 0.6 ulp (LA, HA, EP). Status: 3 where a
 * finite x has an infinite result. */
extern const ork_s_unary ork_zem_kernel_sExpm1_ttab[3];
extern const float ork_zem_kernel_sExpm1_ctab[3];
void ork_zem_kernel_sExpm1_V8HAynn(int n, const float* a, float* r);
void _zemsExpm1_21(int n, const float* a, float* r);
void _zemsExpm1_HA(int n, const float* a, float* r);
void _zemsExpm1(int n, const float* a, float* r);
void _zemsExpm1_11(int n, const float* a, float* r);

/* r = greatest integer not above x, exact. No status. */
extern const ork_s_unary ork_zem_kernel_sFloor_ttab[3];
extern const float ork_zem_kernel_sFloor_ctab[3];
void ork_zem_kernel_sFloor_W7HAynn(int n, const float* a, float* r);
void _zemsFloor_21(int n, const float* a, float* r);
void _zemsFloor_HA(int n, const float* a, float* r);
void _zemsFloor(int n, const float* a, float* r);
void _zemsFloor_11(int n, const float* a, float* r);

/* r = sqrt(x^2 + y^2) without overflow or underflow on the way; an infinite x or y gives infinity,
 * even beside a NaN. Error at most 1.0 ulp (LA); 0.51 ulp (HA); 2^-12 of the result (EP). No
 * status. */
extern const ork_s_binary ork_zem_kernel_sHypot_ttab[3];
extern const float ork_zem_kernel_sHypot_ctab[3];
void ork_zem_kernel_sHypot_W7LAynn(int n, const float* a, const float* b, float* r);
void ork_zem_kernel_sHypot_W7HAynn(int n, const float* a, const float* b, float* r);
void ork_zem_kernel_sHypot_V8EPnnn(int n, const float* a, const float* b, float* r);
void _zemsHypot_21(int n, const float* a, const float* b, float* r);
void _zemsHypot_HA(int n, const float* a, const float* b, float* r);
void _zemsHypot(int n, const float* a, const float* b, float* r);
void _zemsHypot_11(int n, const float* a, const float* b, float* r);

/* r = 1 / x. Error at most 3.35 ulp (LA); 0.5 ulp (HA); 2^-11 of the result (EP). Status: 2 for x
 * = 0. */
extern const ork_s_unary ork_zem_kernel_sInv_ttab[3];
extern const float ork_zem_kernel_sInv_ctab[3];
void ork_zem_kernel_sInv_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sInv_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sInv_W7EPnnn(int n, const float* a, float* r);
void _zemsInv_21(int n, const float* a, float* r);
void _zemsInv_HA(int n, const float* a, float* r);
void _zemsInv(int n, const float* a, float* r);
void _zemsInv_11(int n, const float* a, float* r);

/* r = 1 / cube root of x, with its sign. Error at most 1.15 ulp (LA); 0.51 ulp (HA); 2^-14 of the
 * result (EP). Status: 2 for x = 0. */
extern const ork_s_unary ork_zem_kernel_sInvCbrt_ttab[3];
extern const float ork_zem_kernel_sInvCbrt_ctab[3];
void ork_zem_kernel_sInvCbrt_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sInvCbrt_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sInvCbrt_W7EPnnn(int n, const float* a, float* r);
void _zemsInvCbrt_21(int n, const float* a, float* r);
void _zemsInvCbrt_HA(int n, const float* a, float* r);
void _zemsInvCbrt(int n, const float* a, float* r);
void _zemsInvCbrt_11(int n, const float* a, float* r);

/* r = 1 / sqrt(x), for x > 0. Error at most 4 ulp (LA); 0.51 ulp (HA); 2^-11 of the result (EP).
 * Status: 1 for x < 0; 2 for x = 0. */
extern const ork_s_unary ork_zem_kernel_sInvSqrt_ttab[3];
extern const float ork_zem_kernel_sInvSqrt_ctab[3];
void ork_zem_kernel_sInvSqrt_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sInvSqrt_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sInvSqrt_W7EPnnn(int n, const float* a, float* r);
void _zemsInvSqrt_21(int n, const float* a, float* r);
void _zemsInvSqrt_HA(int n, const float* a, float* r);
void _zemsInvSqrt(int n, const float* a, float* r);
void _zemsInvSqrt_11(int n, const float* a, float* r);

/* r = ln |gamma(x)|, for all x but 0, -1, -2, .... Error at most 0.55 ulp (LA, HA, EP). Status: 2
 * for x = 0, -1, -2, ...; 3 where a finite x has an infinite result. */
extern const ork_s_unary ork_zem_kernel_sLGamma_ttab[3];
extern const float ork_zem_kernel_sLGamma_ctab[3];
void ork_zem_kernel_sLGamma_PXHAynn(int n, const float* a, float* r);
void _zemsLGamma_21(int n, const float* a, float* r);
void _zemsLGamma_HA(int n, const float* a, float* r);
void _zemsLGamma(int n, const float* a, float* r);
void _zemsLGamma_11(int n, const float* a, float* r);

/* r = (scale_a x + shift_a) / (scale_b y + shift_b), each of the four real numbers by value. Error
 * at most 4.5 ulp (LA, HA, EP). No status. */
extern const ork_s_linear ork_zem_kernel_sLinearFrac_ttab[3];
extern const float ork_zem_kernel_sLinearFrac_ctab[3];
void ork_zem_kernel_sLinearFrac_V8HAynn(int n, const float* a, const float* b, float scale_a, float shift_a, float scale_b, float shift_b, float* r);
void _zemsLinearFrac_21(int n, const float* a, const float* b, float scale_a, float shift_a, float scale_b, float shift_b, float* r);
void _zemsLinearFrac_HA(int n, const float* a, const float* b, float scale_a, float shift_a, float scale_b, float shift_b, float* r);
void _zemsLinearFrac(int n, const float* a, const float* b, float scale_a, float shift_a, float scale_b, float shift_b, float* r);
void _zemsLinearFrac_11(int n, const float* a, const float* b, float scale_a, float shift_a, float scale_b, float shift_b, float* r);

/* r = natural logarithm of x, for x > 0. Error at most 4.0 ulp (LA); 1.0 ulp (HA); 2^-10 of the
 * result (EP). Status: 1 for x < 0; 2 for x = 0. */
extern const ork_s_unary ork_zem_kernel_sLn_ttab[3];
extern const float ork_zem_kernel_sLn_ctab[3];
void ork_zem_kernel_sLn_V8LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sLn_V8HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sLn_V8EPnnn(int n, const float* a, float* r);
void _zemsLn_21(int n, const float* a, float* r);
void _zemsLn_HA(int n, const float* a, float* r);
void _zemsLn(int n, const float* a, float* r);
void _zemsLn_11(int n, const float* a, float* r);

/* r = logarithm of x to the base 10, for x > 0. Error at most 2.7 ulp (LA); 0.65 ulp (HA); 2^-14
 * of the result (EP). Status: 1 for x < 0; 2 for x = 0. */
extern const ork_s_unary ork_zem_kernel_sLog10_ttab[3];
extern const float ork_zem_kernel_sLog10_ctab[3];
void ork_zem_kernel_sLog10_V8LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sLog10_V8HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sLog10_W7EPnnn(int n, const float* a, float* r);
void _zemsLog10_21(int n, const float* a, float* r);
void _zemsLog10_HA(int n, const float* a, float* r);
void _zemsLog10(int n, const float* a, float* r);
void _zemsLog10_11(int n, const float* a, float* r);

/* r = ln(1 + x) without its cancellation, for x > -1. Error at most 2.0 ulp (LA, EP); 0.65 ulp
 * (HA). Status: 1 for x < -1; 2 for x = -1. */
extern const ork_s_unary ork_zem_kernel_sLog1p_ttab[3];
extern const float ork_zem_kernel_sLog1p_ctab[3];
void ork_zem_kernel_sLog1p_V8LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sLog1p_V8HAynn(int n, const float* a, float* r);
void _zemsLog1p_21(int n, const float* a, float* r);
void _zemsLog1p_HA(int n, const float* a, float* r);
void _zemsLog1p(int n, const float* a, float* r);
void _zemsLog1p_11(int n, const float* a, float* r);

/* r = x without its fraction, r2 = the fraction, both with the sign of x, exact; infinities have a
 * fraction of 0. No status. */
extern const ork_s_two ork_zem_kernel_sModf_ttab[3];
extern const float ork_zem_kernel_sModf_ctab[3];
void ork_zem_kernel_sModf_W7HAynn(int n, const float* a, float* r, float* r2);
void _zemsModf_21(int n, const float* a, float* r, float* r2);
void _zemsModf_HA(int n, const float* a, float* r, float* r2);
void _zemsModf(int n, const float* a, float* r, float* r2);
void _zemsModf_11(int n, const float* a, float* r, float* r2);

/* r = x y. Error at most 0.5 ulp (LA, HA, EP). No status. */
extern const ork_s_binary ork_zem_kernel_sMul_ttab[3];
extern const float ork_zem_kernel_sMul_ctab[3];
void ork_zem_kernel_sMul_V8HAynn(int n, const float* a, const float* b, float* r);
void _zemsMul_21(int n, const float* a, const float* b, float* r);
void _zemsMul_HA(int n, const float* a, const float* b, float* r);
void _zemsMul(int n, const float* a, const float* b, float* r);
void _zemsMul_11(int n, const float* a, const float* b, float* r);

/* r = x rounded to an integer in the caller's rounding mode, halves to even in the usual one; the
 * sign of x stays, of zeros too. The same results as Rint. Error at most 0 ulp (LA, HA, EP). No
 * status. */
extern const ork_s_unary ork_zem_kernel_sNearbyInt_ttab[3];
extern const float ork_zem_kernel_sNearbyInt_ctab[3];
void ork_zem_kernel_sNearbyInt_W7HAynn(int n, const float* a, float* r);
void _zemsNearbyInt_21(int n, const float* a, float* r);
void _zemsNearbyInt_HA(int n, const float* a, float* r);
void _zemsNearbyInt(int n, const float* a, float* r);
void _zemsNearbyInt_11(int n, const float* a, float* r);

/* y[i] = a[i stride]: gathers at equal distances. */
extern const ork_s_pack_i ork_zem_kernel_sPackI_ttab[3];
extern const float ork_zem_kernel_sPackI_ctab[3];
void ork_zem_kernel_sPackI_PXHAynn(int32_t n_low, int32_t n_high, const float* a, int32_t stride_low, int32_t stride_high, float* y, int width);
void _zemsPackI_21(int32_t n_low, int32_t n_high, const float* a, int32_t stride_low, int32_t stride_high, float* y, int width);
void _zemsPackI_HA(int32_t n_low, int32_t n_high, const float* a, int32_t stride_low, int32_t stride_high, float* y, int width);
void _zemsPackI(int32_t n_low, int32_t n_high, const float* a, int32_t stride_low, int32_t stride_high, float* y, int width);
void _zemsPackI_11(int32_t n_low, int32_t n_high, const float* a, int32_t stride_low, int32_t stride_high, float* y, int width);

/* y gets, side by side, those a[i] whose mask[i] is not 0. */
extern const ork_s_pack_m ork_zem_kernel_sPackM_ttab[3];
extern const float ork_zem_kernel_sPackM_ctab[3];
void ork_zem_kernel_sPackM_PXHAynn(int32_t n_low, int32_t n_high, const float* a, const void* mask, float* y, int width);
void _zemsPackM_21(int32_t n_low, int32_t n_high, const float* a, const void* mask, float* y, int width);
void _zemsPackM_HA(int32_t n_low, int32_t n_high, const float* a, const void* mask, float* y, int width);
void _zemsPackM(int32_t n_low, int32_t n_high, const float* a, const void* mask, float* y, int width);
void _zemsPackM_11(int32_t n_low, int32_t n_high, const float* a, const void* mask, float* y, int width);

/* y[i] = a[index[i]]. */
extern const ork_s_pack_v ork_zem_kernel_sPackV_ttab[3];
extern const float ork_zem_kernel_sPackV_ctab[3];
void ork_zem_kernel_sPackV_PXHAynn(int32_t n_low, int32_t n_high, const float* a, const void* index, float* y, int width);
void _zemsPackV_21(int32_t n_low, int32_t n_high, const float* a, const void* index, float* y, int width);
void _zemsPackV_HA(int32_t n_low, int32_t n_high, const float* a, const void* index, float* y, int width);
void _zemsPackV(int32_t n_low, int32_t n_high, const float* a, const void* index, float* y, int width);
void _zemsPackV_11(int32_t n_low, int32_t n_high, const float* a, const void* index, float* y, int width);

/* r = x^y; x < 0 has powers of integers y only. Error at most 0.51 ulp (LA, HA); 2^-12 of the
 * result (EP). Status: 1 for x < 0 to a power that is no integer, and for 0 to a negative power. */
extern const ork_s_binary ork_zem_kernel_sPow_ttab[3];
extern const float ork_zem_kernel_sPow_ctab[3];
void ork_zem_kernel_sPow_T7HAynn(int n, const float* a, const float* b, float* r);
void ork_zem_kernel_sPow_V8EPnnn(int n, const float* a, const float* b, float* r);
void _zemsPow_21(int n, const float* a, const float* b, float* r);
void _zemsPow_HA(int n, const float* a, const float* b, float* r);
void _zemsPow(int n, const float* a, const float* b, float* r);
void _zemsPow_11(int n, const float* a, const float* b, float* r);

/* r = cube root of x^2, for all x. Error at most 2.0 ulp (LA); 0.51 ulp (HA); 2^-14 of the result
 * (EP). No status. */
extern const ork_s_unary ork_zem_kernel_sPow2o3_ttab[3];
extern const float ork_zem_kernel_sPow2o3_ctab[3];
void ork_zem_kernel_sPow2o3_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sPow2o3_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sPow2o3_W7EPnnn(int n, const float* a, float* r);
void _zemsPow2o3_21(int n, const float* a, float* r);
void _zemsPow2o3_HA(int n, const float* a, float* r);
void _zemsPow2o3(int n, const float* a, float* r);
void _zemsPow2o3_11(int n, const float* a, float* r);

/* r = sqrt(x^3), for x >= 0. Error at most 2.0 ulp (LA); 0.51 ulp (HA); 2^-12 of the result (EP).
 * Status: 1 for x < 0. */
extern const ork_s_unary ork_zem_kernel_sPow3o2_ttab[3];
extern const float ork_zem_kernel_sPow3o2_ctab[3];
void ork_zem_kernel_sPow3o2_V8LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sPow3o2_V8HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sPow3o2_V8EPnnn(int n, const float* a, float* r);
void _zemsPow3o2_21(int n, const float* a, float* r);
void _zemsPow3o2_HA(int n, const float* a, float* r);
void _zemsPow3o2(int n, const float* a, float* r);
void _zemsPow3o2_11(int n, const float* a, float* r);

/* r = x^b with one power b for all elements; x < 0 has powers of integers only. Error at most 0.51
 * ulp (LA, HA); 2^-12 of the result (EP). Status: 1 for x < 0 to a power that is no integer, and
 * for 0 to a negative power; 2 (HA) for 0 to the power -1/2. */
extern const ork_s_scalar ork_zem_kernel_sPowx_ttab[3];
extern const float ork_zem_kernel_sPowx_ctab[3];
void ork_zem_kernel_sPowx_W7HAynn(int n, const float* a, float b, float* r);
void ork_zem_kernel_sPowx_V8EPnnn(int n, const float* a, float b, float* r);
void _zemsPowx_21(int n, const float* a, float b, float* r);
void _zemsPowx_HA(int n, const float* a, float b, float* r);
void _zemsPowx(int n, const float* a, float b, float* r);
void _zemsPowx_11(int n, const float* a, float b, float* r);

/* r = x rounded to an integer in the caller's rounding mode, halves to even in the usual one; the
 * sign of x stays, of zeros too. Error at most 0 ulp (LA, HA, EP). No status. */
extern const ork_s_unary ork_zem_kernel_sRint_ttab[3];
extern const float ork_zem_kernel_sRint_ctab[3];
void ork_zem_kernel_sRint_W7HAynn(int n, const float* a, float* r);
void _zemsRint_21(int n, const float* a, float* r);
void _zemsRint_HA(int n, const float* a, float* r);
void _zemsRint(int n, const float* a, float* r);
void _zemsRint_11(int n, const float* a, float* r);

/* r = integer nearest to x, halves away from zero in every rounding mode, exact. No status. */
extern const ork_s_unary ork_zem_kernel_sRound_ttab[3];
extern const float ork_zem_kernel_sRound_ctab[3];
void ork_zem_kernel_sRound_W7HAynn(int n, const float* a, float* r);
void _zemsRound_21(int n, const float* a, float* r);
void _zemsRound_HA(int n, const float* a, float* r);
void _zemsRound(int n, const float* a, float* r);
void _zemsRound_11(int n, const float* a, float* r);

/* r = sine of x, for all finite x: the angle is reduced exactly. Error at most 2 ulp (LA); 0.85
 * ulp (HA); 2^-12 of the result (EP). Status: 1 for infinities. */
extern const ork_s_unary ork_zem_kernel_sSin_ttab[3];
extern const float ork_zem_kernel_sSin_ctab[3];
void ork_zem_kernel_sSin_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sSin_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sSin_W7EPnnn(int n, const float* a, float* r);
void _zemsSin_21(int n, const float* a, float* r);
void _zemsSin_HA(int n, const float* a, float* r);
void _zemsSin(int n, const float* a, float* r);
void _zemsSin_11(int n, const float* a, float* r);

/* r = sine of x, r2 = cosine of x, for all finite x. Error at most 2 ulp (LA); 0.55 ulp (HA);
 * 2^-12 of the result (EP). Status: 1 for infinities. */
extern const ork_s_two ork_zem_kernel_sSinCos_ttab[3];
extern const float ork_zem_kernel_sSinCos_ctab[3];
void ork_zem_kernel_sSinCos_W7LAynn(int n, const float* a, float* r, float* r2);
void ork_zem_kernel_sSinCos_W7HAynn(int n, const float* a, float* r, float* r2);
void ork_zem_kernel_sSinCos_W7EPnnn(int n, const float* a, float* r, float* r2);
void _zemsSinCos_21(int n, const float* a, float* r, float* r2);
void _zemsSinCos_HA(int n, const float* a, float* r, float* r2);
void _zemsSinCos(int n, const float* a, float* r, float* r2);
void _zemsSinCos_11(int n, const float* a, float* r, float* r2);

/* r = hyperbolic sine (e^x - e^-x)/2. Error at most 2.5 ulp (LA); 0.55 ulp (HA); 2^-12 of the
 * result (EP). Status: 3 where a finite x has an infinite result. */
extern const ork_s_unary ork_zem_kernel_sSinh_ttab[3];
extern const float ork_zem_kernel_sSinh_ctab[3];
void ork_zem_kernel_sSinh_V8LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sSinh_V8HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sSinh_V8EPnnn(int n, const float* a, float* r);
void _zemsSinh_21(int n, const float* a, float* r);
void _zemsSinh_HA(int n, const float* a, float* r);
void _zemsSinh(int n, const float* a, float* r);
void _zemsSinh_11(int n, const float* a, float* r);

/* r = x^2. Error at most 0.5 ulp (LA, HA, EP). No status. */
extern const ork_s_unary ork_zem_kernel_sSqr_ttab[3];
extern const float ork_zem_kernel_sSqr_ctab[3];
void ork_zem_kernel_sSqr_V8HAynn(int n, const float* a, float* r);
void _zemsSqr_21(int n, const float* a, float* r);
void _zemsSqr_HA(int n, const float* a, float* r);
void _zemsSqr(int n, const float* a, float* r);
void _zemsSqr_11(int n, const float* a, float* r);

/* r = square root of x, for x >= 0; sqrt(-0) is -0. Error at most 3.25 ulp (LA); 0.51 ulp (HA);
 * 2^-11 of the result (EP). Status: 1 for x < 0. */
extern const ork_s_unary ork_zem_kernel_sSqrt_ttab[3];
extern const float ork_zem_kernel_sSqrt_ctab[3];
void ork_zem_kernel_sSqrt_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sSqrt_T7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sSqrt_W7EPnnn(int n, const float* a, float* r);
void _zemsSqrt_21(int n, const float* a, float* r);
void _zemsSqrt_HA(int n, const float* a, float* r);
void _zemsSqrt(int n, const float* a, float* r);
void _zemsSqrt_11(int n, const float* a, float* r);

/* r = x - y. Error at most 0.5 ulp (LA, HA, EP). No status. */
extern const ork_s_binary ork_zem_kernel_sSub_ttab[3];
extern const float ork_zem_kernel_sSub_ctab[3];
void ork_zem_kernel_sSub_V8HAynn(int n, const float* a, const float* b, float* r);
void _zemsSub_21(int n, const float* a, const float* b, float* r);
void _zemsSub_HA(int n, const float* a, const float* b, float* r);
void _zemsSub(int n, const float* a, const float* b, float* r);
void _zemsSub_11(int n, const float* a, const float* b, float* r);

/* r = gamma(x), for all x but 0, -1, -2, .... Error at most 0.51 ulp (LA, HA, EP). Status: 1 for
 * negative integers and -infinity; 2 for x = 0; 3 where a finite x has an infinite result; 4 (s)
 * where the result is 0 or denormal. */
extern const ork_s_unary ork_zem_kernel_sTGamma_ttab[3];
extern const float ork_zem_kernel_sTGamma_ctab[3];
void ork_zem_kernel_sTGamma_PXHAynn(int n, const float* a, float* r);
void _zemsTGamma_21(int n, const float* a, float* r);
void _zemsTGamma_HA(int n, const float* a, float* r);
void _zemsTGamma(int n, const float* a, float* r);
void _zemsTGamma_11(int n, const float* a, float* r);

/* r = tangent of x, for all finite x: the angle is reduced exactly. Error at most 2 ulp (LA); 0.55
 * ulp (HA); 2^-12 of the result (EP). Status: 1 for infinities. */
extern const ork_s_unary ork_zem_kernel_sTan_ttab[3];
extern const float ork_zem_kernel_sTan_ctab[3];
void ork_zem_kernel_sTan_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sTan_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sTan_W7EPnnn(int n, const float* a, float* r);
void _zemsTan_21(int n, const float* a, float* r);
void _zemsTan_HA(int n, const float* a, float* r);
void _zemsTan(int n, const float* a, float* r);
void _zemsTan_11(int n, const float* a, float* r);

/* r = hyperbolic tangent of x, for all x. Error at most 2 ulp (LA); 0.55 ulp (HA); 2^-12 of the
 * result (EP). No status. */
extern const ork_s_unary ork_zem_kernel_sTanh_ttab[3];
extern const float ork_zem_kernel_sTanh_ctab[3];
void ork_zem_kernel_sTanh_V8LAynn(int n, const float* a, float* r);
void ork_zem_kernel_sTanh_V8HAynn(int n, const float* a, float* r);
void ork_zem_kernel_sTanh_W7EPnnn(int n, const float* a, float* r);
void _zemsTanh_21(int n, const float* a, float* r);
void _zemsTanh_HA(int n, const float* a, float* r);
void _zemsTanh(int n, const float* a, float* r);
void _zemsTanh_11(int n, const float* a, float* r);

/* r = x without its fraction, exact; the sign of x stays, of zeros too. No status. */
extern const ork_s_unary ork_zem_kernel_sTrunc_ttab[3];
extern const float ork_zem_kernel_sTrunc_ctab[3];
void ork_zem_kernel_sTrunc_W7HAynn(int n, const float* a, float* r);
void _zemsTrunc_21(int n, const float* a, float* r);
void _zemsTrunc_HA(int n, const float* a, float* r);
void _zemsTrunc(int n, const float* a, float* r);
void _zemsTrunc_11(int n, const float* a, float* r);

/* y[i stride] = a[i]: scatters at equal distances. */
extern const ork_s_unpack_i ork_zem_kernel_sUnpackI_ttab[3];
extern const float ork_zem_kernel_sUnpackI_ctab[3];
void ork_zem_kernel_sUnpackI_PXHAynn(int32_t n_low, int32_t n_high, const float* a, float* y, int32_t stride_low, int32_t stride_high, int width);
void _zemsUnpackI_21(int32_t n_low, int32_t n_high, const float* a, float* y, int32_t stride_low, int32_t stride_high, int width);
void _zemsUnpackI_HA(int32_t n_low, int32_t n_high, const float* a, float* y, int32_t stride_low, int32_t stride_high, int width);
void _zemsUnpackI(int32_t n_low, int32_t n_high, const float* a, float* y, int32_t stride_low, int32_t stride_high, int width);
void _zemsUnpackI_11(int32_t n_low, int32_t n_high, const float* a, float* y, int32_t stride_low, int32_t stride_high, int width);

/* those y[i] whose mask[i] is not 0 get a[0], a[1], ... in their order; the others stay. */
extern const ork_s_unpack_m ork_zem_kernel_sUnpackM_ttab[3];
extern const float ork_zem_kernel_sUnpackM_ctab[3];
void ork_zem_kernel_sUnpackM_PXHAynn(int32_t n_low, int32_t n_high, const float* a, float* y, const void* mask, int width);
void _zemsUnpackM_21(int32_t n_low, int32_t n_high, const float* a, float* y, const void* mask, int width);
void _zemsUnpackM_HA(int32_t n_low, int32_t n_high, const float* a, float* y, const void* mask, int width);
void _zemsUnpackM(int32_t n_low, int32_t n_high, const float* a, float* y, const void* mask, int width);
void _zemsUnpackM_11(int32_t n_low, int32_t n_high, const float* a, float* y, const void* mask, int width);

/* y[index[i]] = a[i]; of equal indices the last wins. */
extern const ork_s_unpack_v ork_zem_kernel_sUnpackV_ttab[3];
extern const float ork_zem_kernel_sUnpackV_ctab[3];
void ork_zem_kernel_sUnpackV_PXHAynn(int32_t n_low, int32_t n_high, const float* a, float* y, const void* index, int width);
void _zemsUnpackV_21(int32_t n_low, int32_t n_high, const float* a, float* y, const void* index, int width);
void _zemsUnpackV_HA(int32_t n_low, int32_t n_high, const float* a, float* y, const void* index, int width);
void _zemsUnpackV(int32_t n_low, int32_t n_high, const float* a, float* y, const void* index, int width);
void _zemsUnpackV_11(int32_t n_low, int32_t n_high, const float* a, float* y, const void* index, int width);

/* r = |x| = sqrt(re^2 + im^2), a real number; an infinite part gives infinity, even beside a NaN.
 * HA and LA do not overflow or underflow on the way. Error at most 1 ulp (LA); 0.51 ulp (HA);
 * 2^-22 of the modulus (EP). No status. */
extern const ork_c_to_real ork_zem_kernel_cAbs_ttab[3];
extern const float ork_zem_kernel_cAbs_ctab[3];
void ork_zem_kernel_cAbs_V8LAynn(int n, const float* a, float* r);
void ork_zem_kernel_cAbs_V8HAynn(int n, const float* a, float* r);
void ork_zem_kernel_cAbs_V8EPnnn(int n, const float* a, float* r);
void _zemcAbs_21(int n, const float* a, float* r);
void _zemcAbs_HA(int n, const float* a, float* r);
void _zemcAbs(int n, const float* a, float* r);
void _zemcAbs_11(int n, const float* a, float* r);

/* r = arc cosine of x, real part from 0 to pi, cuts along the real axis beyond -1 and 1. Error a
 * part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_c_unary ork_zem_kernel_cAcos_ttab[3];
extern const float ork_zem_kernel_cAcos_ctab[3];
void ork_zem_kernel_cAcos_PXHAynn(int n, const float* a, float* r);
void _zemcAcos_21(int n, const float* a, float* r);
void _zemcAcos_HA(int n, const float* a, float* r);
void _zemcAcos(int n, const float* a, float* r);
void _zemcAcos_11(int n, const float* a, float* r);

/* r = arcosh x, real part from 0 on, imaginary part from -pi to pi, cut along the real axis below
 * 1. Error a part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_c_unary ork_zem_kernel_cAcosh_ttab[3];
extern const float ork_zem_kernel_cAcosh_ctab[3];
void ork_zem_kernel_cAcosh_PXHAynn(int n, const float* a, float* r);
void _zemcAcosh_21(int n, const float* a, float* r);
void _zemcAcosh_HA(int n, const float* a, float* r);
void _zemcAcosh(int n, const float* a, float* r);
void _zemcAcosh_11(int n, const float* a, float* r);

/* r = x + y, part by part. Error a part at most 0.5 ulp, 0.71 ulp of the modulus (LA, HA); 2^-23
 * of the modulus (EP). Status: 3 (LA, HA) where finite parts have an infinite sum. */
extern const ork_c_binary ork_zem_kernel_cAdd_ttab[3];
extern const float ork_zem_kernel_cAdd_ctab[3];
void ork_zem_kernel_cAdd_V8HAynn(int n, const float* a, const float* b, float* r);
void ork_zem_kernel_cAdd_V8EPnnn(int n, const float* a, const float* b, float* r);
void _zemcAdd_21(int n, const float* a, const float* b, float* r);
void _zemcAdd_HA(int n, const float* a, const float* b, float* r);
void _zemcAdd(int n, const float* a, const float* b, float* r);
void _zemcAdd_11(int n, const float* a, const float* b, float* r);

/* r = argument of x = atan2(im, re), a real number from -pi to pi. Error at most 0.51 ulp (LA,
 * HA); 2^-12 of the modulus (EP). No status. */
extern const ork_c_to_real ork_zem_kernel_cArg_ttab[3];
extern const float ork_zem_kernel_cArg_ctab[3];
void ork_zem_kernel_cArg_V8LAynn(int n, const float* a, float* r);
void ork_zem_kernel_cArg_V8HAynn(int n, const float* a, float* r);
void ork_zem_kernel_cArg_V8EPnnn(int n, const float* a, float* r);
void _zemcArg_21(int n, const float* a, float* r);
void _zemcArg_HA(int n, const float* a, float* r);
void _zemcArg(int n, const float* a, float* r);
void _zemcArg_11(int n, const float* a, float* r);

/* r = arc sine of x, real part from -pi/2 to pi/2, cuts along the real axis beyond -1 and 1. Error
 * a part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_c_unary ork_zem_kernel_cAsin_ttab[3];
extern const float ork_zem_kernel_cAsin_ctab[3];
void ork_zem_kernel_cAsin_PXHAynn(int n, const float* a, float* r);
void _zemcAsin_21(int n, const float* a, float* r);
void _zemcAsin_HA(int n, const float* a, float* r);
void _zemcAsin(int n, const float* a, float* r);
void _zemcAsin_11(int n, const float* a, float* r);

/* r = arsinh x, imaginary part from -pi/2 to pi/2, cuts along the imaginary axis beyond -i and i.
 * Error a part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_c_unary ork_zem_kernel_cAsinh_ttab[3];
extern const float ork_zem_kernel_cAsinh_ctab[3];
void ork_zem_kernel_cAsinh_PXHAynn(int n, const float* a, float* r);
void _zemcAsinh_21(int n, const float* a, float* r);
void _zemcAsinh_HA(int n, const float* a, float* r);
void _zemcAsinh(int n, const float* a, float* r);
void _zemcAsinh_11(int n, const float* a, float* r);

/* r = arc tangent of x, real part from -pi/2 to pi/2, cuts along the imaginary axis beyond -i and
 * i. Error a part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_c_unary ork_zem_kernel_cAtan_ttab[3];
extern const float ork_zem_kernel_cAtan_ctab[3];
void ork_zem_kernel_cAtan_PXHAynn(int n, const float* a, float* r);
void _zemcAtan_21(int n, const float* a, float* r);
void _zemcAtan_HA(int n, const float* a, float* r);
void _zemcAtan(int n, const float* a, float* r);
void _zemcAtan_11(int n, const float* a, float* r);

/* r = artanh x, imaginary part from -pi/2 to pi/2, cuts along the real axis beyond -1 and 1. Error
 * a part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_c_unary ork_zem_kernel_cAtanh_ttab[3];
extern const float ork_zem_kernel_cAtanh_ctab[3];
void ork_zem_kernel_cAtanh_PXHAynn(int n, const float* a, float* r);
void _zemcAtanh_21(int n, const float* a, float* r);
void _zemcAtanh_HA(int n, const float* a, float* r);
void _zemcAtanh(int n, const float* a, float* r);
void _zemcAtanh_11(int n, const float* a, float* r);

/* r = cos x + i sin x of a real x. Error a part at most 2 ulp (LA); 0.55 ulp (HA); 2^-12 of the
 * modulus (EP). No status. */
extern const ork_c_from_real ork_zem_kernel_cCIS_ttab[3];
extern const float ork_zem_kernel_cCIS_ctab[3];
void ork_zem_kernel_cCIS_V8LAynn(int n, const float* a, float* r);
void ork_zem_kernel_cCIS_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_cCIS_V8EPnnn(int n, const float* a, float* r);
void _zemcCIS_21(int n, const float* a, float* r);
void _zemcCIS_HA(int n, const float* a, float* r);
void _zemcCIS(int n, const float* a, float* r);
void _zemcCIS_11(int n, const float* a, float* r);

/* r = conjugate of x: the sign of the imaginary part turned, a NaN's too, exact. No status. */
extern const ork_c_unary ork_zem_kernel_cConj_ttab[3];
extern const float ork_zem_kernel_cConj_ctab[3];
void ork_zem_kernel_cConj_W7HAynn(int n, const float* a, float* r);
void _zemcConj_21(int n, const float* a, float* r);
void _zemcConj_HA(int n, const float* a, float* r);
void _zemcConj(int n, const float* a, float* r);
void _zemcConj_11(int n, const float* a, float* r);

/* r = cosine of x. Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where a finite x has an
 * infinite result. */
extern const ork_c_unary ork_zem_kernel_cCos_ttab[3];
extern const float ork_zem_kernel_cCos_ctab[3];
void ork_zem_kernel_cCos_PXHAynn(int n, const float* a, float* r);
void _zemcCos_21(int n, const float* a, float* r);
void _zemcCos_HA(int n, const float* a, float* r);
void _zemcCos(int n, const float* a, float* r);
void _zemcCos_11(int n, const float* a, float* r);

/* r = hyperbolic cosine of x. Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where a finite
 * x has an infinite result. */
extern const ork_c_unary ork_zem_kernel_cCosh_ttab[3];
extern const float ork_zem_kernel_cCosh_ctab[3];
void ork_zem_kernel_cCosh_PXHAynn(int n, const float* a, float* r);
void _zemcCosh_21(int n, const float* a, float* r);
void _zemcCosh_HA(int n, const float* a, float* r);
void _zemcCosh(int n, const float* a, float* r);
void _zemcCosh_11(int n, const float* a, float* r);

/* r = x / y; an infinite y under a finite x gives 0, and only the parts of the whole quotient may
 * overflow. Error a part at most 0.51 ulp, 0.72 ulp of the modulus (LA, HA); 2^-11 of the modulus
 * (EP). Status: 3 (LA, HA) where a finite x over a finite y other than 0 has an infinite part. */
extern const ork_c_binary ork_zem_kernel_cDiv_ttab[3];
extern const float ork_zem_kernel_cDiv_ctab[3];
void ork_zem_kernel_cDiv_V8HAynn(int n, const float* a, const float* b, float* r);
void ork_zem_kernel_cDiv_V8EPnnn(int n, const float* a, const float* b, float* r);
void _zemcDiv_21(int n, const float* a, const float* b, float* r);
void _zemcDiv_HA(int n, const float* a, const float* b, float* r);
void _zemcDiv(int n, const float* a, const float* b, float* r);
void _zemcDiv_11(int n, const float* a, const float* b, float* r);

/* r = e^x = e^re (cos im + i sin im). Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where
 * a finite x has an infinite part. */
extern const ork_c_unary ork_zem_kernel_cExp_ttab[3];
extern const float ork_zem_kernel_cExp_ctab[3];
void ork_zem_kernel_cExp_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_cExp_W7HAynn(int n, const float* a, float* r);
void _zemcExp_21(int n, const float* a, float* r);
void _zemcExp_HA(int n, const float* a, float* r);
void _zemcExp(int n, const float* a, float* r);
void _zemcExp_11(int n, const float* a, float* r);

/* r = ln |x| + i arg x, imaginary part from -pi to pi, cut along the negative real axis. Error a
 * part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_c_unary ork_zem_kernel_cLn_ttab[3];
extern const float ork_zem_kernel_cLn_ctab[3];
void ork_zem_kernel_cLn_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_cLn_W7HAynn(int n, const float* a, float* r);
void ork_zem_kernel_cLn_W7EPnnn(int n, const float* a, float* r);
void _zemcLn_21(int n, const float* a, float* r);
void _zemcLn_HA(int n, const float* a, float* r);
void _zemcLn(int n, const float* a, float* r);
void _zemcLn_11(int n, const float* a, float* r);

/* r = ln x / ln 10, imaginary part from -pi/ln 10 to pi/ln 10. Error a part at most 0.51 ulp (LA,
 * HA, EP). No status. */
extern const ork_c_unary ork_zem_kernel_cLog10_ttab[3];
extern const float ork_zem_kernel_cLog10_ctab[3];
void ork_zem_kernel_cLog10_PXHAynn(int n, const float* a, float* r);
void _zemcLog10_21(int n, const float* a, float* r);
void _zemcLog10_HA(int n, const float* a, float* r);
void _zemcLog10(int n, const float* a, float* r);
void _zemcLog10_11(int n, const float* a, float* r);

/* r = x y, each part right to HA's bound even where its products cancel; an infinite operand makes
 * products infinite. Error a part at most 0.51 ulp, 0.72 ulp of the modulus (LA, HA); 2^-22 of the
 * modulus (EP). Status: 3 (LA, HA) where finite operands have an infinite part. */
extern const ork_c_binary ork_zem_kernel_cMul_ttab[3];
extern const float ork_zem_kernel_cMul_ctab[3];
void ork_zem_kernel_cMul_V8HAynn(int n, const float* a, const float* b, float* r);
void ork_zem_kernel_cMul_V8EPnnn(int n, const float* a, const float* b, float* r);
void _zemcMul_21(int n, const float* a, const float* b, float* r);
void _zemcMul_HA(int n, const float* a, const float* b, float* r);
void _zemcMul(int n, const float* a, const float* b, float* r);
void _zemcMul_11(int n, const float* a, const float* b, float* r);

/* r = x times the conjugate of y. Error a part at most 0.51 ulp, 0.72 ulp of the modulus (LA, HA);
 * 2^-22 of the modulus (EP). Status: 3 (LA, HA) where finite operands have an infinite part. */
extern const ork_c_binary ork_zem_kernel_cMulByConj_ttab[3];
extern const float ork_zem_kernel_cMulByConj_ctab[3];
void ork_zem_kernel_cMulByConj_V8HAynn(int n, const float* a, const float* b, float* r);
void ork_zem_kernel_cMulByConj_V8EPnnn(int n, const float* a, const float* b, float* r);
void _zemcMulByConj_21(int n, const float* a, const float* b, float* r);
void _zemcMulByConj_HA(int n, const float* a, const float* b, float* r);
void _zemcMulByConj(int n, const float* a, const float* b, float* r);
void _zemcMulByConj_11(int n, const float* a, const float* b, float* r);

/* y[i] = a[i stride]: gathers at equal distances. */
extern const ork_c_pack_i ork_zem_kernel_cPackI_ttab[3];
extern const float ork_zem_kernel_cPackI_ctab[3];
void ork_zem_kernel_cPackI_PXHAynn(int32_t n_low, int32_t n_high, const float* a, int32_t stride_low, int32_t stride_high, float* y, int width);
void _zemcPackI_21(int32_t n_low, int32_t n_high, const float* a, int32_t stride_low, int32_t stride_high, float* y, int width);
void _zemcPackI_HA(int32_t n_low, int32_t n_high, const float* a, int32_t stride_low, int32_t stride_high, float* y, int width);
void _zemcPackI(int32_t n_low, int32_t n_high, const float* a, int32_t stride_low, int32_t stride_high, float* y, int width);
void _zemcPackI_11(int32_t n_low, int32_t n_high, const float* a, int32_t stride_low, int32_t stride_high, float* y, int width);

/* y gets, side by side, those a[i] whose mask[i] is not 0. */
extern const ork_c_pack_m ork_zem_kernel_cPackM_ttab[3];
extern const float ork_zem_kernel_cPackM_ctab[3];
void ork_zem_kernel_cPackM_PXHAynn(int32_t n_low, int32_t n_high, const float* a, const void* mask, float* y, int width);
void _zemcPackM_21(int32_t n_low, int32_t n_high, const float* a, const void* mask, float* y, int width);
void _zemcPackM_HA(int32_t n_low, int32_t n_high, const float* a, const void* mask, float* y, int width);
void _zemcPackM(int32_t n_low, int32_t n_high, const float* a, const void* mask, float* y, int width);
void _zemcPackM_11(int32_t n_low, int32_t n_high, const float* a, const void* mask, float* y, int width);

/* y[i] = a[index[i]]. */
extern const ork_c_pack_v ork_zem_kernel_cPackV_ttab[3];
extern const float ork_zem_kernel_cPackV_ctab[3];
void ork_zem_kernel_cPackV_PXHAynn(int32_t n_low, int32_t n_high, const float* a, const void* index, float* y, int width);
void _zemcPackV_21(int32_t n_low, int32_t n_high, const float* a, const void* index, float* y, int width);
void _zemcPackV_HA(int32_t n_low, int32_t n_high, const float* a, const void* index, float* y, int width);
void _zemcPackV(int32_t n_low, int32_t n_high, const float* a, const void* index, float* y, int width);
void _zemcPackV_11(int32_t n_low, int32_t n_high, const float* a, const void* index, float* y, int width);

/* r = e^(y ln x), principal value. Error a part at most 6.6e-8 of the modulus (LA, HA, EP).
 * Status: 3 where finite operands have an infinite part. */
extern const ork_c_binary ork_zem_kernel_cPow_ttab[3];
extern const float ork_zem_kernel_cPow_ctab[3];
void ork_zem_kernel_cPow_PXHAynn(int n, const float* a, const float* b, float* r);
void _zemcPow_21(int n, const float* a, const float* b, float* r);
void _zemcPow_HA(int n, const float* a, const float* b, float* r);
void _zemcPow(int n, const float* a, const float* b, float* r);
void _zemcPow_11(int n, const float* a, const float* b, float* r);

/* r = e^(b ln x), one power b for all elements. Error a part at most 6.6e-8 of the modulus (LA,
 * HA, EP). Status: 3 where finite operands have an infinite part. */
extern const ork_c_scalar ork_zem_kernel_cPowx_ttab[3];
extern const float ork_zem_kernel_cPowx_ctab[3];
void ork_zem_kernel_cPowx_PXHAynn(int n, const float* a, ork_c b, float* r);
void _zemcPowx_21(int n, const float* a, ork_c b, float* r);
void _zemcPowx_HA(int n, const float* a, ork_c b, float* r);
void _zemcPowx(int n, const float* a, ork_c b, float* r);
void _zemcPowx_11(int n, const float* a, ork_c b, float* r);

/* r = sine of x. Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where a finite x has an
 * infinite result. */
extern const ork_c_unary ork_zem_kernel_cSin_ttab[3];
extern const float ork_zem_kernel_cSin_ctab[3];
void ork_zem_kernel_cSin_PXHAynn(int n, const float* a, float* r);
void _zemcSin_21(int n, const float* a, float* r);
void _zemcSin_HA(int n, const float* a, float* r);
void _zemcSin(int n, const float* a, float* r);
void _zemcSin_11(int n, const float* a, float* r);

/* r = hyperbolic sine of x. Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where a finite x
 * has an infinite result. */
extern const ork_c_unary ork_zem_kernel_cSinh_ttab[3];
extern const float ork_zem_kernel_cSinh_ctab[3];
void ork_zem_kernel_cSinh_PXHAynn(int n, const float* a, float* r);
void _zemcSinh_21(int n, const float* a, float* r);
void _zemcSinh_HA(int n, const float* a, float* r);
void _zemcSinh(int n, const float* a, float* r);
void _zemcSinh_11(int n, const float* a, float* r);

/* r = square root of x, real part from 0 on, cut along the negative real axis. Error a part at
 * most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_c_unary ork_zem_kernel_cSqrt_ttab[3];
extern const float ork_zem_kernel_cSqrt_ctab[3];
void ork_zem_kernel_cSqrt_W7LAynn(int n, const float* a, float* r);
void ork_zem_kernel_cSqrt_W7HAynn(int n, const float* a, float* r);
void _zemcSqrt_21(int n, const float* a, float* r);
void _zemcSqrt_HA(int n, const float* a, float* r);
void _zemcSqrt(int n, const float* a, float* r);
void _zemcSqrt_11(int n, const float* a, float* r);

/* r = x - y, part by part. Error a part at most 0.5 ulp, 0.71 ulp of the modulus (LA, HA); 2^-23
 * of the modulus (EP). Status: 3 (LA, HA) where finite parts have an infinite difference. */
extern const ork_c_binary ork_zem_kernel_cSub_ttab[3];
extern const float ork_zem_kernel_cSub_ctab[3];
void ork_zem_kernel_cSub_V8HAynn(int n, const float* a, const float* b, float* r);
void ork_zem_kernel_cSub_V8EPnnn(int n, const float* a, const float* b, float* r);
void _zemcSub_21(int n, const float* a, const float* b, float* r);
void _zemcSub_HA(int n, const float* a, const float* b, float* r);
void _zemcSub(int n, const float* a, const float* b, float* r);
void _zemcSub_11(int n, const float* a, const float* b, float* r);

/* r = tangent of x. Error a part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_c_unary ork_zem_kernel_cTan_ttab[3];
extern const float ork_zem_kernel_cTan_ctab[3];
void ork_zem_kernel_cTan_PXHAynn(int n, const float* a, float* r);
void _zemcTan_21(int n, const float* a, float* r);
void _zemcTan_HA(int n, const float* a, float* r);
void _zemcTan(int n, const float* a, float* r);
void _zemcTan_11(int n, const float* a, float* r);

/* r = hyperbolic tangent of x. Error a part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_c_unary ork_zem_kernel_cTanh_ttab[3];
extern const float ork_zem_kernel_cTanh_ctab[3];
void ork_zem_kernel_cTanh_PXHAynn(int n, const float* a, float* r);
void _zemcTanh_21(int n, const float* a, float* r);
void _zemcTanh_HA(int n, const float* a, float* r);
void _zemcTanh(int n, const float* a, float* r);
void _zemcTanh_11(int n, const float* a, float* r);

/* y[i stride] = a[i]: scatters at equal distances. */
extern const ork_c_unpack_i ork_zem_kernel_cUnpackI_ttab[3];
extern const float ork_zem_kernel_cUnpackI_ctab[3];
void ork_zem_kernel_cUnpackI_PXHAynn(int32_t n_low, int32_t n_high, const float* a, float* y, int32_t stride_low, int32_t stride_high, int width);
void _zemcUnpackI_21(int32_t n_low, int32_t n_high, const float* a, float* y, int32_t stride_low, int32_t stride_high, int width);
void _zemcUnpackI_HA(int32_t n_low, int32_t n_high, const float* a, float* y, int32_t stride_low, int32_t stride_high, int width);
void _zemcUnpackI(int32_t n_low, int32_t n_high, const float* a, float* y, int32_t stride_low, int32_t stride_high, int width);
void _zemcUnpackI_11(int32_t n_low, int32_t n_high, const float* a, float* y, int32_t stride_low, int32_t stride_high, int width);

/* those y[i] whose mask[i] is not 0 get a[0], a[1], ... in their order; the others stay. */
extern const ork_c_unpack_m ork_zem_kernel_cUnpackM_ttab[3];
extern const float ork_zem_kernel_cUnpackM_ctab[3];
void ork_zem_kernel_cUnpackM_PXHAynn(int32_t n_low, int32_t n_high, const float* a, float* y, const void* mask, int width);
void _zemcUnpackM_21(int32_t n_low, int32_t n_high, const float* a, float* y, const void* mask, int width);
void _zemcUnpackM_HA(int32_t n_low, int32_t n_high, const float* a, float* y, const void* mask, int width);
void _zemcUnpackM(int32_t n_low, int32_t n_high, const float* a, float* y, const void* mask, int width);
void _zemcUnpackM_11(int32_t n_low, int32_t n_high, const float* a, float* y, const void* mask, int width);

/* y[index[i]] = a[i]; of equal indices the last wins. */
extern const ork_c_unpack_v ork_zem_kernel_cUnpackV_ttab[3];
extern const float ork_zem_kernel_cUnpackV_ctab[3];
void ork_zem_kernel_cUnpackV_PXHAynn(int32_t n_low, int32_t n_high, const float* a, float* y, const void* index, int width);
void _zemcUnpackV_21(int32_t n_low, int32_t n_high, const float* a, float* y, const void* index, int width);
void _zemcUnpackV_HA(int32_t n_low, int32_t n_high, const float* a, float* y, const void* index, int width);
void _zemcUnpackV(int32_t n_low, int32_t n_high, const float* a, float* y, const void* index, int width);
void _zemcUnpackV_11(int32_t n_low, int32_t n_high, const float* a, float* y, const void* index, int width);

/* r = |x| = sqrt(re^2 + im^2), a real number; an infinite part gives infinity, even beside a NaN.
 * HA and LA do not overflow or underflow on the way. Error at most 1.5 ulp (LA); 0.51 ulp (HA);
 * 2^-26 of the modulus (EP). No status. */
extern const ork_z_to_real ork_zem_kernel_zAbs_ttab[3];
extern const float ork_zem_kernel_zAbs_ctab[3];
void ork_zem_kernel_zAbs_V8LAynn(int n, const double* a, double* r);
void ork_zem_kernel_zAbs_V8HAynn(int n, const double* a, double* r);
void ork_zem_kernel_zAbs_V8EPnnn(int n, const double* a, double* r);
void _zemzAbs_50(int n, const double* a, double* r);
void _zemzAbs_HA(int n, const double* a, double* r);
void _zemzAbs(int n, const double* a, double* r);
void _zemzAbs_26(int n, const double* a, double* r);

/* r = arc cosine of x, real part from 0 to pi, cuts along the real axis beyond -1 and 1. Error a
 * part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_z_unary ork_zem_kernel_zAcos_ttab[3];
extern const float ork_zem_kernel_zAcos_ctab[3];
void ork_zem_kernel_zAcos_PXHAynn(int n, const double* a, double* r);
void _zemzAcos_50(int n, const double* a, double* r);
void _zemzAcos_HA(int n, const double* a, double* r);
void _zemzAcos(int n, const double* a, double* r);
void _zemzAcos_26(int n, const double* a, double* r);

/* r = arcosh x, real part from 0 on, imaginary part from -pi to pi, cut along the real axis below
 * 1. Error a part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_z_unary ork_zem_kernel_zAcosh_ttab[3];
extern const float ork_zem_kernel_zAcosh_ctab[3];
void ork_zem_kernel_zAcosh_PXHAynn(int n, const double* a, double* r);
void _zemzAcosh_50(int n, const double* a, double* r);
void _zemzAcosh_HA(int n, const double* a, double* r);
void _zemzAcosh(int n, const double* a, double* r);
void _zemzAcosh_26(int n, const double* a, double* r);

/* r = x + y, part by part. Error a part at most 0.5 ulp, 0.71 ulp of the modulus (LA, HA); 2^-52
 * of the modulus (EP). Status: 3 (LA, HA) where finite parts have an infinite sum. */
extern const ork_z_binary ork_zem_kernel_zAdd_ttab[3];
extern const float ork_zem_kernel_zAdd_ctab[3];
void ork_zem_kernel_zAdd_V8HAynn(int n, const double* a, const double* b, double* r);
void ork_zem_kernel_zAdd_V8EPnnn(int n, const double* a, const double* b, double* r);
void _zemzAdd_50(int n, const double* a, const double* b, double* r);
void _zemzAdd_HA(int n, const double* a, const double* b, double* r);
void _zemzAdd(int n, const double* a, const double* b, double* r);
void _zemzAdd_26(int n, const double* a, const double* b, double* r);

/* r = argument of x = atan2(im, re), a real number from -pi to pi. Error at most 2 ulp (LA); 0.51
 * ulp (HA); 2^-26 of the modulus (EP). No status. */
extern const ork_z_to_real ork_zem_kernel_zArg_ttab[3];
extern const float ork_zem_kernel_zArg_ctab[3];
void ork_zem_kernel_zArg_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_zArg_V8HAynn(int n, const double* a, double* r);
void ork_zem_kernel_zArg_V8EPnnn(int n, const double* a, double* r);
void _zemzArg_50(int n, const double* a, double* r);
void _zemzArg_HA(int n, const double* a, double* r);
void _zemzArg(int n, const double* a, double* r);
void _zemzArg_26(int n, const double* a, double* r);

/* r = arc sine of x, real part from -pi/2 to pi/2, cuts along the real axis beyond -1 and 1. Error
 * a part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_z_unary ork_zem_kernel_zAsin_ttab[3];
extern const float ork_zem_kernel_zAsin_ctab[3];
void ork_zem_kernel_zAsin_PXHAynn(int n, const double* a, double* r);
void _zemzAsin_50(int n, const double* a, double* r);
void _zemzAsin_HA(int n, const double* a, double* r);
void _zemzAsin(int n, const double* a, double* r);
void _zemzAsin_26(int n, const double* a, double* r);

/* r = arsinh x, imaginary part from -pi/2 to pi/2, cuts along the imaginary axis beyond -i and i.
 * Error a part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_z_unary ork_zem_kernel_zAsinh_ttab[3];
extern const float ork_zem_kernel_zAsinh_ctab[3];
void ork_zem_kernel_zAsinh_PXHAynn(int n, const double* a, double* r);
void _zemzAsinh_50(int n, const double* a, double* r);
void _zemzAsinh_HA(int n, const double* a, double* r);
void _zemzAsinh(int n, const double* a, double* r);
void _zemzAsinh_26(int n, const double* a, double* r);

/* r = arc tangent of x, real part from -pi/2 to pi/2, cuts along the imaginary axis beyond -i and
 * i. Error a part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_z_unary ork_zem_kernel_zAtan_ttab[3];
extern const float ork_zem_kernel_zAtan_ctab[3];
void ork_zem_kernel_zAtan_PXHAynn(int n, const double* a, double* r);
void _zemzAtan_50(int n, const double* a, double* r);
void _zemzAtan_HA(int n, const double* a, double* r);
void _zemzAtan(int n, const double* a, double* r);
void _zemzAtan_26(int n, const double* a, double* r);

/* r = artanh x, imaginary part from -pi/2 to pi/2, cuts along the real axis beyond -1 and 1. Error
 * a part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_z_unary ork_zem_kernel_zAtanh_ttab[3];
extern const float ork_zem_kernel_zAtanh_ctab[3];
void ork_zem_kernel_zAtanh_PXHAynn(int n, const double* a, double* r);
void _zemzAtanh_50(int n, const double* a, double* r);
void _zemzAtanh_HA(int n, const double* a, double* r);
void _zemzAtanh(int n, const double* a, double* r);
void _zemzAtanh_26(int n, const double* a, double* r);

/* r = cos x + i sin x of a real x. Error a part at most 2 ulp (LA); 0.60 ulp (HA); 2^-26 of the
 * modulus (EP). No status. */
extern const ork_z_from_real ork_zem_kernel_zCIS_ttab[3];
extern const float ork_zem_kernel_zCIS_ctab[3];
void ork_zem_kernel_zCIS_V8LAynn(int n, const double* a, double* r);
void ork_zem_kernel_zCIS_V8HAynn(int n, const double* a, double* r);
void ork_zem_kernel_zCIS_V8EPnnn(int n, const double* a, double* r);
void _zemzCIS_50(int n, const double* a, double* r);
void _zemzCIS_HA(int n, const double* a, double* r);
void _zemzCIS(int n, const double* a, double* r);
void _zemzCIS_26(int n, const double* a, double* r);

/* r = conjugate of x: the sign of the imaginary part turned, a NaN's too, exact. No status. */
extern const ork_z_unary ork_zem_kernel_zConj_ttab[3];
extern const float ork_zem_kernel_zConj_ctab[3];
void ork_zem_kernel_zConj_W7HAynn(int n, const double* a, double* r);
void _zemzConj_50(int n, const double* a, double* r);
void _zemzConj_HA(int n, const double* a, double* r);
void _zemzConj(int n, const double* a, double* r);
void _zemzConj_26(int n, const double* a, double* r);

/* r = cosine of x. Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where a finite x has an
 * infinite result. */
extern const ork_z_unary ork_zem_kernel_zCos_ttab[3];
extern const float ork_zem_kernel_zCos_ctab[3];
void ork_zem_kernel_zCos_PXHAynn(int n, const double* a, double* r);
void _zemzCos_50(int n, const double* a, double* r);
void _zemzCos_HA(int n, const double* a, double* r);
void _zemzCos(int n, const double* a, double* r);
void _zemzCos_26(int n, const double* a, double* r);

/* r = hyperbolic cosine of x. Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where a finite
 * x has an infinite result. */
extern const ork_z_unary ork_zem_kernel_zCosh_ttab[3];
extern const float ork_zem_kernel_zCosh_ctab[3];
void ork_zem_kernel_zCosh_PXHAynn(int n, const double* a, double* r);
void _zemzCosh_50(int n, const double* a, double* r);
void _zemzCosh_HA(int n, const double* a, double* r);
void _zemzCosh(int n, const double* a, double* r);
void _zemzCosh_26(int n, const double* a, double* r);

/* r = x / y; an infinite y under a finite x gives 0, and only the parts of the whole quotient may
 * overflow. Error a part at most 0.51 ulp, 0.72 ulp of the modulus (LA, HA); 2^-50 of the modulus
 * (EP). Status: 3 (LA, HA) where a finite x over a finite y other than 0 has an infinite part. */
extern const ork_z_binary ork_zem_kernel_zDiv_ttab[3];
extern const float ork_zem_kernel_zDiv_ctab[3];
void ork_zem_kernel_zDiv_V8HAynn(int n, const double* a, const double* b, double* r);
void ork_zem_kernel_zDiv_V8EPnnn(int n, const double* a, const double* b, double* r);
void _zemzDiv_50(int n, const double* a, const double* b, double* r);
void _zemzDiv_HA(int n, const double* a, const double* b, double* r);
void _zemzDiv(int n, const double* a, const double* b, double* r);
void _zemzDiv_26(int n, const double* a, const double* b, double* r);

/* r = e^x = e^re (cos im + i sin im). Error a part at most 3 ulp (LA, EP); 0.75 ulp (HA). Status:
 * 3 where a finite x has an infinite part. */
extern const ork_z_unary ork_zem_kernel_zExp_ttab[3];
extern const float ork_zem_kernel_zExp_ctab[3];
void ork_zem_kernel_zExp_V8LAynn(int n, const double* a, double* r);
void ork_zem_kernel_zExp_W7HAynn(int n, const double* a, double* r);
void _zemzExp_50(int n, const double* a, double* r);
void _zemzExp_HA(int n, const double* a, double* r);
void _zemzExp(int n, const double* a, double* r);
void _zemzExp_26(int n, const double* a, double* r);

/* r = ln |x| + i arg x, imaginary part from -pi to pi, cut along the negative real axis. Error a
 * part at most 2 ulp (LA, EP); 0.60 ulp (HA). No status. */
extern const ork_z_unary ork_zem_kernel_zLn_ttab[3];
extern const float ork_zem_kernel_zLn_ctab[3];
void ork_zem_kernel_zLn_W7LAynn(int n, const double* a, double* r);
void ork_zem_kernel_zLn_V8HAynn(int n, const double* a, double* r);
void ork_zem_kernel_zLn_W7EPnnn(int n, const double* a, double* r);
void _zemzLn_50(int n, const double* a, double* r);
void _zemzLn_HA(int n, const double* a, double* r);
void _zemzLn(int n, const double* a, double* r);
void _zemzLn_26(int n, const double* a, double* r);

/* r = ln x / ln 10, imaginary part from -pi/ln 10 to pi/ln 10. Error a part at most 0.51 ulp (LA,
 * HA, EP). No status. */
extern const ork_z_unary ork_zem_kernel_zLog10_ttab[3];
extern const float ork_zem_kernel_zLog10_ctab[3];
void ork_zem_kernel_zLog10_PXHAynn(int n, const double* a, double* r);
void _zemzLog10_50(int n, const double* a, double* r);
void _zemzLog10_HA(int n, const double* a, double* r);
void _zemzLog10(int n, const double* a, double* r);
void _zemzLog10_26(int n, const double* a, double* r);

/* r = x y, each part right to HA's bound even where its products cancel; an infinite operand makes
 * products infinite. Error a part at most 0.51 ulp, 0.72 ulp of the modulus (LA, HA); 2^-51 of the
 * modulus (EP). Status: 3 (LA, HA) where finite operands have an infinite part. */
extern const ork_z_binary ork_zem_kernel_zMul_ttab[3];
extern const float ork_zem_kernel_zMul_ctab[3];
void ork_zem_kernel_zMul_V8HAynn(int n, const double* a, const double* b, double* r);
void ork_zem_kernel_zMul_V8EPnnn(int n, const double* a, const double* b, double* r);
void _zemzMul_50(int n, const double* a, const double* b, double* r);
void _zemzMul_HA(int n, const double* a, const double* b, double* r);
void _zemzMul(int n, const double* a, const double* b, double* r);
void _zemzMul_26(int n, const double* a, const double* b, double* r);

/* r = x times the conjugate of y. Error a part at most 0.51 ulp, 0.72 ulp of the modulus (LA, HA);
 * 2^-51 of the modulus (EP). Status: 3 (LA, HA) where finite operands have an infinite part. */
extern const ork_z_binary ork_zem_kernel_zMulByConj_ttab[3];
extern const float ork_zem_kernel_zMulByConj_ctab[3];
void ork_zem_kernel_zMulByConj_V8HAynn(int n, const double* a, const double* b, double* r);
void ork_zem_kernel_zMulByConj_W7EPnnn(int n, const double* a, const double* b, double* r);
void _zemzMulByConj_50(int n, const double* a, const double* b, double* r);
void _zemzMulByConj_HA(int n, const double* a, const double* b, double* r);
void _zemzMulByConj(int n, const double* a, const double* b, double* r);
void _zemzMulByConj_26(int n, const double* a, const double* b, double* r);

/* y[i] = a[i stride]: gathers at equal distances. */
extern const ork_z_pack_i ork_zem_kernel_zPackI_ttab[3];
extern const float ork_zem_kernel_zPackI_ctab[3];
void ork_zem_kernel_zPackI_PXHAynn(int32_t n_low, int32_t n_high, const double* a, int32_t stride_low, int32_t stride_high, double* y, int width);
void _zemzPackI_50(int32_t n_low, int32_t n_high, const double* a, int32_t stride_low, int32_t stride_high, double* y, int width);
void _zemzPackI_HA(int32_t n_low, int32_t n_high, const double* a, int32_t stride_low, int32_t stride_high, double* y, int width);
void _zemzPackI(int32_t n_low, int32_t n_high, const double* a, int32_t stride_low, int32_t stride_high, double* y, int width);
void _zemzPackI_26(int32_t n_low, int32_t n_high, const double* a, int32_t stride_low, int32_t stride_high, double* y, int width);

/* y gets, side by side, those a[i] whose mask[i] is not 0. */
extern const ork_z_pack_m ork_zem_kernel_zPackM_ttab[3];
extern const float ork_zem_kernel_zPackM_ctab[3];
void ork_zem_kernel_zPackM_PXHAynn(int32_t n_low, int32_t n_high, const double* a, const void* mask, double* y, int width);
void _zemzPackM_50(int32_t n_low, int32_t n_high, const double* a, const void* mask, double* y, int width);
void _zemzPackM_HA(int32_t n_low, int32_t n_high, const double* a, const void* mask, double* y, int width);
void _zemzPackM(int32_t n_low, int32_t n_high, const double* a, const void* mask, double* y, int width);
void _zemzPackM_26(int32_t n_low, int32_t n_high, const double* a, const void* mask, double* y, int width);

/* y[i] = a[index[i]]. */
extern const ork_z_pack_v ork_zem_kernel_zPackV_ttab[3];
extern const float ork_zem_kernel_zPackV_ctab[3];
void ork_zem_kernel_zPackV_PXHAynn(int32_t n_low, int32_t n_high, const double* a, const void* index, double* y, int width);
void _zemzPackV_50(int32_t n_low, int32_t n_high, const double* a, const void* index, double* y, int width);
void _zemzPackV_HA(int32_t n_low, int32_t n_high, const double* a, const void* index, double* y, int width);
void _zemzPackV(int32_t n_low, int32_t n_high, const double* a, const void* index, double* y, int width);
void _zemzPackV_26(int32_t n_low, int32_t n_high, const double* a, const void* index, double* y, int width);

/* r = e^(y ln x), principal value. Error a part at most 2^-41 of the modulus (LA, HA, EP). Status:
 * 3 where finite operands have an infinite part. */
extern const ork_z_binary ork_zem_kernel_zPow_ttab[3];
extern const float ork_zem_kernel_zPow_ctab[3];
void ork_zem_kernel_zPow_PXHAynn(int n, const double* a, const double* b, double* r);
void _zemzPow_50(int n, const double* a, const double* b, double* r);
void _zemzPow_HA(int n, const double* a, const double* b, double* r);
void _zemzPow(int n, const double* a, const double* b, double* r);
void _zemzPow_26(int n, const double* a, const double* b, double* r);

/* r = e^(b ln x), one power b for all elements. Error a part at most 2^-41 of the modulus (LA, HA,
 * EP). Status: 3 where finite operands have an infinite part. */
extern const ork_z_scalar ork_zem_kernel_zPowx_ttab[3];
extern const float ork_zem_kernel_zPowx_ctab[3];
void ork_zem_kernel_zPowx_PXHAynn(int n, const double* a, ork_z b, double* r);
void _zemzPowx_50(int n, const double* a, ork_z b, double* r);
void _zemzPowx_HA(int n, const double* a, ork_z b, double* r);
void _zemzPowx(int n, const double* a, ork_z b, double* r);
void _zemzPowx_26(int n, const double* a, ork_z b, double* r);

/* r = sine of x. Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where a finite x has an
 * infinite result. */
extern const ork_z_unary ork_zem_kernel_zSin_ttab[3];
extern const float ork_zem_kernel_zSin_ctab[3];
void ork_zem_kernel_zSin_PXHAynn(int n, const double* a, double* r);
void _zemzSin_50(int n, const double* a, double* r);
void _zemzSin_HA(int n, const double* a, double* r);
void _zemzSin(int n, const double* a, double* r);
void _zemzSin_26(int n, const double* a, double* r);

/* r = hyperbolic sine of x. Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where a finite x
 * has an infinite result. */
extern const ork_z_unary ork_zem_kernel_zSinh_ttab[3];
extern const float ork_zem_kernel_zSinh_ctab[3];
void ork_zem_kernel_zSinh_PXHAynn(int n, const double* a, double* r);
void _zemzSinh_50(int n, const double* a, double* r);
void _zemzSinh_HA(int n, const double* a, double* r);
void _zemzSinh(int n, const double* a, double* r);
void _zemzSinh_26(int n, const double* a, double* r);

/* r = square root of x, real part from 0 on, cut along the negative real axis. Error a part at
 * most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_z_unary ork_zem_kernel_zSqrt_ttab[3];
extern const float ork_zem_kernel_zSqrt_ctab[3];
void ork_zem_kernel_zSqrt_V8HAynn(int n, const double* a, double* r);
void _zemzSqrt_50(int n, const double* a, double* r);
void _zemzSqrt_HA(int n, const double* a, double* r);
void _zemzSqrt(int n, const double* a, double* r);
void _zemzSqrt_26(int n, const double* a, double* r);

/* r = x - y, part by part. Error a part at most 0.5 ulp, 0.71 ulp of the modulus (LA, HA); 2^-52
 * of the modulus (EP). Status: 3 (LA, HA) where finite parts have an infinite difference. */
extern const ork_z_binary ork_zem_kernel_zSub_ttab[3];
extern const float ork_zem_kernel_zSub_ctab[3];
void ork_zem_kernel_zSub_V8HAynn(int n, const double* a, const double* b, double* r);
void ork_zem_kernel_zSub_V8EPnnn(int n, const double* a, const double* b, double* r);
void _zemzSub_50(int n, const double* a, const double* b, double* r);
void _zemzSub_HA(int n, const double* a, const double* b, double* r);
void _zemzSub(int n, const double* a, const double* b, double* r);
void _zemzSub_26(int n, const double* a, const double* b, double* r);

/* r = tangent of x. Error a part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_z_unary ork_zem_kernel_zTan_ttab[3];
extern const float ork_zem_kernel_zTan_ctab[3];
void ork_zem_kernel_zTan_PXHAynn(int n, const double* a, double* r);
void _zemzTan_50(int n, const double* a, double* r);
void _zemzTan_HA(int n, const double* a, double* r);
void _zemzTan(int n, const double* a, double* r);
void _zemzTan_26(int n, const double* a, double* r);

/* r = hyperbolic tangent of x. Error a part at most 0.51 ulp (LA, HA, EP). No status. */
extern const ork_z_unary ork_zem_kernel_zTanh_ttab[3];
extern const float ork_zem_kernel_zTanh_ctab[3];
void ork_zem_kernel_zTanh_PXHAynn(int n, const double* a, double* r);
void _zemzTanh_50(int n, const double* a, double* r);
void _zemzTanh_HA(int n, const double* a, double* r);
void _zemzTanh(int n, const double* a, double* r);
void _zemzTanh_26(int n, const double* a, double* r);

/* y[i stride] = a[i]: scatters at equal distances. */
extern const ork_z_unpack_i ork_zem_kernel_zUnpackI_ttab[3];
extern const float ork_zem_kernel_zUnpackI_ctab[3];
void ork_zem_kernel_zUnpackI_PXHAynn(int32_t n_low, int32_t n_high, const double* a, double* y, int32_t stride_low, int32_t stride_high, int width);
void _zemzUnpackI_50(int32_t n_low, int32_t n_high, const double* a, double* y, int32_t stride_low, int32_t stride_high, int width);
void _zemzUnpackI_HA(int32_t n_low, int32_t n_high, const double* a, double* y, int32_t stride_low, int32_t stride_high, int width);
void _zemzUnpackI(int32_t n_low, int32_t n_high, const double* a, double* y, int32_t stride_low, int32_t stride_high, int width);
void _zemzUnpackI_26(int32_t n_low, int32_t n_high, const double* a, double* y, int32_t stride_low, int32_t stride_high, int width);

/* those y[i] whose mask[i] is not 0 get a[0], a[1], ... in their order; the others stay. */
extern const ork_z_unpack_m ork_zem_kernel_zUnpackM_ttab[3];
extern const float ork_zem_kernel_zUnpackM_ctab[3];
void ork_zem_kernel_zUnpackM_PXHAynn(int32_t n_low, int32_t n_high, const double* a, double* y, const void* mask, int width);
void _zemzUnpackM_50(int32_t n_low, int32_t n_high, const double* a, double* y, const void* mask, int width);
void _zemzUnpackM_HA(int32_t n_low, int32_t n_high, const double* a, double* y, const void* mask, int width);
void _zemzUnpackM(int32_t n_low, int32_t n_high, const double* a, double* y, const void* mask, int width);
void _zemzUnpackM_26(int32_t n_low, int32_t n_high, const double* a, double* y, const void* mask, int width);

/* y[index[i]] = a[i]; of equal indices the last wins. */
extern const ork_z_unpack_v ork_zem_kernel_zUnpackV_ttab[3];
extern const float ork_zem_kernel_zUnpackV_ctab[3];
void ork_zem_kernel_zUnpackV_PXHAynn(int32_t n_low, int32_t n_high, const double* a, double* y, const void* index, int width);
void _zemzUnpackV_50(int32_t n_low, int32_t n_high, const double* a, double* y, const void* index, int width);
void _zemzUnpackV_HA(int32_t n_low, int32_t n_high, const double* a, double* y, const void* index, int width);
void _zemzUnpackV(int32_t n_low, int32_t n_high, const double* a, double* y, const void* index, int width);
void _zemzUnpackV_26(int32_t n_low, int32_t n_high, const double* a, double* y, const void* index, int width);

#ifdef __cplusplus
}
#endif

#endif
