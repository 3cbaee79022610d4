// Generated from zem/zem_core/frame/slots.tsv by ./dev tables slots; edit that.
#include "ork/front.h"
#include "ork/zem_kernels.h"
#include "outer/export.hpp"
#include "outer/front/elementwise.hpp"

using ork::front::call;
using ork::front::check;

ORK_OUTER int ork_dAbs(int n, const double* a, double* r) {
  return call<1, 1>("vdAbs", ork_zem_kernel_dAbs_ttab, ork_zem_kernel_dAbs_ctab, n, a, r);
}
ORK_OUTER int ork_dAcos(int n, const double* a, double* r) {
  return call<1, 1>("vdAcos", ork_zem_kernel_dAcos_ttab, ork_zem_kernel_dAcos_ctab, n, a, r);
}
ORK_OUTER int ork_dAcosh(int n, const double* a, double* r) {
  return call<1, 1>("vdAcosh", ork_zem_kernel_dAcosh_ttab, ork_zem_kernel_dAcosh_ctab, n, a, r);
}
ORK_OUTER int ork_dAdd(int n, const double* a, const double* b, double* r) {
  return call<1, 1, 1>("vdAdd", ork_zem_kernel_dAdd_ttab, ork_zem_kernel_dAdd_ctab, n, a, b, r);
}
ORK_OUTER int ork_dAsin(int n, const double* a, double* r) {
  return call<1, 1>("vdAsin", ork_zem_kernel_dAsin_ttab, ork_zem_kernel_dAsin_ctab, n, a, r);
}
ORK_OUTER int ork_dAsinh(int n, const double* a, double* r) {
  return call<1, 1>("vdAsinh", ork_zem_kernel_dAsinh_ttab, ork_zem_kernel_dAsinh_ctab, n, a, r);
}
ORK_OUTER int ork_dAtan(int n, const double* a, double* r) {
  return call<1, 1>("vdAtan", ork_zem_kernel_dAtan_ttab, ork_zem_kernel_dAtan_ctab, n, a, r);
}
ORK_OUTER int ork_dAtan2(int n, const double* a, const double* b, double* r) {
  return call<1, 1, 1>("vdAtan2", ork_zem_kernel_dAtan2_ttab, ork_zem_kernel_dAtan2_ctab, n, a, b, r);
}
ORK_OUTER int ork_dAtanh(int n, const double* a, double* r) {
  return call<1, 1>("vdAtanh", ork_zem_kernel_dAtanh_ttab, ork_zem_kernel_dAtanh_ctab, n, a, r);
}
ORK_OUTER int ork_dCbrt(int n, const double* a, double* r) {
  return call<1, 1>("vdCbrt", ork_zem_kernel_dCbrt_ttab, ork_zem_kernel_dCbrt_ctab, n, a, r);
}
ORK_OUTER int ork_dCdfNorm(int n, const double* a, double* r) {
  return call<1, 1>("vdCdfNorm", ork_zem_kernel_dCdfNorm_ttab, ork_zem_kernel_dCdfNorm_ctab, n, a, r);
}
ORK_OUTER int ork_dCdfNormInv(int n, const double* a, double* r) {
  return call<1, 1>("vdCdfNormInv", ork_zem_kernel_dCdfNormInv_ttab, ork_zem_kernel_dCdfNormInv_ctab, n, a, r);
}
ORK_OUTER int ork_dCeil(int n, const double* a, double* r) {
  return call<1, 1>("vdCeil", ork_zem_kernel_dCeil_ttab, ork_zem_kernel_dCeil_ctab, n, a, r);
}
ORK_OUTER int ork_dCos(int n, const double* a, double* r) {
  return call<1, 1>("vdCos", ork_zem_kernel_dCos_ttab, ork_zem_kernel_dCos_ctab, n, a, r);
}
ORK_OUTER int ork_dCosh(int n, const double* a, double* r) {
  return call<1, 1>("vdCosh", ork_zem_kernel_dCosh_ttab, ork_zem_kernel_dCosh_ctab, n, a, r);
}
ORK_OUTER int ork_dDiv(int n, const double* a, const double* b, double* r) {
  return call<1, 1, 1>("vdDiv", ork_zem_kernel_dDiv_ttab, ork_zem_kernel_dDiv_ctab, n, a, b, r);
}
ORK_OUTER int ork_dErf(int n, const double* a, double* r) {
  return call<1, 1>("vdErf", ork_zem_kernel_dErf_ttab, ork_zem_kernel_dErf_ctab, n, a, r);
}
ORK_OUTER int ork_dErfInv(int n, const double* a, double* r) {
  return call<1, 1>("vdErfInv", ork_zem_kernel_dErfInv_ttab, ork_zem_kernel_dErfInv_ctab, n, a, r);
}
ORK_OUTER int ork_dErfc(int n, const double* a, double* r) {
  return call<1, 1>("vdErfc", ork_zem_kernel_dErfc_ttab, ork_zem_kernel_dErfc_ctab, n, a, r);
}
ORK_OUTER int ork_dErfcInv(int n, const double* a, double* r) {
  return call<1, 1>("vdErfcInv", ork_zem_kernel_dErfcInv_ttab, ork_zem_kernel_dErfcInv_ctab, n, a, r);
}
ORK_OUTER int ork_dExp(int n, const double* a, double* r) {
  return call<1, 1>("vdExp", ork_zem_kernel_dExp_ttab, ork_zem_kernel_dExp_ctab, n, a, r);
}
ORK_OUTER int ork_dExpm1(int n, const double* a, double* r) {
  return call<1, 1>("vdExpm1", ork_zem_kernel_dExpm1_ttab, ork_zem_kernel_dExpm1_ctab, n, a, r);
}
ORK_OUTER int ork_dFloor(int n, const double* a, double* r) {
  return call<1, 1>("vdFloor", ork_zem_kernel_dFloor_ttab, ork_zem_kernel_dFloor_ctab, n, a, r);
}
ORK_OUTER int ork_dHypot(int n, const double* a, const double* b, double* r) {
  return call<1, 1, 1>("vdHypot", ork_zem_kernel_dHypot_ttab, ork_zem_kernel_dHypot_ctab, n, a, b, r);
}
ORK_OUTER int ork_dInv(int n, const double* a, double* r) {
  return call<1, 1>("vdInv", ork_zem_kernel_dInv_ttab, ork_zem_kernel_dInv_ctab, n, a, r);
}
ORK_OUTER int ork_dInvCbrt(int n, const double* a, double* r) {
  return call<1, 1>("vdInvCbrt", ork_zem_kernel_dInvCbrt_ttab, ork_zem_kernel_dInvCbrt_ctab, n, a, r);
}
ORK_OUTER int ork_dInvSqrt(int n, const double* a, double* r) {
  return call<1, 1>("vdInvSqrt", ork_zem_kernel_dInvSqrt_ttab, ork_zem_kernel_dInvSqrt_ctab, n, a, r);
}
ORK_OUTER int ork_dLGamma(int n, const double* a, double* r) {
  return call<1, 1>("vdLGamma", ork_zem_kernel_dLGamma_ttab, ork_zem_kernel_dLGamma_ctab, n, a, r);
}
ORK_OUTER int ork_dLinearFrac(int n, const double* a, const double* b, double scale_a, double shift_a, double scale_b, double shift_b, double* r) {
  return call<1, 1, 0, 0, 0, 0, 1>("vdLinearFrac", ork_zem_kernel_dLinearFrac_ttab, ork_zem_kernel_dLinearFrac_ctab, n, a, b, scale_a, shift_a, scale_b, shift_b, r);
}
ORK_OUTER int ork_dLn(int n, const double* a, double* r) {
  return call<1, 1>("vdLn", ork_zem_kernel_dLn_ttab, ork_zem_kernel_dLn_ctab, n, a, r);
}
ORK_OUTER int ork_dLog10(int n, const double* a, double* r) {
  return call<1, 1>("vdLog10", ork_zem_kernel_dLog10_ttab, ork_zem_kernel_dLog10_ctab, n, a, r);
}
ORK_OUTER int ork_dLog1p(int n, const double* a, double* r) {
  return call<1, 1>("vdLog1p", ork_zem_kernel_dLog1p_ttab, ork_zem_kernel_dLog1p_ctab, n, a, r);
}
ORK_OUTER int ork_dModf(int n, const double* a, double* r, double* r2) {
  return call<1, 1, 1>("vdModf", ork_zem_kernel_dModf_ttab, ork_zem_kernel_dModf_ctab, n, a, r, r2);
}
ORK_OUTER int ork_dMul(int n, const double* a, const double* b, double* r) {
  return call<1, 1, 1>("vdMul", ork_zem_kernel_dMul_ttab, ork_zem_kernel_dMul_ctab, n, a, b, r);
}
ORK_OUTER int ork_dNearbyInt(int n, const double* a, double* r) {
  return call<1, 1>("vdNearbyInt", ork_zem_kernel_dNearbyInt_ttab, ork_zem_kernel_dNearbyInt_ctab, n, a, r);
}
ORK_OUTER int ork_dPackI(int n, const double* a, int32_t stride, double* y) {
  const int status = check("vdPackI", n, a, y);
  if (status == 0) _zemdPackI(n, 0, a, stride, 0, y, 1);
  return status;
}
ORK_OUTER int ork_dPackM(int n, const double* a, const int32_t* mask, double* y) {
  const int status = check("vdPackM", n, a, mask, y);
  if (status == 0) _zemdPackM(n, 0, a, mask, y, 1);
  return status;
}
ORK_OUTER int ork_dPackV(int n, const double* a, const int32_t* index, double* y) {
  const int status = check("vdPackV", n, a, index, y);
  if (status == 0) _zemdPackV(n, 0, a, index, y, 1);
  return status;
}
ORK_OUTER int ork_dPow(int n, const double* a, const double* b, double* r) {
  return call<1, 1, 1>("vdPow", ork_zem_kernel_dPow_ttab, ork_zem_kernel_dPow_ctab, n, a, b, r);
}
ORK_OUTER int ork_dPow2o3(int n, const double* a, double* r) {
  return call<1, 1>("vdPow2o3", ork_zem_kernel_dPow2o3_ttab, ork_zem_kernel_dPow2o3_ctab, n, a, r);
}
ORK_OUTER int ork_dPow3o2(int n, const double* a, double* r) {
  return call<1, 1>("vdPow3o2", ork_zem_kernel_dPow3o2_ttab, ork_zem_kernel_dPow3o2_ctab, n, a, r);
}
ORK_OUTER int ork_dPowx(int n, const double* a, double b, double* r) {
  return call<1, 0, 1>("vdPowx", ork_zem_kernel_dPowx_ttab, ork_zem_kernel_dPowx_ctab, n, a, b, r);
}
ORK_OUTER int ork_dRint(int n, const double* a, double* r) {
  return call<1, 1>("vdRint", ork_zem_kernel_dRint_ttab, ork_zem_kernel_dRint_ctab, n, a, r);
}
ORK_OUTER int ork_dRound(int n, const double* a, double* r) {
  return call<1, 1>("vdRound", ork_zem_kernel_dRound_ttab, ork_zem_kernel_dRound_ctab, n, a, r);
}
ORK_OUTER int ork_dSin(int n, const double* a, double* r) {
  return call<1, 1>("vdSin", ork_zem_kernel_dSin_ttab, ork_zem_kernel_dSin_ctab, n, a, r);
}
ORK_OUTER int ork_dSinCos(int n, const double* a, double* r, double* r2) {
  return call<1, 1, 1>("vdSinCos", ork_zem_kernel_dSinCos_ttab, ork_zem_kernel_dSinCos_ctab, n, a, r, r2);
}
ORK_OUTER int ork_dSinh(int n, const double* a, double* r) {
  return call<1, 1>("vdSinh", ork_zem_kernel_dSinh_ttab, ork_zem_kernel_dSinh_ctab, n, a, r);
}
ORK_OUTER int ork_dSqr(int n, const double* a, double* r) {
  return call<1, 1>("vdSqr", ork_zem_kernel_dSqr_ttab, ork_zem_kernel_dSqr_ctab, n, a, r);
}
ORK_OUTER int ork_dSqrt(int n, const double* a, double* r) {
  return call<1, 1>("vdSqrt", ork_zem_kernel_dSqrt_ttab, ork_zem_kernel_dSqrt_ctab, n, a, r);
}
ORK_OUTER int ork_dSub(int n, const double* a, const double* b, double* r) {
  return call<1, 1, 1>("vdSub", ork_zem_kernel_dSub_ttab, ork_zem_kernel_dSub_ctab, n, a, b, r);
}
ORK_OUTER int ork_dTGamma(int n, const double* a, double* r) {
  return call<1, 1>("vdTGamma", ork_zem_kernel_dTGamma_ttab, ork_zem_kernel_dTGamma_ctab, n, a, r);
}
ORK_OUTER int ork_dTan(int n, const double* a, double* r) {
  return call<1, 1>("vdTan", ork_zem_kernel_dTan_ttab, ork_zem_kernel_dTan_ctab, n, a, r);
}
ORK_OUTER int ork_dTanh(int n, const double* a, double* r) {
  return call<1, 1>("vdTanh", ork_zem_kernel_dTanh_ttab, ork_zem_kernel_dTanh_ctab, n, a, r);
}
ORK_OUTER int ork_dTrunc(int n, const double* a, double* r) {
  return call<1, 1>("vdTrunc", ork_zem_kernel_dTrunc_ttab, ork_zem_kernel_dTrunc_ctab, n, a, r);
}
ORK_OUTER int ork_dUnpackI(int n, const double* a, double* y, int32_t stride) {
  const int status = check("vdUnpackI", n, a, y);
  if (status == 0) _zemdUnpackI(n, 0, a, y, stride, 0, 1);
  return status;
}
ORK_OUTER int ork_dUnpackM(int n, const double* a, double* y, const int32_t* mask) {
  const int status = check("vdUnpackM", n, a, y, mask);
  if (status == 0) _zemdUnpackM(n, 0, a, y, mask, 1);
  return status;
}
ORK_OUTER int ork_dUnpackV(int n, const double* a, double* y, const int32_t* index) {
  const int status = check("vdUnpackV", n, a, y, index);
  if (status == 0) _zemdUnpackV(n, 0, a, y, index, 1);
  return status;
}
ORK_OUTER int ork_sAbs(int n, const float* a, float* r) {
  return call<1, 1>("vsAbs", ork_zem_kernel_sAbs_ttab, ork_zem_kernel_sAbs_ctab, n, a, r);
}
ORK_OUTER int ork_sAcos(int n, const float* a, float* r) {
  return call<1, 1>("vsAcos", ork_zem_kernel_sAcos_ttab, ork_zem_kernel_sAcos_ctab, n, a, r);
}
ORK_OUTER int ork_sAcosh(int n, const float* a, float* r) {
  return call<1, 1>("vsAcosh", ork_zem_kernel_sAcosh_ttab, ork_zem_kernel_sAcosh_ctab, n, a, r);
}
ORK_OUTER int ork_sAdd(int n, const float* a, const float* b, float* r) {
  return call<1, 1, 1>("vsAdd", ork_zem_kernel_sAdd_ttab, ork_zem_kernel_sAdd_ctab, n, a, b, r);
}
ORK_OUTER int ork_sAsin(int n, const float* a, float* r) {
  return call<1, 1>("vsAsin", ork_zem_kernel_sAsin_ttab, ork_zem_kernel_sAsin_ctab, n, a, r);
}
ORK_OUTER int ork_sAsinh(int n, const float* a, float* r) {
  return call<1, 1>("vsAsinh", ork_zem_kernel_sAsinh_ttab, ork_zem_kernel_sAsinh_ctab, n, a, r);
}
ORK_OUTER int ork_sAtan(int n, const float* a, float* r) {
  return call<1, 1>("vsAtan", ork_zem_kernel_sAtan_ttab, ork_zem_kernel_sAtan_ctab, n, a, r);
}
ORK_OUTER int ork_sAtan2(int n, const float* a, const float* b, float* r) {
  return call<1, 1, 1>("vsAtan2", ork_zem_kernel_sAtan2_ttab, ork_zem_kernel_sAtan2_ctab, n, a, b, r);
}
ORK_OUTER int ork_sAtanh(int n, const float* a, float* r) {
  return call<1, 1>("vsAtanh", ork_zem_kernel_sAtanh_ttab, ork_zem_kernel_sAtanh_ctab, n, a, r);
}
ORK_OUTER int ork_sCbrt(int n, const float* a, float* r) {
  return call<1, 1>("vsCbrt", ork_zem_kernel_sCbrt_ttab, ork_zem_kernel_sCbrt_ctab, n, a, r);
}
ORK_OUTER int ork_sCdfNorm(int n, const float* a, float* r) {
  return call<1, 1>("vsCdfNorm", ork_zem_kernel_sCdfNorm_ttab, ork_zem_kernel_sCdfNorm_ctab, n, a, r);
}
ORK_OUTER int ork_sCdfNormInv(int n, const float* a, float* r) {
  return call<1, 1>("vsCdfNormInv", ork_zem_kernel_sCdfNormInv_ttab, ork_zem_kernel_sCdfNormInv_ctab, n, a, r);
}
ORK_OUTER int ork_sCeil(int n, const float* a, float* r) {
  return call<1, 1>("vsCeil", ork_zem_kernel_sCeil_ttab, ork_zem_kernel_sCeil_ctab, n, a, r);
}
ORK_OUTER int ork_sCos(int n, const float* a, float* r) {
  return call<1, 1>("vsCos", ork_zem_kernel_sCos_ttab, ork_zem_kernel_sCos_ctab, n, a, r);
}
ORK_OUTER int ork_sCosh(int n, const float* a, float* r) {
  return call<1, 1>("vsCosh", ork_zem_kernel_sCosh_ttab, ork_zem_kernel_sCosh_ctab, n, a, r);
}
ORK_OUTER int ork_sDiv(int n, const float* a, const float* b, float* r) {
  return call<1, 1, 1>("vsDiv", ork_zem_kernel_sDiv_ttab, ork_zem_kernel_sDiv_ctab, n, a, b, r);
}
ORK_OUTER int ork_sErf(int n, const float* a, float* r) {
  return call<1, 1>("vsErf", ork_zem_kernel_sErf_ttab, ork_zem_kernel_sErf_ctab, n, a, r);
}
ORK_OUTER int ork_sErfInv(int n, const float* a, float* r) {
  return call<1, 1>("vsErfInv", ork_zem_kernel_sErfInv_ttab, ork_zem_kernel_sErfInv_ctab, n, a, r);
}
ORK_OUTER int ork_sErfc(int n, const float* a, float* r) {
  return call<1, 1>("vsErfc", ork_zem_kernel_sErfc_ttab, ork_zem_kernel_sErfc_ctab, n, a, r);
}
ORK_OUTER int ork_sErfcInv(int n, const float* a, float* r) {
  return call<1, 1>("vsErfcInv", ork_zem_kernel_sErfcInv_ttab, ork_zem_kernel_sErfcInv_ctab, n, a, r);
}
ORK_OUTER int ork_sExp(int n, const float* a, float* r) {
  return call<1, 1>("vsExp", ork_zem_kernel_sExp_ttab, ork_zem_kernel_sExp_ctab, n, a, r);
}
ORK_OUTER int ork_sExpm1(int n, const float* a, float* r) {
  return call<1, 1>("vsExpm1", ork_zem_kernel_sExpm1_ttab, ork_zem_kernel_sExpm1_ctab, n, a, r);
}
ORK_OUTER int ork_sFloor(int n, const float* a, float* r) {
  return call<1, 1>("vsFloor", ork_zem_kernel_sFloor_ttab, ork_zem_kernel_sFloor_ctab, n, a, r);
}
ORK_OUTER int ork_sHypot(int n, const float* a, const float* b, float* r) {
  return call<1, 1, 1>("vsHypot", ork_zem_kernel_sHypot_ttab, ork_zem_kernel_sHypot_ctab, n, a, b, r);
}
ORK_OUTER int ork_sInv(int n, const float* a, float* r) {
  return call<1, 1>("vsInv", ork_zem_kernel_sInv_ttab, ork_zem_kernel_sInv_ctab, n, a, r);
}
ORK_OUTER int ork_sInvCbrt(int n, const float* a, float* r) {
  return call<1, 1>("vsInvCbrt", ork_zem_kernel_sInvCbrt_ttab, ork_zem_kernel_sInvCbrt_ctab, n, a, r);
}
ORK_OUTER int ork_sInvSqrt(int n, const float* a, float* r) {
  return call<1, 1>("vsInvSqrt", ork_zem_kernel_sInvSqrt_ttab, ork_zem_kernel_sInvSqrt_ctab, n, a, r);
}
ORK_OUTER int ork_sLGamma(int n, const float* a, float* r) {
  return call<1, 1>("vsLGamma", ork_zem_kernel_sLGamma_ttab, ork_zem_kernel_sLGamma_ctab, n, a, r);
}
ORK_OUTER int ork_sLinearFrac(int n, const float* a, const float* b, float scale_a, float shift_a, float scale_b, float shift_b, float* r) {
  return call<1, 1, 0, 0, 0, 0, 1>("vsLinearFrac", ork_zem_kernel_sLinearFrac_ttab, ork_zem_kernel_sLinearFrac_ctab, n, a, b, scale_a, shift_a, scale_b, shift_b, r);
}
ORK_OUTER int ork_sLn(int n, const float* a, float* r) {
  return call<1, 1>("vsLn", ork_zem_kernel_sLn_ttab, ork_zem_kernel_sLn_ctab, n, a, r);
}
ORK_OUTER int ork_sLog10(int n, const float* a, float* r) {
  return call<1, 1>("vsLog10", ork_zem_kernel_sLog10_ttab, ork_zem_kernel_sLog10_ctab, n, a, r);
}
ORK_OUTER int ork_sLog1p(int n, const float* a, float* r) {
  return call<1, 1>("vsLog1p", ork_zem_kernel_sLog1p_ttab, ork_zem_kernel_sLog1p_ctab, n, a, r);
}
ORK_OUTER int ork_sModf(int n, const float* a, float* r, float* r2) {
  return call<1, 1, 1>("vsModf", ork_zem_kernel_sModf_ttab, ork_zem_kernel_sModf_ctab, n, a, r, r2);
}
ORK_OUTER int ork_sMul(int n, const float* a, const float* b, float* r) {
  return call<1, 1, 1>("vsMul", ork_zem_kernel_sMul_ttab, ork_zem_kernel_sMul_ctab, n, a, b, r);
}
ORK_OUTER int ork_sNearbyInt(int n, const float* a, float* r) {
  return call<1, 1>("vsNearbyInt", ork_zem_kernel_sNearbyInt_ttab, ork_zem_kernel_sNearbyInt_ctab, n, a, r);
}
ORK_OUTER int ork_sPackI(int n, const float* a, int32_t stride, float* y) {
  const int status = check("vsPackI", n, a, y);
  if (status == 0) _zemsPackI(n, 0, a, stride, 0, y, 1);
  return status;
}
ORK_OUTER int ork_sPackM(int n, const float* a, const int32_t* mask, float* y) {
  const int status = check("vsPackM", n, a, mask, y);
  if (status == 0) _zemsPackM(n, 0, a, mask, y, 1);
  return status;
}
ORK_OUTER int ork_sPackV(int n, const float* a, const int32_t* index, float* y) {
  const int status = check("vsPackV", n, a, index, y);
  if (status == 0) _zemsPackV(n, 0, a, index, y, 1);
  return status;
}
ORK_OUTER int ork_sPow(int n, const float* a, const float* b, float* r) {
  return call<1, 1, 1>("vsPow", ork_zem_kernel_sPow_ttab, ork_zem_kernel_sPow_ctab, n, a, b, r);
}
ORK_OUTER int ork_sPow2o3(int n, const float* a, float* r) {
  return call<1, 1>("vsPow2o3", ork_zem_kernel_sPow2o3_ttab, ork_zem_kernel_sPow2o3_ctab, n, a, r);
}
ORK_OUTER int ork_sPow3o2(int n, const float* a, float* r) {
  return call<1, 1>("vsPow3o2", ork_zem_kernel_sPow3o2_ttab, ork_zem_kernel_sPow3o2_ctab, n, a, r);
}
ORK_OUTER int ork_sPowx(int n, const float* a, float b, float* r) {
  return call<1, 0, 1>("vsPowx", ork_zem_kernel_sPowx_ttab, ork_zem_kernel_sPowx_ctab, n, a, b, r);
}
ORK_OUTER int ork_sRint(int n, const float* a, float* r) {
  return call<1, 1>("vsRint", ork_zem_kernel_sRint_ttab, ork_zem_kernel_sRint_ctab, n, a, r);
}
ORK_OUTER int ork_sRound(int n, const float* a, float* r) {
  return call<1, 1>("vsRound", ork_zem_kernel_sRound_ttab, ork_zem_kernel_sRound_ctab, n, a, r);
}
ORK_OUTER int ork_sSin(int n, const float* a, float* r) {
  return call<1, 1>("vsSin", ork_zem_kernel_sSin_ttab, ork_zem_kernel_sSin_ctab, n, a, r);
}
ORK_OUTER int ork_sSinCos(int n, const float* a, float* r, float* r2) {
  return call<1, 1, 1>("vsSinCos", ork_zem_kernel_sSinCos_ttab, ork_zem_kernel_sSinCos_ctab, n, a, r, r2);
}
ORK_OUTER int ork_sSinh(int n, const float* a, float* r) {
  return call<1, 1>("vsSinh", ork_zem_kernel_sSinh_ttab, ork_zem_kernel_sSinh_ctab, n, a, r);
}
ORK_OUTER int ork_sSqr(int n, const float* a, float* r) {
  return call<1, 1>("vsSqr", ork_zem_kernel_sSqr_ttab, ork_zem_kernel_sSqr_ctab, n, a, r);
}
ORK_OUTER int ork_sSqrt(int n, const float* a, float* r) {
  return call<1, 1>("vsSqrt", ork_zem_kernel_sSqrt_ttab, ork_zem_kernel_sSqrt_ctab, n, a, r);
}
ORK_OUTER int ork_sSub(int n, const float* a, const float* b, float* r) {
  return call<1, 1, 1>("vsSub", ork_zem_kernel_sSub_ttab, ork_zem_kernel_sSub_ctab, n, a, b, r);
}
ORK_OUTER int ork_sTGamma(int n, const float* a, float* r) {
  return call<1, 1>("vsTGamma", ork_zem_kernel_sTGamma_ttab, ork_zem_kernel_sTGamma_ctab, n, a, r);
}
ORK_OUTER int ork_sTan(int n, const float* a, float* r) {
  return call<1, 1>("vsTan", ork_zem_kernel_sTan_ttab, ork_zem_kernel_sTan_ctab, n, a, r);
}
ORK_OUTER int ork_sTanh(int n, const float* a, float* r) {
  return call<1, 1>("vsTanh", ork_zem_kernel_sTanh_ttab, ork_zem_kernel_sTanh_ctab, n, a, r);
}
ORK_OUTER int ork_sTrunc(int n, const float* a, float* r) {
  return call<1, 1>("vsTrunc", ork_zem_kernel_sTrunc_ttab, ork_zem_kernel_sTrunc_ctab, n, a, r);
}
ORK_OUTER int ork_sUnpackI(int n, const float* a, float* y, int32_t stride) {
  const int status = check("vsUnpackI", n, a, y);
  if (status == 0) _zemsUnpackI(n, 0, a, y, stride, 0, 1);
  return status;
}
ORK_OUTER int ork_sUnpackM(int n, const float* a, float* y, const int32_t* mask) {
  const int status = check("vsUnpackM", n, a, y, mask);
  if (status == 0) _zemsUnpackM(n, 0, a, y, mask, 1);
  return status;
}
ORK_OUTER int ork_sUnpackV(int n, const float* a, float* y, const int32_t* index) {
  const int status = check("vsUnpackV", n, a, y, index);
  if (status == 0) _zemsUnpackV(n, 0, a, y, index, 1);
  return status;
}
ORK_OUTER int ork_cAbs(int n, const float* a, float* r) {
  return call<2, 1>("vcAbs", ork_zem_kernel_cAbs_ttab, ork_zem_kernel_cAbs_ctab, n, a, r);
}
ORK_OUTER int ork_cAcos(int n, const float* a, float* r) {
  return call<2, 2>("vcAcos", ork_zem_kernel_cAcos_ttab, ork_zem_kernel_cAcos_ctab, n, a, r);
}
ORK_OUTER int ork_cAcosh(int n, const float* a, float* r) {
  return call<2, 2>("vcAcosh", ork_zem_kernel_cAcosh_ttab, ork_zem_kernel_cAcosh_ctab, n, a, r);
}
ORK_OUTER int ork_cAdd(int n, const float* a, const float* b, float* r) {
  return call<2, 2, 2>("vcAdd", ork_zem_kernel_cAdd_ttab, ork_zem_kernel_cAdd_ctab, n, a, b, r);
}
ORK_OUTER int ork_cArg(int n, const float* a, float* r) {
  return call<2, 1>("vcArg", ork_zem_kernel_cArg_ttab, ork_zem_kernel_cArg_ctab, n, a, r);
}
ORK_OUTER int ork_cAsin(int n, const float* a, float* r) {
  return call<2, 2>("vcAsin", ork_zem_kernel_cAsin_ttab, ork_zem_kernel_cAsin_ctab, n, a, r);
}
ORK_OUTER int ork_cAsinh(int n, const float* a, float* r) {
  return call<2, 2>("vcAsinh", ork_zem_kernel_cAsinh_ttab, ork_zem_kernel_cAsinh_ctab, n, a, r);
}
ORK_OUTER int ork_cAtan(int n, const float* a, float* r) {
  return call<2, 2>("vcAtan", ork_zem_kernel_cAtan_ttab, ork_zem_kernel_cAtan_ctab, n, a, r);
}
ORK_OUTER int ork_cAtanh(int n, const float* a, float* r) {
  return call<2, 2>("vcAtanh", ork_zem_kernel_cAtanh_ttab, ork_zem_kernel_cAtanh_ctab, n, a, r);
}
ORK_OUTER int ork_cCIS(int n, const float* a, float* r) {
  return call<1, 2>("vcCIS", ork_zem_kernel_cCIS_ttab, ork_zem_kernel_cCIS_ctab, n, a, r);
}
ORK_OUTER int ork_cConj(int n, const float* a, float* r) {
  return call<2, 2>("vcConj", ork_zem_kernel_cConj_ttab, ork_zem_kernel_cConj_ctab, n, a, r);
}
ORK_OUTER int ork_cCos(int n, const float* a, float* r) {
  return call<2, 2>("vcCos", ork_zem_kernel_cCos_ttab, ork_zem_kernel_cCos_ctab, n, a, r);
}
ORK_OUTER int ork_cCosh(int n, const float* a, float* r) {
  return call<2, 2>("vcCosh", ork_zem_kernel_cCosh_ttab, ork_zem_kernel_cCosh_ctab, n, a, r);
}
ORK_OUTER int ork_cDiv(int n, const float* a, const float* b, float* r) {
  return call<2, 2, 2>("vcDiv", ork_zem_kernel_cDiv_ttab, ork_zem_kernel_cDiv_ctab, n, a, b, r);
}
ORK_OUTER int ork_cExp(int n, const float* a, float* r) {
  return call<2, 2>("vcExp", ork_zem_kernel_cExp_ttab, ork_zem_kernel_cExp_ctab, n, a, r);
}
ORK_OUTER int ork_cLn(int n, const float* a, float* r) {
  return call<2, 2>("vcLn", ork_zem_kernel_cLn_ttab, ork_zem_kernel_cLn_ctab, n, a, r);
}
ORK_OUTER int ork_cLog10(int n, const float* a, float* r) {
  return call<2, 2>("vcLog10", ork_zem_kernel_cLog10_ttab, ork_zem_kernel_cLog10_ctab, n, a, r);
}
ORK_OUTER int ork_cMul(int n, const float* a, const float* b, float* r) {
  return call<2, 2, 2>("vcMul", ork_zem_kernel_cMul_ttab, ork_zem_kernel_cMul_ctab, n, a, b, r);
}
ORK_OUTER int ork_cMulByConj(int n, const float* a, const float* b, float* r) {
  return call<2, 2, 2>("vcMulByConj", ork_zem_kernel_cMulByConj_ttab, ork_zem_kernel_cMulByConj_ctab, n, a, b, r);
}
ORK_OUTER int ork_cPackI(int n, const float* a, int32_t stride, float* y) {
  const int status = check("vcPackI", n, a, y);
  if (status == 0) _zemcPackI(n, 0, a, stride, 0, y, 1);
  return status;
}
ORK_OUTER int ork_cPackM(int n, const float* a, const int32_t* mask, float* y) {
  const int status = check("vcPackM", n, a, mask, y);
  if (status == 0) _zemcPackM(n, 0, a, mask, y, 1);
  return status;
}
ORK_OUTER int ork_cPackV(int n, const float* a, const int32_t* index, float* y) {
  const int status = check("vcPackV", n, a, index, y);
  if (status == 0) _zemcPackV(n, 0, a, index, y, 1);
  return status;
}
ORK_OUTER int ork_cPow(int n, const float* a, const float* b, float* r) {
  return call<2, 2, 2>("vcPow", ork_zem_kernel_cPow_ttab, ork_zem_kernel_cPow_ctab, n, a, b, r);
}
ORK_OUTER int ork_cPowx(int n, const float* a, ork_c b, float* r) {
  return call<2, 0, 2>("vcPowx", ork_zem_kernel_cPowx_ttab, ork_zem_kernel_cPowx_ctab, n, a, b, r);
}
ORK_OUTER int ork_cSin(int n, const float* a, float* r) {
  return call<2, 2>("vcSin", ork_zem_kernel_cSin_ttab, ork_zem_kernel_cSin_ctab, n, a, r);
}
ORK_OUTER int ork_cSinh(int n, const float* a, float* r) {
  return call<2, 2>("vcSinh", ork_zem_kernel_cSinh_ttab, ork_zem_kernel_cSinh_ctab, n, a, r);
}
ORK_OUTER int ork_cSqrt(int n, const float* a, float* r) {
  return call<2, 2>("vcSqrt", ork_zem_kernel_cSqrt_ttab, ork_zem_kernel_cSqrt_ctab, n, a, r);
}
ORK_OUTER int ork_cSub(int n, const float* a, const float* b, float* r) {
  return call<2, 2, 2>("vcSub", ork_zem_kernel_cSub_ttab, ork_zem_kernel_cSub_ctab, n, a, b, r);
}
ORK_OUTER int ork_cTan(int n, const float* a, float* r) {
  return call<2, 2>("vcTan", ork_zem_kernel_cTan_ttab, ork_zem_kernel_cTan_ctab, n, a, r);
}
ORK_OUTER int ork_cTanh(int n, const float* a, float* r) {
  return call<2, 2>("vcTanh", ork_zem_kernel_cTanh_ttab, ork_zem_kernel_cTanh_ctab, n, a, r);
}
ORK_OUTER int ork_cUnpackI(int n, const float* a, float* y, int32_t stride) {
  const int status = check("vcUnpackI", n, a, y);
  if (status == 0) _zemcUnpackI(n, 0, a, y, stride, 0, 1);
  return status;
}
ORK_OUTER int ork_cUnpackM(int n, const float* a, float* y, const int32_t* mask) {
  const int status = check("vcUnpackM", n, a, y, mask);
  if (status == 0) _zemcUnpackM(n, 0, a, y, mask, 1);
  return status;
}
ORK_OUTER int ork_cUnpackV(int n, const float* a, float* y, const int32_t* index) {
  const int status = check("vcUnpackV", n, a, y, index);
  if (status == 0) _zemcUnpackV(n, 0, a, y, index, 1);
  return status;
}
ORK_OUTER int ork_zAbs(int n, const double* a, double* r) {
  return call<2, 1>("vzAbs", ork_zem_kernel_zAbs_ttab, ork_zem_kernel_zAbs_ctab, n, a, r);
}
ORK_OUTER int ork_zAcos(int n, const double* a, double* r) {
  return call<2, 2>("vzAcos", ork_zem_kernel_zAcos_ttab, ork_zem_kernel_zAcos_ctab, n, a, r);
}
ORK_OUTER int ork_zAcosh(int n, const double* a, double* r) {
  return call<2, 2>("vzAcosh", ork_zem_kernel_zAcosh_ttab, ork_zem_kernel_zAcosh_ctab, n, a, r);
}
ORK_OUTER int ork_zAdd(int n, const double* a, const double* b, double* r) {
  return call<2, 2, 2>("vzAdd", ork_zem_kernel_zAdd_ttab, ork_zem_kernel_zAdd_ctab, n, a, b, r);
}
ORK_OUTER int ork_zArg(int n, const double* a, double* r) {
  return call<2, 1>("vzArg", ork_zem_kernel_zArg_ttab, ork_zem_kernel_zArg_ctab, n, a, r);
}
ORK_OUTER int ork_zAsin(int n, const double* a, double* r) {
  return call<2, 2>("vzAsin", ork_zem_kernel_zAsin_ttab, ork_zem_kernel_zAsin_ctab, n, a, r);
}
ORK_OUTER int ork_zAsinh(int n, const double* a, double* r) {
  return call<2, 2>("vzAsinh", ork_zem_kernel_zAsinh_ttab, ork_zem_kernel_zAsinh_ctab, n, a, r);
}
ORK_OUTER int ork_zAtan(int n, const double* a, double* r) {
  return call<2, 2>("vzAtan", ork_zem_kernel_zAtan_ttab, ork_zem_kernel_zAtan_ctab, n, a, r);
}
ORK_OUTER int ork_zAtanh(int n, const double* a, double* r) {
  return call<2, 2>("vzAtanh", ork_zem_kernel_zAtanh_ttab, ork_zem_kernel_zAtanh_ctab, n, a, r);
}
ORK_OUTER int ork_zCIS(int n, const double* a, double* r) {
  return call<1, 2>("vzCIS", ork_zem_kernel_zCIS_ttab, ork_zem_kernel_zCIS_ctab, n, a, r);
}
ORK_OUTER int ork_zConj(int n, const double* a, double* r) {
  return call<2, 2>("vzConj", ork_zem_kernel_zConj_ttab, ork_zem_kernel_zConj_ctab, n, a, r);
}
ORK_OUTER int ork_zCos(int n, const double* a, double* r) {
  return call<2, 2>("vzCos", ork_zem_kernel_zCos_ttab, ork_zem_kernel_zCos_ctab, n, a, r);
}
ORK_OUTER int ork_zCosh(int n, const double* a, double* r) {
  return call<2, 2>("vzCosh", ork_zem_kernel_zCosh_ttab, ork_zem_kernel_zCosh_ctab, n, a, r);
}
ORK_OUTER int ork_zDiv(int n, const double* a, const double* b, double* r) {
  return call<2, 2, 2>("vzDiv", ork_zem_kernel_zDiv_ttab, ork_zem_kernel_zDiv_ctab, n, a, b, r);
}
ORK_OUTER int ork_zExp(int n, const double* a, double* r) {
  return call<2, 2>("vzExp", ork_zem_kernel_zExp_ttab, ork_zem_kernel_zExp_ctab, n, a, r);
}
ORK_OUTER int ork_zLn(int n, const double* a, double* r) {
  return call<2, 2>("vzLn", ork_zem_kernel_zLn_ttab, ork_zem_kernel_zLn_ctab, n, a, r);
}
ORK_OUTER int ork_zLog10(int n, const double* a, double* r) {
  return call<2, 2>("vzLog10", ork_zem_kernel_zLog10_ttab, ork_zem_kernel_zLog10_ctab, n, a, r);
}
ORK_OUTER int ork_zMul(int n, const double* a, const double* b, double* r) {
  return call<2, 2, 2>("vzMul", ork_zem_kernel_zMul_ttab, ork_zem_kernel_zMul_ctab, n, a, b, r);
}
ORK_OUTER int ork_zMulByConj(int n, const double* a, const double* b, double* r) {
  return call<2, 2, 2>("vzMulByConj", ork_zem_kernel_zMulByConj_ttab, ork_zem_kernel_zMulByConj_ctab, n, a, b, r);
}
ORK_OUTER int ork_zPackI(int n, const double* a, int32_t stride, double* y) {
  const int status = check("vzPackI", n, a, y);
  if (status == 0) _zemzPackI(n, 0, a, stride, 0, y, 1);
  return status;
}
ORK_OUTER int ork_zPackM(int n, const double* a, const int32_t* mask, double* y) {
  const int status = check("vzPackM", n, a, mask, y);
  if (status == 0) _zemzPackM(n, 0, a, mask, y, 1);
  return status;
}
ORK_OUTER int ork_zPackV(int n, const double* a, const int32_t* index, double* y) {
  const int status = check("vzPackV", n, a, index, y);
  if (status == 0) _zemzPackV(n, 0, a, index, y, 1);
  return status;
}
ORK_OUTER int ork_zPow(int n, const double* a, const double* b, double* r) {
  return call<2, 2, 2>("vzPow", ork_zem_kernel_zPow_ttab, ork_zem_kernel_zPow_ctab, n, a, b, r);
}
ORK_OUTER int ork_zPowx(int n, const double* a, ork_z b, double* r) {
  return call<2, 0, 2>("vzPowx", ork_zem_kernel_zPowx_ttab, ork_zem_kernel_zPowx_ctab, n, a, b, r);
}
ORK_OUTER int ork_zSin(int n, const double* a, double* r) {
  return call<2, 2>("vzSin", ork_zem_kernel_zSin_ttab, ork_zem_kernel_zSin_ctab, n, a, r);
}
ORK_OUTER int ork_zSinh(int n, const double* a, double* r) {
  return call<2, 2>("vzSinh", ork_zem_kernel_zSinh_ttab, ork_zem_kernel_zSinh_ctab, n, a, r);
}
ORK_OUTER int ork_zSqrt(int n, const double* a, double* r) {
  return call<2, 2>("vzSqrt", ork_zem_kernel_zSqrt_ttab, ork_zem_kernel_zSqrt_ctab, n, a, r);
}
ORK_OUTER int ork_zSub(int n, const double* a, const double* b, double* r) {
  return call<2, 2, 2>("vzSub", ork_zem_kernel_zSub_ttab, ork_zem_kernel_zSub_ctab, n, a, b, r);
}
ORK_OUTER int ork_zTan(int n, const double* a, double* r) {
  return call<2, 2>("vzTan", ork_zem_kernel_zTan_ttab, ork_zem_kernel_zTan_ctab, n, a, r);
}
ORK_OUTER int ork_zTanh(int n, const double* a, double* r) {
  return call<2, 2>("vzTanh", ork_zem_kernel_zTanh_ttab, ork_zem_kernel_zTanh_ctab, n, a, r);
}
ORK_OUTER int ork_zUnpackI(int n, const double* a, double* y, int32_t stride) {
  const int status = check("vzUnpackI", n, a, y);
  if (status == 0) _zemzUnpackI(n, 0, a, y, stride, 0, 1);
  return status;
}
ORK_OUTER int ork_zUnpackM(int n, const double* a, double* y, const int32_t* mask) {
  const int status = check("vzUnpackM", n, a, y, mask);
  if (status == 0) _zemzUnpackM(n, 0, a, y, mask, 1);
  return status;
}
ORK_OUTER int ork_zUnpackV(int n, const double* a, double* y, const int32_t* index) {
  const int status = check("vzUnpackV", n, a, y, index);
  if (status == 0) _zemzUnpackV(n, 0, a, y, index, 1);
  return status;
}
