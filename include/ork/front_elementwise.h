/* Generated from zem/zem_core/frame/slots.tsv by ./dev tables slots; edit that.
 *
 * Elementwise functions: ork_<type><Function>, with the type letters s (float), d (double), and
 * c and z (pairs of them, real part first; n counts pairs). What they return, check and do is
 * told in front.h, which includes this file. */
#ifndef ORK_FRONT_ELEMENTWISE_H
#define ORK_FRONT_ELEMENTWISE_H

#include "ork/zem.h"

#ifdef __cplusplus
extern "C" {
#endif

/* r = |x|, exact; a NaN loses its sign. No status. */
int ork_dAbs(int n, const double* a, double* r);

/* r = arc cosine of x, from 0 to pi, for -1 <= x <= 1. Error at most 2 ulp (LA); 0.80 ulp (HA);
 * 2^-26 of the result (EP). Status: 1 for |x| > 1, infinities too. */
int ork_dAcos(int n, const double* a, double* r);

/* r = arcosh x = ln(x + sqrt(x^2 - 1)), from 0 on, for x >= 1. Error at most 2.5 ulp (LA, EP);
 * 0.60 ulp (HA). Status: 1 for x < 1. */
int ork_dAcosh(int n, const double* a, double* r);

/* r = x + y. Error at most 0.5 ulp (LA, HA, EP). No status. */
int ork_dAdd(int n, const double* a, const double* b, double* r);

/* r = arc sine of x, from -pi/2 to pi/2, for -1 <= x <= 1. Error at most 2 ulp (LA); 0.80 ulp
 * (HA); 2^-26 of the result (EP). Status: 1 for |x| > 1, infinities too. */
int ork_dAsin(int n, const double* a, double* r);

/* r = arsinh x = ln(x + sqrt(x^2 + 1)), for all x. Error at most 2.5 ulp (LA, EP); 0.52 ulp (HA).
 * No status. */
int ork_dAsinh(int n, const double* a, double* r);

/* r = arc tangent of x, from -pi/2 to pi/2, for all x. Error at most 0.60 ulp (LA, HA); 2^-26 of
 * the result (EP). No status. */
int ork_dAtan(int n, const double* a, double* r);

/* r = angle of the point (y, x), from -pi to pi: arc tangent of x/y in the quadrant that both
 * signs tell; a is the ordinate, b the abscissa. Error at most 2.5 ulp (LA); 0.51 ulp (HA); 2^-26
 * of the result (EP). No status. */
int ork_dAtan2(int n, const double* a, const double* b, double* r);

/* r = artanh x = ln((1 + x)/(1 - x))/2, for -1 < x < 1. Error at most 2.5 ulp (LA, EP); 0.60 ulp
 * (HA). Status: 1 for |x| > 1; 2 for x = -1 and 1. */
int ork_dAtanh(int n, const double* a, double* r);

/* r = cube root of x, with its sign, for all x. Error at most 1.95 ulp (LA, EP); 0.53 ulp (HA). No
 * status. */
int ork_dCbrt(int n, const double* a, double* r);

/* r = probability that a standard normal number is below x, erfc(-x/sqrt 2)/2, for all x. Error at
 * most 2.5 ulp (LA); 0.6 ulp (HA); 2^-26 of the result (EP). Status: 4 for x below -38.4854 (d) or
 * -14.1702 (s), where the result is 0. */
int ork_dCdfNorm(int n, const double* a, double* r);

/* r = quantile of the standard normal distribution at probability x, for 0 < x < 1. Error at most
 * 2.5 ulp (LA); 0.6 ulp (HA); 2^-26 of the result (EP). Status: 1 for x below 0 or above 1; 2 for
 * x = 0 and 1. */
int ork_dCdfNormInv(int n, const double* a, double* r);

/* r = least integer not below x, exact; ceil(-0.5) is -0. No status. */
int ork_dCeil(int n, const double* a, double* r);

/* r = cosine of x, for all finite x: the angle is reduced exactly. Error at most 3.1 ulp (LA);
 * 0.60 ulp (HA); 2^-26 of the result (EP). Status: 1 for infinities. */
int ork_dCos(int n, const double* a, double* r);

/* r = hyperbolic cosine (e^x + e^-x)/2. Error at most 2 ulp (LA, EP); 0.60 ulp (HA). Status: 3
 * where a finite x has an infinite result. */
int ork_dCosh(int n, const double* a, double* r);

/* r = x / y. Error at most 0.51 ulp (LA, EP); 0.5 ulp (HA). Status: 2 for a finite x over 0 (0/0
 * is a NaN). */
int ork_dDiv(int n, const double* a, const double* b, double* r);

/* r = error function of x, 2/sqrt(pi) times the integral of e^(-t^2) from 0 to x, for all x. Error
 * at most 2.5 ulp (LA); 0.6 ulp (HA); 2^-26 of the result (EP). No status. */
int ork_dErf(int n, const double* a, double* r);

/* r = number whose error function is x, for -1 < x < 1. Error at most 2.5 ulp (LA); 0.6 ulp (HA);
 * 2^-26 of the result (EP). Status: 1 for |x| > 1; 2 for x = -1 and 1. */
int ork_dErfInv(int n, const double* a, double* r);

/* r = 1 - erf(x) without its cancellation, for all x. Error at most 2.5 ulp (LA, EP); 0.65 ulp
 * (HA). Status: 4 where the result is 0 or denormal. */
int ork_dErfc(int n, const double* a, double* r);

/* r = number whose complementary error function is x, for 0 < x < 2. Error at most 2.5 ulp (LA);
 * 0.6 ulp (HA); 2^-26 of the result (EP). Status: 1 for x below 0 or above 2; 2 for x = 0 and 2. */
int ork_dErfcInv(int n, const double* a, double* r);

/* r = e^x. Error at most 3.75 ulp (LA); 0.55 ulp (HA); 2^-28 of the result (EP). Status: 3 where a
 * finite x has an infinite result; 4 where the result is 0 or denormal. */
int ork_dExp(int n, const double* a, double* r);

/* r = e^x - 1 without its cancellation. Error at most 3.1 ulp (LA); 0.65 ulp (HA); 2^-30 of the
 * result (EP). Status: 3 where a finite x has an infinite result. */
int ork_dExpm1(int n, const double* a, double* r);

/* r = greatest integer not above x, exact. No status. */
int ork_dFloor(int n, const double* a, double* r);

/* r = sqrt(x^2 + y^2) without overflow or underflow on the way; an infinite x or y gives infinity,
 * even beside a NaN. Error at most 0.51 ulp (LA, HA); 2^-31 of the result (EP). No status. */
int ork_dHypot(int n, const double* a, const double* b, double* r);

/* r = 1 / x. Error at most 0.5 ulp (LA, HA, EP). Status: 2 for x = 0. */
int ork_dInv(int n, const double* a, double* r);

/* r = 1 / cube root of x, with its sign. Error at most 0.53 ulp (LA, HA, EP). Status: 2 for x = 0. */
int ork_dInvCbrt(int n, const double* a, double* r);

/* r = 1 / sqrt(x), for x > 0. Error at most 1.1 ulp (LA, EP); 0.51 ulp (HA). Status: 1 for x < 0;
 * 2 for x = 0. */
int ork_dInvSqrt(int n, const double* a, double* r);

/* r = ln |gamma(x)|, for all x but 0, -1, -2, .... Error at most 0.7 ulp (LA, HA, EP). Status: 2
 * for x = 0, -1, -2, ...; 3 where a finite x has an infinite result. */
int ork_dLGamma(int n, const double* a, double* r);

/* r = (scale_a x + shift_a) / (scale_b y + shift_b), each of the four real numbers by value. Error
 * at most 4.5 ulp (LA, HA, EP). No status. */
int ork_dLinearFrac(int n, const double* a, const double* b, double scale_a, double shift_a, double scale_b, double shift_b, double* r);

/* r = natural logarithm of x, for x > 0. Error at most 0.6 ulp (LA, HA); 2^-19 of the result (EP).
 * Status: 1 for x < 0; 2 for x = 0. */
int ork_dLn(int n, const double* a, double* r);

/* r = logarithm of x to the base 10, for x > 0. Error at most 2.0 ulp (LA); 0.6 ulp (HA); 2^-19 of
 * the result (EP). Status: 1 for x < 0; 2 for x = 0. */
int ork_dLog10(int n, const double* a, double* r);

/* r = ln(1 + x) without its cancellation, for x > -1. Error at most 2.0 ulp (LA); 0.8 ulp (HA);
 * 2^-31 of the result (EP). Status: 1 for x < -1; 2 for x = -1. */
int ork_dLog1p(int n, const double* a, double* r);

/* r = x without its fraction, r2 = the fraction, both with the sign of x, exact; infinities have a
 * fraction of 0. No status. */
int ork_dModf(int n, const double* a, double* r, double* r2);

/* r = x y. Error at most 0.5 ulp (LA, HA, EP). No status. */
int ork_dMul(int n, const double* a, const double* b, double* r);

/* r = x rounded to an integer in the caller's rounding mode, halves to even in the usual one; the
 * sign of x stays, of zeros too. The same results as Rint. Error at most 0 ulp (LA, HA, EP). No
 * status. */
int ork_dNearbyInt(int n, const double* a, double* r);

/* y[i] = a[i stride]: gathers at equal distances. */
int ork_dPackI(int n, const double* a, int32_t stride, double* y);

/* y gets, side by side, those a[i] whose mask[i] is not 0. */
int ork_dPackM(int n, const double* a, const int32_t* mask, double* y);

/* y[i] = a[index[i]]. */
int ork_dPackV(int n, const double* a, const int32_t* index, double* y);

/* r = x^y; x < 0 has powers of integers y only. Error at most 0.60 ulp (LA, HA); 2^-22 of the
 * result (EP). Status: 1 for x < 0 to a power that is no integer, and for 0 to a negative power. */
int ork_dPow(int n, const double* a, const double* b, double* r);

/* r = cube root of x^2, for all x. Error at most 2.0 ulp (LA); 0.55 ulp (HA); 2^-28 of the result
 * (EP). No status. */
int ork_dPow2o3(int n, const double* a, double* r);

/* r = sqrt(x^3), for x >= 0. Error at most 2.0 ulp (LA); 0.60 ulp (HA); 2^-28 of the result (EP).
 * Status: 1 for x < 0. */
int ork_dPow3o2(int n, const double* a, double* r);

/* r = x^b with one power b for all elements; x < 0 has powers of integers only. Error at most 0.60
 * ulp (LA, HA); 2^-22 of the result (EP). Status: 1 for x < 0 to a power that is no integer, and
 * for 0 to a negative power; 2 (HA) for 0 to the power -1/2. */
int ork_dPowx(int n, const double* a, double b, double* r);

/* r = x rounded to an integer in the caller's rounding mode, halves to even in the usual one; the
 * sign of x stays, of zeros too. Error at most 0 ulp (LA, HA, EP). No status. */
int ork_dRint(int n, const double* a, double* r);

/* r = integer nearest to x, halves away from zero in every rounding mode, exact. No status. */
int ork_dRound(int n, const double* a, double* r);

/* r = sine of x, for all finite x: the angle is reduced exactly. Error at most 3.1 ulp (LA); 0.60
 * ulp (HA); 2^-26 of the result (EP). Status: 1 for infinities. */
int ork_dSin(int n, const double* a, double* r);

/* r = sine of x, r2 = cosine of x, for all finite x. Error at most 2 ulp (LA); 0.60 ulp (HA);
 * 2^-26 of the result (EP). Status: 1 for infinities. */
int ork_dSinCos(int n, const double* a, double* r, double* r2);

/* r = hyperbolic sine (e^x - e^-x)/2. Error at most 2.5 ulp (LA, EP); 0.60 ulp (HA). Status: 3
 * where a finite x has an infinite result. */
int ork_dSinh(int n, const double* a, double* r);

/* r = x^2. Error at most 0.5 ulp (LA, HA, EP). No status. */
int ork_dSqr(int n, const double* a, double* r);

/* r = square root of x, for x >= 0; sqrt(-0) is -0. Error at most 2 ulp (LA); 0.51 ulp (HA); 2^-30
 * of the result (EP). Status: 1 for x < 0. */
int ork_dSqrt(int n, const double* a, double* r);

/* r = x - y. Error at most 0.5 ulp (LA, HA, EP). No status. */
int ork_dSub(int n, const double* a, const double* b, double* r);

/* r = gamma(x), for all x but 0, -1, -2, .... Error at most 0.51 ulp (LA, HA, EP). Status: 1 for
 * negative integers and -infinity; 2 for x = 0; 3 where a finite x has an infinite result; 4 (s)
 * where the result is 0 or denormal. */
int ork_dTGamma(int n, const double* a, double* r);

/* r = tangent of x, for all finite x: the angle is reduced exactly. Error at most 2.0 ulp (LA);
 * 0.60 ulp (HA); 2^-26 of the result (EP). Status: 1 for infinities. */
int ork_dTan(int n, const double* a, double* r);

/* r = hyperbolic tangent of x, for all x. Error at most 1.5 ulp (LA, EP); 0.76 ulp (HA). No
 * status. */
int ork_dTanh(int n, const double* a, double* r);

/* r = x without its fraction, exact; the sign of x stays, of zeros too. No status. */
int ork_dTrunc(int n, const double* a, double* r);

/* y[i stride] = a[i]: scatters at equal distances. */
int ork_dUnpackI(int n, const double* a, double* y, int32_t stride);

/* those y[i] whose mask[i] is not 0 get a[0], a[1], ... in their order; the others stay. */
int ork_dUnpackM(int n, const double* a, double* y, const int32_t* mask);

/* y[index[i]] = a[i]; of equal indices the last wins. */
int ork_dUnpackV(int n, const double* a, double* y, const int32_t* index);

/* r = |x|, exact; a NaN loses its sign. No status. */
int ork_sAbs(int n, const float* a, float* r);

/* r = arc cosine of x, from 0 to pi, for -1 <= x <= 1. Error at most 2.5 ulp (LA); 0.51 ulp (HA);
 * 2^-12 of the result (EP). Status: 1 for |x| > 1, infinities too. */
int ork_sAcos(int n, const float* a, float* r);

/* r = arcosh x = ln(x + sqrt(x^2 - 1)), from 0 on, for x >= 1. Error at most 0.51 ulp (LA, HA);
 * 2^-12 of the result (EP). Status: 1 for x < 1. */
int ork_sAcosh(int n, const float* a, float* r);

/* r = x + y. Error at most 0.5 ulp (LA, HA, EP). No status. */
int ork_sAdd(int n, const float* a, const float* b, float* r);

/* r = arc sine of x, from -pi/2 to pi/2, for -1 <= x <= 1. Error at most 2.5 ulp (LA); 0.51 ulp
 * (HA); 2^-12 of the result (EP). Status: 1 for |x| > 1, infinities too. */
int ork_sAsin(int n, const float* a, float* r);

/* r = arsinh x = ln(x + sqrt(x^2 + 1)), for all x. Error at most 2.5 ulp (LA); 0.51 ulp (HA);
 * 2^-12 of the result (EP). No status. */
int ork_sAsinh(int n, const float* a, float* r);

/* r = arc tangent of x, from -pi/2 to pi/2, for all x. Error at most 3.6 ulp (LA); 0.95 ulp (HA);
 * 2^-12 of the result (EP). No status. */
int ork_sAtan(int n, const float* a, float* r);

/* r = angle of the point (y, x), from -pi to pi: arc tangent of x/y in the quadrant that both
 * signs tell; a is the ordinate, b the abscissa. Error at most 2.5 ulp (LA); 0.51 ulp (HA); 2^-12
 * of the result (EP). No status. */
int ork_sAtan2(int n, const float* a, const float* b, float* r);

/* r = artanh x = ln((1 + x)/(1 - x))/2, for -1 < x < 1. Error at most 2.5 ulp (LA); 0.51 ulp (HA);
 * 2^-12 of the result (EP). Status: 1 for |x| > 1; 2 for x = -1 and 1. */
int ork_sAtanh(int n, const float* a, float* r);

/* r = cube root of x, with its sign, for all x. Error at most 0.55 ulp (LA); 0.51 ulp (HA); 2^-15
 * of the result (EP). No status. */
int ork_sCbrt(int n, const float* a, float* r);

/* r = probability that a standard normal number is below x, erfc(-x/sqrt 2)/2, for all x. Error at
 * most 0.6 ulp (LA); 0.55 ulp (HA); 2^-14 of the result (EP). Status: 4 for x below -38.4854 (d)
 * or -14.1702 (s), where the result is 0. */
int ork_sCdfNorm(int n, const float* a, float* r);

/* r = quantile of the standard normal distribution at probability x, for 0 < x < 1. Error at most
 * 0.6 ulp (LA); 0.51 ulp (HA); 2^-14 of the result (EP). Status: 1 for x below 0 or above 1; 2 for
 * x = 0 and 1. */
int ork_sCdfNormInv(int n, const float* a, float* r);

/* r = least integer not below x, exact; ceil(-0.5) is -0. No status. */
int ork_sCeil(int n, const float* a, float* r);

/* r = cosine of x, for all finite x: the angle is reduced exactly. Error at most 2 ulp (LA); 0.85
 * ulp (HA); 2^-12 of the result (EP). Status: 1 for infinities. */
int ork_sCos(int n, const float* a, float* r);

/* r = hyperbolic cosine (e^x + e^-x)/2. Error at most 2 ulp (LA); 0.55 ulp (HA); 2^-12 of the
 * result (EP). Status: 3 where a finite x has an infinite result. */
int ork_sCosh(int n, const float* a, float* r);

/* r = x / y. Error at most 3.6 ulp (LA); 0.5 ulp (HA); 2^-11 of the result (EP). Status: 2 for a
 * finite x over 0 (0/0 is a NaN). */
int ork_sDiv(int n, const float* a, const float* b, float* r);

/* r = error function of x, 2/sqrt(pi) times the integral of e^(-t^2) from 0 to x, for all x. Error
 * at most 0.6 ulp (LA); 0.51 ulp (HA); 2^-20 of the result (EP). No status. */
int ork_sErf(int n, const float* a, float* r);

/* r = number whose error function is x, for -1 < x < 1. Error at most 0.8 ulp (LA); 0.51 ulp (HA);
 * 2^-14 of the result (EP). Status: 1 for |x| > 1; 2 for x = -1 and 1. */
int ork_sErfInv(int n, const float* a, float* r);

/* r = 1 - erf(x) without its cancellation, for all x. Error at most 1.5 ulp (LA); 0.51 ulp (HA);
 * 2^-14 of the result (EP). Status: 4 where the result is 0 or denormal. */
int ork_sErfc(int n, const float* a, float* r);

/* r = number whose complementary error function is x, for 0 < x < 2. Error at most 0.6 ulp (LA);
 * 0.51 ulp (HA); 2^-14 of the result (EP). Status: 1 for x below 0 or above 2; 2 for x = 0 and 2. */
int ork_sErfcInv(int n, const float* a, float* r);

/* r = e^x. Error at most 2.0 ulp (LA); 1.0 ulp (HA); 2^-12 of the result (EP). Status: 3 where a
 * finite x has an infinite result; 4 where the result is 0 or denormal. */
int ork_sExp(int n, const float* a, float* r);

/* r = e^x - 1 without its cancellation. Error at most 0.6 ulp (LA, HA, EP). Status: 3 where a
 * finite x has an infinite result. */
int ork_sExpm1(int n, const float* a, float* r);

/* r = greatest integer not above x, exact. No status. */
int ork_sFloor(int n, const float* a, float* r);

/* r = sqrt(x^2 + y^2) without overflow or underflow on the way; an infinite x or y gives infinity,
 * even beside a NaN. Error at most 1.0 ulp (LA); 0.51 ulp (HA); 2^-12 of the result (EP). No
 * status. */
int ork_sHypot(int n, const float* a, const float* b, float* r);

/* r = 1 / x. Error at most 3.35 ulp (LA); 0.5 ulp (HA); 2^-11 of the result (EP). Status: 2 for x
 * = 0. */
int ork_sInv(int n, const float* a, float* r);

/* r = 1 / cube root of x, with its sign. Error at most 1.15 ulp (LA); 0.51 ulp (HA); 2^-14 of the
 * result (EP). Status: 2 for x = 0. */
int ork_sInvCbrt(int n, const float* a, float* r);

/* r = 1 / sqrt(x), for x > 0. Error at most 4 ulp (LA); 0.51 ulp (HA); 2^-11 of the result (EP).
 * Status: 1 for x < 0; 2 for x = 0. */
int ork_sInvSqrt(int n, const float* a, float* r);

/* r = ln |gamma(x)|, for all x but 0, -1, -2, .... Error at most 0.55 ulp (LA, HA, EP). Status: 2
 * for x = 0, -1, -2, ...; 3 where a finite x has an infinite result. */
int ork_sLGamma(int n, const float* a, float* r);

/* r = (scale_a x + shift_a) / (scale_b y + shift_b), each of the four real numbers by value. Error
 * at most 4.5 ulp (LA, HA, EP). No status. */
int ork_sLinearFrac(int n, const float* a, const float* b, float scale_a, float shift_a, float scale_b, float shift_b, float* r);

/* r = natural logarithm of x, for x > 0. Error at most 4.0 ulp (LA); 1.0 ulp (HA); 2^-10 of the
 * result (EP). Status: 1 for x < 0; 2 for x = 0. */
int ork_sLn(int n, const float* a, float* r);

/* r = logarithm of x to the base 10, for x > 0. Error at most 2.7 ulp (LA); 0.65 ulp (HA); 2^-14
 * of the result (EP). Status: 1 for x < 0; 2 for x = 0. */
int ork_sLog10(int n, const float* a, float* r);

/* r = ln(1 + x) without its cancellation, for x > -1. Error at most 2.0 ulp (LA, EP); 0.65 ulp
 * (HA). Status: 1 for x < -1; 2 for x = -1. */
int ork_sLog1p(int n, const float* a, float* r);

/* r = x without its fraction, r2 = the fraction, both with the sign of x, exact; infinities have a
 * fraction of 0. No status. */
int ork_sModf(int n, const float* a, float* r, float* r2);

/* r = x y. Error at most 0.5 ulp (LA, HA, EP). No status. */
int ork_sMul(int n, const float* a, const float* b, float* r);

/* r = x rounded to an integer in the caller's rounding mode, halves to even in the usual one; the
 * sign of x stays, of zeros too. The same results as Rint. Error at most 0 ulp (LA, HA, EP). No
 * status. */
int ork_sNearbyInt(int n, const float* a, float* r);

/* y[i] = a[i stride]: gathers at equal distances. */
int ork_sPackI(int n, const float* a, int32_t stride, float* y);

/* y gets, side by side, those a[i] whose mask[i] is not 0. */
int ork_sPackM(int n, const float* a, const int32_t* mask, float* y);

/* y[i] = a[index[i]]. */
int ork_sPackV(int n, const float* a, const int32_t* index, float* y);

/* r = x^y; x < 0 has powers of integers y only. Error at most 0.51 ulp (LA, HA); 2^-12 of the
 * result (EP). Status: 1 for x < 0 to a power that is no integer, and for 0 to a negative power. */
int ork_sPow(int n, const float* a, const float* b, float* r);

/* r = cube root of x^2, for all x. Error at most 2.0 ulp (LA); 0.51 ulp (HA); 2^-14 of the result
 * (EP). No status. */
int ork_sPow2o3(int n, const float* a, float* r);

/* r = sqrt(x^3), for x >= 0. Error at most 2.0 ulp (LA); 0.51 ulp (HA); 2^-12 of the result (EP).
 * Status: 1 for x < 0. */
int ork_sPow3o2(int n, const float* a, float* r);

/* r = x^b with one power b for all elements; x < 0 has powers of integers only. Error at most 0.51
 * ulp (LA, HA); 2^-12 of the result (EP). Status: 1 for x < 0 to a power that is no integer, and
 * for 0 to a negative power; 2 (HA) for 0 to the power -1/2. */
int ork_sPowx(int n, const float* a, float b, float* r);

/* r = x rounded to an integer in the caller's rounding mode, halves to even in the usual one; the
 * sign of x stays, of zeros too. Error at most 0 ulp (LA, HA, EP). No status. */
int ork_sRint(int n, const float* a, float* r);

/* r = integer nearest to x, halves away from zero in every rounding mode, exact. No status. */
int ork_sRound(int n, const float* a, float* r);

/* r = sine of x, for all finite x: the angle is reduced exactly. Error at most 2 ulp (LA); 0.85
 * ulp (HA); 2^-12 of the result (EP). Status: 1 for infinities. */
int ork_sSin(int n, const float* a, float* r);

/* r = sine of x, r2 = cosine of x, for all finite x. Error at most 2 ulp (LA); 0.55 ulp (HA);
 * 2^-12 of the result (EP). Status: 1 for infinities. */
int ork_sSinCos(int n, const float* a, float* r, float* r2);

/* r = hyperbolic sine (e^x - e^-x)/2. Error at most 2.5 ulp (LA); 0.55 ulp (HA); 2^-12 of the
 * result (EP). Status: 3 where a finite x has an infinite result. */
int ork_sSinh(int n, const float* a, float* r);

/* r = x^2. Error at most 0.5 ulp (LA, HA, EP). No status. */
int ork_sSqr(int n, const float* a, float* r);

/* r = square root of x, for x >= 0; sqrt(-0) is -0. Error at most 3.25 ulp (LA); 0.51 ulp (HA);
 * 2^-11 of the result (EP). Status: 1 for x < 0. */
int ork_sSqrt(int n, const float* a, float* r);

/* r = x - y. Error at most 0.5 ulp (LA, HA, EP). No status. */
int ork_sSub(int n, const float* a, const float* b, float* r);

/* r = gamma(x), for all x but 0, -1, -2, .... Error at most 0.51 ulp (LA, HA, EP). Status: 1 for
 * negative integers and -infinity; 2 for x = 0; 3 where a finite x has an infinite result; 4 (s)
 * where the result is 0 or denormal. */
int ork_sTGamma(int n, const float* a, float* r);

/* r = tangent of x, for all finite x: the angle is reduced exactly. Error at most 2 ulp (LA); 0.55
 * ulp (HA); 2^-12 of the result (EP). Status: 1 for infinities. */
int ork_sTan(int n, const float* a, float* r);

/* r = hyperbolic tangent of x, for all x. Error at most 2 ulp (LA); 0.55 ulp (HA); 2^-12 of the
 * result (EP). No status. */
int ork_sTanh(int n, const float* a, float* r);

/* r = x without its fraction, exact; the sign of x stays, of zeros too. No status. */
int ork_sTrunc(int n, const float* a, float* r);

/* y[i stride] = a[i]: scatters at equal distances. */
int ork_sUnpackI(int n, const float* a, float* y, int32_t stride);

/* those y[i] whose mask[i] is not 0 get a[0], a[1], ... in their order; the others stay. */
int ork_sUnpackM(int n, const float* a, float* y, const int32_t* mask);

/* y[index[i]] = a[i]; of equal indices the last wins. */
int ork_sUnpackV(int n, const float* a, float* y, const int32_t* index);

/* r = |x| = sqrt(re^2 + im^2), a real number; an infinite part gives infinity, even beside a NaN.
 * HA and LA do not overflow or underflow on the way. Error at most 1 ulp (LA); 0.51 ulp (HA);
 * 2^-22 of the modulus (EP). No status. */
int ork_cAbs(int n, const float* a, float* r);

/* r = arc cosine of x, real part from 0 to pi, cuts along the real axis beyond -1 and 1. Error a
 * part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_cAcos(int n, const float* a, float* r);

/* r = arcosh x, real part from 0 on, imaginary part from -pi to pi, cut along the real axis below
 * 1. Error a part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_cAcosh(int n, const float* a, float* r);

/* r = x + y, part by part. Error a part at most 0.5 ulp, 0.71 ulp of the modulus (LA, HA); 2^-23
 * of the modulus (EP). Status: 3 (LA, HA) where finite parts have an infinite sum. */
int ork_cAdd(int n, const float* a, const float* b, float* r);

/* r = argument of x = atan2(im, re), a real number from -pi to pi. Error at most 0.51 ulp (LA,
 * HA); 2^-12 of the modulus (EP). No status. */
int ork_cArg(int n, const float* a, float* r);

/* r = arc sine of x, real part from -pi/2 to pi/2, cuts along the real axis beyond -1 and 1. Error
 * a part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_cAsin(int n, const float* a, float* r);

/* r = arsinh x, imaginary part from -pi/2 to pi/2, cuts along the imaginary axis beyond -i and i.
 * Error a part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_cAsinh(int n, const float* a, float* r);

/* r = arc tangent of x, real part from -pi/2 to pi/2, cuts along the imaginary axis beyond -i and
 * i. Error a part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_cAtan(int n, const float* a, float* r);

/* r = artanh x, imaginary part from -pi/2 to pi/2, cuts along the real axis beyond -1 and 1. Error
 * a part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_cAtanh(int n, const float* a, float* r);

/* r = cos x + i sin x of a real x. Error a part at most 2 ulp (LA); 0.55 ulp (HA); 2^-12 of the
 * modulus (EP). No status. */
int ork_cCIS(int n, const float* a, float* r);

/* r = conjugate of x: the sign of the imaginary part turned, a NaN's too, exact. No status. */
int ork_cConj(int n, const float* a, float* r);

/* r = cosine of x. Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where a finite x has an
 * infinite result. */
int ork_cCos(int n, const float* a, float* r);

/* r = hyperbolic cosine of x. Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where a finite
 * x has an infinite result. */
int ork_cCosh(int n, const float* a, float* r);

/* r = x / y; an infinite y under a finite x gives 0, and only the parts of the whole quotient may
 * overflow. Error a part at most 0.51 ulp, 0.72 ulp of the modulus (LA, HA); 2^-11 of the modulus
 * (EP). Status: 3 (LA, HA) where a finite x over a finite y other than 0 has an infinite part. */
int ork_cDiv(int n, const float* a, const float* b, float* r);

/* r = e^x = e^re (cos im + i sin im). Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where
 * a finite x has an infinite part. */
int ork_cExp(int n, const float* a, float* r);

/* r = ln |x| + i arg x, imaginary part from -pi to pi, cut along the negative real axis. Error a
 * part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_cLn(int n, const float* a, float* r);

/* r = ln x / ln 10, imaginary part from -pi/ln 10 to pi/ln 10. Error a part at most 0.51 ulp (LA,
 * HA, EP). No status. */
int ork_cLog10(int n, const float* a, float* r);

/* r = x y, each part right to HA's bound even where its products cancel; an infinite operand makes
 * products infinite. Error a part at most 0.51 ulp, 0.72 ulp of the modulus (LA, HA); 2^-22 of the
 * modulus (EP). Status: 3 (LA, HA) where finite operands have an infinite part. */
int ork_cMul(int n, const float* a, const float* b, float* r);

/* r = x times the conjugate of y. Error a part at most 0.51 ulp, 0.72 ulp of the modulus (LA, HA);
 * 2^-22 of the modulus (EP). Status: 3 (LA, HA) where finite operands have an infinite part. */
int ork_cMulByConj(int n, const float* a, const float* b, float* r);

/* y[i] = a[i stride]: gathers at equal distances. */
int ork_cPackI(int n, const float* a, int32_t stride, float* y);

/* y gets, side by side, those a[i] whose mask[i] is not 0. */
int ork_cPackM(int n, const float* a, const int32_t* mask, float* y);

/* y[i] = a[index[i]]. */
int ork_cPackV(int n, const float* a, const int32_t* index, float* y);

/* r = e^(y ln x), principal value. Error a part at most 6.6e-8 of the modulus (LA, HA, EP).
 * Status: 3 where finite operands have an infinite part. */
int ork_cPow(int n, const float* a, const float* b, float* r);

/* r = e^(b ln x), one power b for all elements. Error a part at most 6.6e-8 of the modulus (LA,
 * HA, EP). Status: 3 where finite operands have an infinite part. */
int ork_cPowx(int n, const float* a, ork_c b, float* r);

/* r = sine of x. Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where a finite x has an
 * infinite result. */
int ork_cSin(int n, const float* a, float* r);

/* r = hyperbolic sine of x. Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where a finite x
 * has an infinite result. */
int ork_cSinh(int n, const float* a, float* r);

/* r = square root of x, real part from 0 on, cut along the negative real axis. Error a part at
 * most 0.51 ulp (LA, HA, EP). No status. */
int ork_cSqrt(int n, const float* a, float* r);

/* r = x - y, part by part. Error a part at most 0.5 ulp, 0.71 ulp of the modulus (LA, HA); 2^-23
 * of the modulus (EP). Status: 3 (LA, HA) where finite parts have an infinite difference. */
int ork_cSub(int n, const float* a, const float* b, float* r);

/* r = tangent of x. Error a part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_cTan(int n, const float* a, float* r);

/* r = hyperbolic tangent of x. Error a part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_cTanh(int n, const float* a, float* r);

/* y[i stride] = a[i]: scatters at equal distances. */
int ork_cUnpackI(int n, const float* a, float* y, int32_t stride);

/* those y[i] whose mask[i] is not 0 get a[0], a[1], ... in their order; the others stay. */
int ork_cUnpackM(int n, const float* a, float* y, const int32_t* mask);

/* y[index[i]] = a[i]; of equal indices the last wins. */
int ork_cUnpackV(int n, const float* a, float* y, const int32_t* index);

/* r = |x| = sqrt(re^2 + im^2), a real number; an infinite part gives infinity, even beside a NaN.
 * HA and LA do not overflow or underflow on the way. Error at most 1.5 ulp (LA); 0.51 ulp (HA);
 * 2^-26 of the modulus (EP). No status. */
int ork_zAbs(int n, const double* a, double* r);

/* r = arc cosine of x, real part from 0 to pi, cuts along the real axis beyond -1 and 1. Error a
 * part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_zAcos(int n, const double* a, double* r);

/* r = arcosh x, real part from 0 on, imaginary part from -pi to pi, cut along the real axis below
 * 1. Error a part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_zAcosh(int n, const double* a, double* r);

/* r = x + y, part by part. Error a part at most 0.5 ulp, 0.71 ulp of the modulus (LA, HA); 2^-52
 * of the modulus (EP). Status: 3 (LA, HA) where finite parts have an infinite sum. */
int ork_zAdd(int n, const double* a, const double* b, double* r);

/* r = argument of x = atan2(im, re), a real number from -pi to pi. Error at most 2 ulp (LA); 0.51
 * ulp (HA); 2^-26 of the modulus (EP). No status. */
int ork_zArg(int n, const double* a, double* r);

/* r = arc sine of x, real part from -pi/2 to pi/2, cuts along the real axis beyond -1 and 1. Error
 * a part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_zAsin(int n, const double* a, double* r);

/* r = arsinh x, imaginary part from -pi/2 to pi/2, cuts along the imaginary axis beyond -i and i.
 * Error a part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_zAsinh(int n, const double* a, double* r);

/* r = arc tangent of x, real part from -pi/2 to pi/2, cuts along the imaginary axis beyond -i and
 * i. Error a part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_zAtan(int n, const double* a, double* r);

/* r = artanh x, imaginary part from -pi/2 to pi/2, cuts along the real axis beyond -1 and 1. Error
 * a part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_zAtanh(int n, const double* a, double* r);

/* r = cos x + i sin x of a real x. Error a part at most 2 ulp (LA); 0.60 ulp (HA); 2^-26 of the
 * modulus (EP). No status. */
int ork_zCIS(int n, const double* a, double* r);

/* r = conjugate of x: the sign of the imaginary part turned, a NaN's too, exact. No status. */
int ork_zConj(int n, const double* a, double* r);

/* r = cosine of x. Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where a finite x has an
 * infinite result. */
int ork_zCos(int n, const double* a, double* r);

/* r = hyperbolic cosine of x. Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where a finite
 * x has an infinite result. */
int ork_zCosh(int n, const double* a, double* r);

/* r = x / y; an infinite y under a finite x gives 0, and only the parts of the whole quotient may
 * overflow. Error a part at most 0.51 ulp, 0.72 ulp of the modulus (LA, HA); 2^-50 of the modulus
 * (EP). Status: 3 (LA, HA) where a finite x over a finite y other than 0 has an infinite part. */
int ork_zDiv(int n, const double* a, const double* b, double* r);

/* r = e^x = e^re (cos im + i sin im). Error a part at most 3 ulp (LA, EP); 0.75 ulp (HA). Status:
 * 3 where a finite x has an infinite part. */
int ork_zExp(int n, const double* a, double* r);

/* r = ln |x| + i arg x, imaginary part from -pi to pi, cut along the negative real axis. Error a
 * part at most 2 ulp (LA, EP); 0.60 ulp (HA). No status. */
int ork_zLn(int n, const double* a, double* r);

/* r = ln x / ln 10, imaginary part from -pi/ln 10 to pi/ln 10. Error a part at most 0.51 ulp (LA,
 * HA, EP). No status. */
int ork_zLog10(int n, const double* a, double* r);

/* r = x y, each part right to HA's bound even where its products cancel; an infinite operand makes
 * products infinite. Error a part at most 0.51 ulp, 0.72 ulp of the modulus (LA, HA); 2^-51 of the
 * modulus (EP). Status: 3 (LA, HA) where finite operands have an infinite part. */
int ork_zMul(int n, const double* a, const double* b, double* r);

/* r = x times the conjugate of y. Error a part at most 0.51 ulp, 0.72 ulp of the modulus (LA, HA);
 * 2^-51 of the modulus (EP). Status: 3 (LA, HA) where finite operands have an infinite part. */
int ork_zMulByConj(int n, const double* a, const double* b, double* r);

/* y[i] = a[i stride]: gathers at equal distances. */
int ork_zPackI(int n, const double* a, int32_t stride, double* y);

/* y gets, side by side, those a[i] whose mask[i] is not 0. */
int ork_zPackM(int n, const double* a, const int32_t* mask, double* y);

/* y[i] = a[index[i]]. */
int ork_zPackV(int n, const double* a, const int32_t* index, double* y);

/* r = e^(y ln x), principal value. Error a part at most 2^-41 of the modulus (LA, HA, EP). Status:
 * 3 where finite operands have an infinite part. */
int ork_zPow(int n, const double* a, const double* b, double* r);

/* r = e^(b ln x), one power b for all elements. Error a part at most 2^-41 of the modulus (LA, HA,
 * EP). Status: 3 where finite operands have an infinite part. */
int ork_zPowx(int n, const double* a, ork_z b, double* r);

/* r = sine of x. Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where a finite x has an
 * infinite result. */
int ork_zSin(int n, const double* a, double* r);

/* r = hyperbolic sine of x. Error a part at most 0.51 ulp (LA, HA, EP). Status: 3 where a finite x
 * has an infinite result. */
int ork_zSinh(int n, const double* a, double* r);

/* r = square root of x, real part from 0 on, cut along the negative real axis. Error a part at
 * most 0.51 ulp (LA, HA, EP). No status. */
int ork_zSqrt(int n, const double* a, double* r);

/* r = x - y, part by part. Error a part at most 0.5 ulp, 0.71 ulp of the modulus (LA, HA); 2^-52
 * of the modulus (EP). Status: 3 (LA, HA) where finite parts have an infinite difference. */
int ork_zSub(int n, const double* a, const double* b, double* r);

/* r = tangent of x. Error a part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_zTan(int n, const double* a, double* r);

/* r = hyperbolic tangent of x. Error a part at most 0.51 ulp (LA, HA, EP). No status. */
int ork_zTanh(int n, const double* a, double* r);

/* y[i stride] = a[i]: scatters at equal distances. */
int ork_zUnpackI(int n, const double* a, double* y, int32_t stride);

/* those y[i] whose mask[i] is not 0 get a[0], a[1], ... in their order; the others stay. */
int ork_zUnpackM(int n, const double* a, double* y, const int32_t* mask);

/* y[index[i]] = a[i]; of equal indices the last wins. */
int ork_zUnpackV(int n, const double* a, double* y, const int32_t* index);

#ifdef __cplusplus
}
#endif

#endif
