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

int ork_dAbs(int n, const double* a, double* r);
int ork_dAcos(int n, const double* a, double* r);
int ork_dAcosh(int n, const double* a, double* r);
int ork_dAdd(int n, const double* a, const double* b, double* r);
int ork_dAsin(int n, const double* a, double* r);
int ork_dAsinh(int n, const double* a, double* r);
int ork_dAtan(int n, const double* a, double* r);
int ork_dAtan2(int n, const double* a, const double* b, double* r);
int ork_dAtanh(int n, const double* a, double* r);
int ork_dCbrt(int n, const double* a, double* r);
int ork_dCdfNorm(int n, const double* a, double* r);
int ork_dCdfNormInv(int n, const double* a, double* r);
int ork_dCeil(int n, const double* a, double* r);
int ork_dCos(int n, const double* a, double* r);
int ork_dCosh(int n, const double* a, double* r);
int ork_dDiv(int n, const double* a, const double* b, double* r);
int ork_dErf(int n, const double* a, double* r);
int ork_dErfInv(int n, const double* a, double* r);
int ork_dErfc(int n, const double* a, double* r);
int ork_dErfcInv(int n, const double* a, double* r);
int ork_dExp(int n, const double* a, double* r);
int ork_dExpm1(int n, const double* a, double* r);
int ork_dFloor(int n, const double* a, double* r);
int ork_dHypot(int n, const double* a, const double* b, double* r);
int ork_dInv(int n, const double* a, double* r);
int ork_dInvCbrt(int n, const double* a, double* r);
int ork_dInvSqrt(int n, const double* a, double* r);
int ork_dLGamma(int n, const double* a, double* r);
int ork_dLinearFrac(int n, const double* a, const double* b, double scale_a, double shift_a, double scale_b, double shift_b, double* r);
int ork_dLn(int n, const double* a, double* r);
int ork_dLog10(int n, const double* a, double* r);
int ork_dLog1p(int n, const double* a, double* r);
int ork_dModf(int n, const double* a, double* r, double* r2);
int ork_dMul(int n, const double* a, const double* b, double* r);
int ork_dNearbyInt(int n, const double* a, double* r);
int ork_dPackI(int n, const double* a, int32_t stride, double* y);
int ork_dPackM(int n, const double* a, const int32_t* mask, double* y);
int ork_dPackV(int n, const double* a, const int32_t* index, double* y);
int ork_dPow(int n, const double* a, const double* b, double* r);
int ork_dPow2o3(int n, const double* a, double* r);
int ork_dPow3o2(int n, const double* a, double* r);
int ork_dPowx(int n, const double* a, double b, double* r);
int ork_dRint(int n, const double* a, double* r);
int ork_dRound(int n, const double* a, double* r);
int ork_dSin(int n, const double* a, double* r);
int ork_dSinCos(int n, const double* a, double* r, double* r2);
int ork_dSinh(int n, const double* a, double* r);
int ork_dSqr(int n, const double* a, double* r);
int ork_dSqrt(int n, const double* a, double* r);
int ork_dSub(int n, const double* a, const double* b, double* r);
int ork_dTGamma(int n, const double* a, double* r);
int ork_dTan(int n, const double* a, double* r);
int ork_dTanh(int n, const double* a, double* r);
int ork_dTrunc(int n, const double* a, double* r);
int ork_dUnpackI(int n, const double* a, double* y, int32_t stride);
int ork_dUnpackM(int n, const double* a, double* y, const int32_t* mask);
int ork_dUnpackV(int n, const double* a, double* y, const int32_t* index);
int ork_sAbs(int n, const float* a, float* r);
int ork_sAcos(int n, const float* a, float* r);
int ork_sAcosh(int n, const float* a, float* r);
int ork_sAdd(int n, const float* a, const float* b, float* r);
int ork_sAsin(int n, const float* a, float* r);
int ork_sAsinh(int n, const float* a, float* r);
int ork_sAtan(int n, const float* a, float* r);
int ork_sAtan2(int n, const float* a, const float* b, float* r);
int ork_sAtanh(int n, const float* a, float* r);
int ork_sCbrt(int n, const float* a, float* r);
int ork_sCdfNorm(int n, const float* a, float* r);
int ork_sCdfNormInv(int n, const float* a, float* r);
int ork_sCeil(int n, const float* a, float* r);
int ork_sCos(int n, const float* a, float* r);
int ork_sCosh(int n, const float* a, float* r);
int ork_sDiv(int n, const float* a, const float* b, float* r);
int ork_sErf(int n, const float* a, float* r);
int ork_sErfInv(int n, const float* a, float* r);
int ork_sErfc(int n, const float* a, float* r);
int ork_sErfcInv(int n, const float* a, float* r);
int ork_sExp(int n, const float* a, float* r);
int ork_sExpm1(int n, const float* a, float* r);
int ork_sFloor(int n, const float* a, float* r);
int ork_sHypot(int n, const float* a, const float* b, float* r);
int ork_sInv(int n, const float* a, float* r);
int ork_sInvCbrt(int n, const float* a, float* r);
int ork_sInvSqrt(int n, const float* a, float* r);
int ork_sLGamma(int n, const float* a, float* r);
int ork_sLinearFrac(int n, const float* a, const float* b, float scale_a, float shift_a, float scale_b, float shift_b, float* r);
int ork_sLn(int n, const float* a, float* r);
int ork_sLog10(int n, const float* a, float* r);
int ork_sLog1p(int n, const float* a, float* r);
int ork_sModf(int n, const float* a, float* r, float* r2);
int ork_sMul(int n, const float* a, const float* b, float* r);
int ork_sNearbyInt(int n, const float* a, float* r);
int ork_sPackI(int n, const float* a, int32_t stride, float* y);
int ork_sPackM(int n, const float* a, const int32_t* mask, float* y);
int ork_sPackV(int n, const float* a, const int32_t* index, float* y);
int ork_sPow(int n, const float* a, const float* b, float* r);
int ork_sPow2o3(int n, const float* a, float* r);
int ork_sPow3o2(int n, const float* a, float* r);
int ork_sPowx(int n, const float* a, float b, float* r);
int ork_sRint(int n, const float* a, float* r);
int ork_sRound(int n, const float* a, float* r);
int ork_sSin(int n, const float* a, float* r);
int ork_sSinCos(int n, const float* a, float* r, float* r2);
int ork_sSinh(int n, const float* a, float* r);
int ork_sSqr(int n, const float* a, float* r);
int ork_sSqrt(int n, const float* a, float* r);
int ork_sSub(int n, const float* a, const float* b, float* r);
int ork_sTGamma(int n, const float* a, float* r);
int ork_sTan(int n, const float* a, float* r);
int ork_sTanh(int n, const float* a, float* r);
int ork_sTrunc(int n, const float* a, float* r);
int ork_sUnpackI(int n, const float* a, float* y, int32_t stride);
int ork_sUnpackM(int n, const float* a, float* y, const int32_t* mask);
int ork_sUnpackV(int n, const float* a, float* y, const int32_t* index);
int ork_cAbs(int n, const float* a, float* r);
int ork_cAcos(int n, const float* a, float* r);
int ork_cAcosh(int n, const float* a, float* r);
int ork_cAdd(int n, const float* a, const float* b, float* r);
int ork_cArg(int n, const float* a, float* r);
int ork_cAsin(int n, const float* a, float* r);
int ork_cAsinh(int n, const float* a, float* r);
int ork_cAtan(int n, const float* a, float* r);
int ork_cAtanh(int n, const float* a, float* r);
int ork_cCIS(int n, const float* a, float* r);
int ork_cConj(int n, const float* a, float* r);
int ork_cCos(int n, const float* a, float* r);
int ork_cCosh(int n, const float* a, float* r);
int ork_cDiv(int n, const float* a, const float* b, float* r);
int ork_cExp(int n, const float* a, float* r);
int ork_cLn(int n, const float* a, float* r);
int ork_cLog10(int n, const float* a, float* r);
int ork_cMul(int n, const float* a, const float* b, float* r);
int ork_cMulByConj(int n, const float* a, const float* b, float* r);
int ork_cPackI(int n, const float* a, int32_t stride, float* y);
int ork_cPackM(int n, const float* a, const int32_t* mask, float* y);
int ork_cPackV(int n, const float* a, const int32_t* index, float* y);
int ork_cPow(int n, const float* a, const float* b, float* r);
int ork_cPowx(int n, const float* a, ork_c b, float* r);
int ork_cSin(int n, const float* a, float* r);
int ork_cSinh(int n, const float* a, float* r);
int ork_cSqrt(int n, const float* a, float* r);
int ork_cSub(int n, const float* a, const float* b, float* r);
int ork_cTan(int n, const float* a, float* r);
int ork_cTanh(int n, const float* a, float* r);
int ork_cUnpackI(int n, const float* a, float* y, int32_t stride);
int ork_cUnpackM(int n, const float* a, float* y, const int32_t* mask);
int ork_cUnpackV(int n, const float* a, float* y, const int32_t* index);
int ork_zAbs(int n, const double* a, double* r);
int ork_zAcos(int n, const double* a, double* r);
int ork_zAcosh(int n, const double* a, double* r);
int ork_zAdd(int n, const double* a, const double* b, double* r);
int ork_zArg(int n, const double* a, double* r);
int ork_zAsin(int n, const double* a, double* r);
int ork_zAsinh(int n, const double* a, double* r);
int ork_zAtan(int n, const double* a, double* r);
int ork_zAtanh(int n, const double* a, double* r);
int ork_zCIS(int n, const double* a, double* r);
int ork_zConj(int n, const double* a, double* r);
int ork_zCos(int n, const double* a, double* r);
int ork_zCosh(int n, const double* a, double* r);
int ork_zDiv(int n, const double* a, const double* b, double* r);
int ork_zExp(int n, const double* a, double* r);
int ork_zLn(int n, const double* a, double* r);
int ork_zLog10(int n, const double* a, double* r);
int ork_zMul(int n, const double* a, const double* b, double* r);
int ork_zMulByConj(int n, const double* a, const double* b, double* r);
int ork_zPackI(int n, const double* a, int32_t stride, double* y);
int ork_zPackM(int n, const double* a, const int32_t* mask, double* y);
int ork_zPackV(int n, const double* a, const int32_t* index, double* y);
int ork_zPow(int n, const double* a, const double* b, double* r);
int ork_zPowx(int n, const double* a, ork_z b, double* r);
int ork_zSin(int n, const double* a, double* r);
int ork_zSinh(int n, const double* a, double* r);
int ork_zSqrt(int n, const double* a, double* r);
int ork_zSub(int n, const double* a, const double* b, double* r);
int ork_zTan(int n, const double* a, double* r);
int ork_zTanh(int n, const double* a, double* r);
int ork_zUnpackI(int n, const double* a, double* y, int32_t stride);
int ork_zUnpackM(int n, const double* a, double* y, const int32_t* mask);
int ork_zUnpackV(int n, const double* a, double* y, const int32_t* index);

#ifdef __cplusplus
}
#endif

#endif
