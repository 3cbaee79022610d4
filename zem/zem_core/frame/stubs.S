// Generated from zem/zem_core/frame/slots.tsv by ./dev tables slots; edit that.
// Entry stubs: a jump through a slot of the kernel table, the arguments untouched.
#include "frame/stub.inc"

  stub _zemdAbs_50, ork_zem_kernel_dAbs_ttab, 0
  stub _zemdAbs_HA, ork_zem_kernel_dAbs_ttab, 1
  stub _zemdAbs, ork_zem_kernel_dAbs_ttab, 1
  stub _zemdAbs_26, ork_zem_kernel_dAbs_ttab, 2
  stub _zemdAcos_50, ork_zem_kernel_dAcos_ttab, 0
  stub _zemdAcos_HA, ork_zem_kernel_dAcos_ttab, 1
  stub _zemdAcos, ork_zem_kernel_dAcos_ttab, 1
  stub _zemdAcos_26, ork_zem_kernel_dAcos_ttab, 2
  stub _zemdAcosh_50, ork_zem_kernel_dAcosh_ttab, 0
  stub _zemdAcosh_HA, ork_zem_kernel_dAcosh_ttab, 1
  stub _zemdAcosh, ork_zem_kernel_dAcosh_ttab, 1
  stub _zemdAcosh_26, ork_zem_kernel_dAcosh_ttab, 2
  stub _zemdAdd_50, ork_zem_kernel_dAdd_ttab, 0
  stub _zemdAdd_HA, ork_zem_kernel_dAdd_ttab, 1
  stub _zemdAdd, ork_zem_kernel_dAdd_ttab, 1
  stub _zemdAdd_26, ork_zem_kernel_dAdd_ttab, 2
  stub _zemdAsin_50, ork_zem_kernel_dAsin_ttab, 0
  stub _zemdAsin_HA, ork_zem_kernel_dAsin_ttab, 1
  stub _zemdAsin, ork_zem_kernel_dAsin_ttab, 1
  stub _zemdAsin_26, ork_zem_kernel_dAsin_ttab, 2
  stub _zemdAsinh_50, ork_zem_kernel_dAsinh_ttab, 0
  stub _zemdAsinh_HA, ork_zem_kernel_dAsinh_ttab, 1
  stub _zemdAsinh, ork_zem_kernel_dAsinh_ttab, 1
  stub _zemdAsinh_26, ork_zem_kernel_dAsinh_ttab, 2
  stub _zemdAtan_50, ork_zem_kernel_dAtan_ttab, 0
  stub _zemdAtan_HA, ork_zem_kernel_dAtan_ttab, 1
  stub _zemdAtan, ork_zem_kernel_dAtan_ttab, 1
  stub _zemdAtan_26, ork_zem_kernel_dAtan_ttab, 2
  stub _zemdAtan2_50, ork_zem_kernel_dAtan2_ttab, 0
  stub _zemdAtan2_HA, ork_zem_kernel_dAtan2_ttab, 1
  stub _zemdAtan2, ork_zem_kernel_dAtan2_ttab, 1
  stub _zemdAtan2_26, ork_zem_kernel_dAtan2_ttab, 2
  stub _zemdAtanh_50, ork_zem_kernel_dAtanh_ttab, 0
  stub _zemdAtanh_HA, ork_zem_kernel_dAtanh_ttab, 1
  stub _zemdAtanh, ork_zem_kernel_dAtanh_ttab, 1
  stub _zemdAtanh_26, ork_zem_kernel_dAtanh_ttab, 2
  stub _zemdCbrt_50, ork_zem_kernel_dCbrt_ttab, 0
  stub _zemdCbrt_HA, ork_zem_kernel_dCbrt_ttab, 1
  stub _zemdCbrt, ork_zem_kernel_dCbrt_ttab, 1
  stub _zemdCbrt_26, ork_zem_kernel_dCbrt_ttab, 2
  stub _zemdCdfNorm_50, ork_zem_kernel_dCdfNorm_ttab, 0
  stub _zemdCdfNorm_HA, ork_zem_kernel_dCdfNorm_ttab, 1
  stub _zemdCdfNorm, ork_zem_kernel_dCdfNorm_ttab, 1
  stub _zemdCdfNorm_26, ork_zem_kernel_dCdfNorm_ttab, 2
  stub _zemdCdfNormInv_50, ork_zem_kernel_dCdfNormInv_ttab, 0
  stub _zemdCdfNormInv_HA, ork_zem_kernel_dCdfNormInv_ttab, 1
  stub _zemdCdfNormInv, ork_zem_kernel_dCdfNormInv_ttab, 1
  stub _zemdCdfNormInv_26, ork_zem_kernel_dCdfNormInv_ttab, 2
  stub _zemdCeil_50, ork_zem_kernel_dCeil_ttab, 0
  stub _zemdCeil_HA, ork_zem_kernel_dCeil_ttab, 1
  stub _zemdCeil, ork_zem_kernel_dCeil_ttab, 1
  stub _zemdCeil_26, ork_zem_kernel_dCeil_ttab, 2
  stub _zemdCos_50, ork_zem_kernel_dCos_ttab, 0
  stub _zemdCos_HA, ork_zem_kernel_dCos_ttab, 1
  stub _zemdCos, ork_zem_kernel_dCos_ttab, 1
  stub _zemdCos_26, ork_zem_kernel_dCos_ttab, 2
  stub _zemdCosh_50, ork_zem_kernel_dCosh_ttab, 0
  stub _zemdCosh_HA, ork_zem_kernel_dCosh_ttab, 1
  stub _zemdCosh, ork_zem_kernel_dCosh_ttab, 1
  stub _zemdCosh_26, ork_zem_kernel_dCosh_ttab, 2
  stub _zemdDiv_50, ork_zem_kernel_dDiv_ttab, 0
  stub _zemdDiv_HA, ork_zem_kernel_dDiv_ttab, 1
  stub _zemdDiv, ork_zem_kernel_dDiv_ttab, 1
  stub _zemdDiv_26, ork_zem_kernel_dDiv_ttab, 2
  stub _zemdErf_50, ork_zem_kernel_dErf_ttab, 0
  stub _zemdErf_HA, ork_zem_kernel_dErf_ttab, 1
  stub _zemdErf, ork_zem_kernel_dErf_ttab, 1
  stub _zemdErf_26, ork_zem_kernel_dErf_ttab, 2
  stub _zemdErfInv_50, ork_zem_kernel_dErfInv_ttab, 0
  stub _zemdErfInv_HA, ork_zem_kernel_dErfInv_ttab, 1
  stub _zemdErfInv, ork_zem_kernel_dErfInv_ttab, 1
  stub _zemdErfInv_26, ork_zem_kernel_dErfInv_ttab, 2
  stub _zemdErfc_50, ork_zem_kernel_dErfc_ttab, 0
  stub _zemdErfc_HA, ork_zem_kernel_dErfc_ttab, 1
  stub _zemdErfc, ork_zem_kernel_dErfc_ttab, 1
  stub _zemdErfc_26, ork_zem_kernel_dErfc_ttab, 2
  stub _zemdErfcInv_50, ork_zem_kernel_dErfcInv_ttab, 0
  stub _zemdErfcInv_HA, ork_zem_kernel_dErfcInv_ttab, 1
  stub _zemdErfcInv, ork_zem_kernel_dErfcInv_ttab, 1
  stub _zemdErfcInv_26, ork_zem_kernel_dErfcInv_ttab, 2
  stub _zemdExp_50, ork_zem_kernel_dExp_ttab, 0
  stub _zemdExp_HA, ork_zem_kernel_dExp_ttab, 1
  stub _zemdExp, ork_zem_kernel_dExp_ttab, 1
  stub _zemdExp_26, ork_zem_kernel_dExp_ttab, 2
  stub _zemdExpm1_50, ork_zem_kernel_dExpm1_ttab, 0
  stub _zemdExpm1_HA, ork_zem_kernel_dExpm1_ttab, 1
  stub _zemdExpm1, ork_zem_kernel_dExpm1_ttab, 1
  stub _zemdExpm1_26, ork_zem_kernel_dExpm1_ttab, 2
  stub _zemdFloor_50, ork_zem_kernel_dFloor_ttab, 0
  stub _zemdFloor_HA, ork_zem_kernel_dFloor_ttab, 1
  stub _zemdFloor, ork_zem_kernel_dFloor_ttab, 1
  stub _zemdFloor_26, ork_zem_kernel_dFloor_ttab, 2
  stub _zemdHypot_50, ork_zem_kernel_dHypot_ttab, 0
  stub _zemdHypot_HA, ork_zem_kernel_dHypot_ttab, 1
  stub _zemdHypot, ork_zem_kernel_dHypot_ttab, 1
  stub _zemdHypot_26, ork_zem_kernel_dHypot_ttab, 2
  stub _zemdInv_50, ork_zem_kernel_dInv_ttab, 0
  stub _zemdInv_HA, ork_zem_kernel_dInv_ttab, 1
  stub _zemdInv, ork_zem_kernel_dInv_ttab, 1
  stub _zemdInv_26, ork_zem_kernel_dInv_ttab, 2
  stub _zemdInvCbrt_50, ork_zem_kernel_dInvCbrt_ttab, 0
  stub _zemdInvCbrt_HA, ork_zem_kernel_dInvCbrt_ttab, 1
  stub _zemdInvCbrt, ork_zem_kernel_dInvCbrt_ttab, 1
  stub _zemdInvCbrt_26, ork_zem_kernel_dInvCbrt_ttab, 2
  stub _zemdInvSqrt_50, ork_zem_kernel_dInvSqrt_ttab, 0
  stub _zemdInvSqrt_HA, ork_zem_kernel_dInvSqrt_ttab, 1
  stub _zemdInvSqrt, ork_zem_kernel_dInvSqrt_ttab, 1
  stub _zemdInvSqrt_26, ork_zem_kernel_dInvSqrt_ttab, 2
  stub _zemdLGamma_50, ork_zem_kernel_dLGamma_ttab, 0
  stub _zemdLGamma_HA, ork_zem_kernel_dLGamma_ttab, 1
  stub _zemdLGamma, ork_zem_kernel_dLGamma_ttab, 1
  stub _zemdLGamma_26, ork_zem_kernel_dLGamma_ttab, 2
  stub _zemdLinearFrac_50, ork_zem_kernel_dLinearFrac_ttab, 0
  stub _zemdLinearFrac_HA, ork_zem_kernel_dLinearFrac_ttab, 1
  stub _zemdLinearFrac, ork_zem_kernel_dLinearFrac_ttab, 1
  stub _zemdLinearFrac_26, ork_zem_kernel_dLinearFrac_ttab, 2
  stub _zemdLn_50, ork_zem_kernel_dLn_ttab, 0
  stub _zemdLn_HA, ork_zem_kernel_dLn_ttab, 1
  stub _zemdLn, ork_zem_kernel_dLn_ttab, 1
  stub _zemdLn_26, ork_zem_kernel_dLn_ttab, 2
  stub _zemdLog10_50, ork_zem_kernel_dLog10_ttab, 0
  stub _zemdLog10_HA, ork_zem_kernel_dLog10_ttab, 1
  stub _zemdLog10, ork_zem_kernel_dLog10_ttab, 1
  stub _zemdLog10_26, ork_zem_kernel_dLog10_ttab, 2
  stub _zemdLog1p_50, ork_zem_kernel_dLog1p_ttab, 0
  stub _zemdLog1p_HA, ork_zem_kernel_dLog1p_ttab, 1
  stub _zemdLog1p, ork_zem_kernel_dLog1p_ttab, 1
  stub _zemdLog1p_26, ork_zem_kernel_dLog1p_ttab, 2
  stub _zemdModf_50, ork_zem_kernel_dModf_ttab, 0
  stub _zemdModf_HA, ork_zem_kernel_dModf_ttab, 1
  stub _zemdModf, ork_zem_kernel_dModf_ttab, 1
  stub _zemdModf_26, ork_zem_kernel_dModf_ttab, 2
  stub _zemdMul_50, ork_zem_kernel_dMul_ttab, 0
  stub _zemdMul_HA, ork_zem_kernel_dMul_ttab, 1
  stub _zemdMul, ork_zem_kernel_dMul_ttab, 1
  stub _zemdMul_26, ork_zem_kernel_dMul_ttab, 2
  stub _zemdNearbyInt_50, ork_zem_kernel_dNearbyInt_ttab, 0
  stub _zemdNearbyInt_HA, ork_zem_kernel_dNearbyInt_ttab, 1
  stub _zemdNearbyInt, ork_zem_kernel_dNearbyInt_ttab, 1
  stub _zemdNearbyInt_26, ork_zem_kernel_dNearbyInt_ttab, 2
  stub _zemdPackI_50, ork_zem_kernel_dPackI_ttab, 0, 7
  stub _zemdPackI_HA, ork_zem_kernel_dPackI_ttab, 1, 7
  stub _zemdPackI, ork_zem_kernel_dPackI_ttab, 1, 7
  stub _zemdPackI_26, ork_zem_kernel_dPackI_ttab, 2, 7
  stub _zemdPackM_50, ork_zem_kernel_dPackM_ttab, 0, 6
  stub _zemdPackM_HA, ork_zem_kernel_dPackM_ttab, 1, 6
  stub _zemdPackM, ork_zem_kernel_dPackM_ttab, 1, 6
  stub _zemdPackM_26, ork_zem_kernel_dPackM_ttab, 2, 6
  stub _zemdPackV_50, ork_zem_kernel_dPackV_ttab, 0, 6
  stub _zemdPackV_HA, ork_zem_kernel_dPackV_ttab, 1, 6
  stub _zemdPackV, ork_zem_kernel_dPackV_ttab, 1, 6
  stub _zemdPackV_26, ork_zem_kernel_dPackV_ttab, 2, 6
  stub _zemdPow_50, ork_zem_kernel_dPow_ttab, 0
  stub _zemdPow_HA, ork_zem_kernel_dPow_ttab, 1
  stub _zemdPow, ork_zem_kernel_dPow_ttab, 1
  stub _zemdPow_26, ork_zem_kernel_dPow_ttab, 2
  stub _zemdPow2o3_50, ork_zem_kernel_dPow2o3_ttab, 0
  stub _zemdPow2o3_HA, ork_zem_kernel_dPow2o3_ttab, 1
  stub _zemdPow2o3, ork_zem_kernel_dPow2o3_ttab, 1
  stub _zemdPow2o3_26, ork_zem_kernel_dPow2o3_ttab, 2
  stub _zemdPow3o2_50, ork_zem_kernel_dPow3o2_ttab, 0
  stub _zemdPow3o2_HA, ork_zem_kernel_dPow3o2_ttab, 1
  stub _zemdPow3o2, ork_zem_kernel_dPow3o2_ttab, 1
  stub _zemdPow3o2_26, ork_zem_kernel_dPow3o2_ttab, 2
  stub _zemdPowx_50, ork_zem_kernel_dPowx_ttab, 0
  stub _zemdPowx_HA, ork_zem_kernel_dPowx_ttab, 1
  stub _zemdPowx, ork_zem_kernel_dPowx_ttab, 1
  stub _zemdPowx_26, ork_zem_kernel_dPowx_ttab, 2
  stub _zemdRint_50, ork_zem_kernel_dRint_ttab, 0
  stub _zemdRint_HA, ork_zem_kernel_dRint_ttab, 1
  stub _zemdRint, ork_zem_kernel_dRint_ttab, 1
  stub _zemdRint_26, ork_zem_kernel_dRint_ttab, 2
  stub _zemdRound_50, ork_zem_kernel_dRound_ttab, 0
  stub _zemdRound_HA, ork_zem_kernel_dRound_ttab, 1
  stub _zemdRound, ork_zem_kernel_dRound_ttab, 1
  stub _zemdRound_26, ork_zem_kernel_dRound_ttab, 2
  stub _zemdSin_50, ork_zem_kernel_dSin_ttab, 0
  stub _zemdSin_HA, ork_zem_kernel_dSin_ttab, 1
  stub _zemdSin, ork_zem_kernel_dSin_ttab, 1
  stub _zemdSin_26, ork_zem_kernel_dSin_ttab, 2
  stub _zemdSinCos_50, ork_zem_kernel_dSinCos_ttab, 0
  stub _zemdSinCos_HA, ork_zem_kernel_dSinCos_ttab, 1
  stub _zemdSinCos, ork_zem_kernel_dSinCos_ttab, 1
  stub _zemdSinCos_26, ork_zem_kernel_dSinCos_ttab, 2
  stub _zemdSinh_50, ork_zem_kernel_dSinh_ttab, 0
  stub _zemdSinh_HA, ork_zem_kernel_dSinh_ttab, 1
  stub _zemdSinh, ork_zem_kernel_dSinh_ttab, 1
  stub _zemdSinh_26, ork_zem_kernel_dSinh_ttab, 2
  stub _zemdSqr_50, ork_zem_kernel_dSqr_ttab, 0
  stub _zemdSqr_HA, ork_zem_kernel_dSqr_ttab, 1
  stub _zemdSqr, ork_zem_kernel_dSqr_ttab, 1
  stub _zemdSqr_26, ork_zem_kernel_dSqr_ttab, 2
  stub _zemdSqrt_50, ork_zem_kernel_dSqrt_ttab, 0
  stub _zemdSqrt_HA, ork_zem_kernel_dSqrt_ttab, 1
  stub _zemdSqrt, ork_zem_kernel_dSqrt_ttab, 1
  stub _zemdSqrt_26, ork_zem_kernel_dSqrt_ttab, 2
  stub _zemdSub_50, ork_zem_kernel_dSub_ttab, 0
  stub _zemdSub_HA, ork_zem_kernel_dSub_ttab, 1
  stub _zemdSub, ork_zem_kernel_dSub_ttab, 1
  stub _zemdSub_26, ork_zem_kernel_dSub_ttab, 2
  stub _zemdTGamma_50, ork_zem_kernel_dTGamma_ttab, 0
  stub _zemdTGamma_HA, ork_zem_kernel_dTGamma_ttab, 1
  stub _zemdTGamma, ork_zem_kernel_dTGamma_ttab, 1
  stub _zemdTGamma_26, ork_zem_kernel_dTGamma_ttab, 2
  stub _zemdTan_50, ork_zem_kernel_dTan_ttab, 0
  stub _zemdTan_HA, ork_zem_kernel_dTan_ttab, 1
  stub _zemdTan, ork_zem_kernel_dTan_ttab, 1
  stub _zemdTan_26, ork_zem_kernel_dTan_ttab, 2
  stub _zemdTanh_50, ork_zem_kernel_dTanh_ttab, 0
  stub _zemdTanh_HA, ork_zem_kernel_dTanh_ttab, 1
  stub _zemdTanh, ork_zem_kernel_dTanh_ttab, 1
  stub _zemdTanh_26, ork_zem_kernel_dTanh_ttab, 2
  stub _zemdTrunc_50, ork_zem_kernel_dTrunc_ttab, 0
  stub _zemdTrunc_HA, ork_zem_kernel_dTrunc_ttab, 1
  stub _zemdTrunc, ork_zem_kernel_dTrunc_ttab, 1
  stub _zemdTrunc_26, ork_zem_kernel_dTrunc_ttab, 2
  stub _zemdUnpackI_50, ork_zem_kernel_dUnpackI_ttab, 0, 7
  stub _zemdUnpackI_HA, ork_zem_kernel_dUnpackI_ttab, 1, 7
  stub _zemdUnpackI, ork_zem_kernel_dUnpackI_ttab, 1, 7
  stub _zemdUnpackI_26, ork_zem_kernel_dUnpackI_ttab, 2, 7
  stub _zemdUnpackM_50, ork_zem_kernel_dUnpackM_ttab, 0, 6
  stub _zemdUnpackM_HA, ork_zem_kernel_dUnpackM_ttab, 1, 6
  stub _zemdUnpackM, ork_zem_kernel_dUnpackM_ttab, 1, 6
  stub _zemdUnpackM_26, ork_zem_kernel_dUnpackM_ttab, 2, 6
  stub _zemdUnpackV_50, ork_zem_kernel_dUnpackV_ttab, 0, 6
  stub _zemdUnpackV_HA, ork_zem_kernel_dUnpackV_ttab, 1, 6
  stub _zemdUnpackV, ork_zem_kernel_dUnpackV_ttab, 1, 6
  stub _zemdUnpackV_26, ork_zem_kernel_dUnpackV_ttab, 2, 6
  stub _zemsAbs_21, ork_zem_kernel_sAbs_ttab, 0
  stub _zemsAbs_HA, ork_zem_kernel_sAbs_ttab, 1
  stub _zemsAbs, ork_zem_kernel_sAbs_ttab, 1
  stub _zemsAbs_11, ork_zem_kernel_sAbs_ttab, 2
  stub _zemsAcos_21, ork_zem_kernel_sAcos_ttab, 0
  stub _zemsAcos_HA, ork_zem_kernel_sAcos_ttab, 1
  stub _zemsAcos, ork_zem_kernel_sAcos_ttab, 1
  stub _zemsAcos_11, ork_zem_kernel_sAcos_ttab, 2
  stub _zemsAcosh_21, ork_zem_kernel_sAcosh_ttab, 0
  stub _zemsAcosh_HA, ork_zem_kernel_sAcosh_ttab, 1
  stub _zemsAcosh, ork_zem_kernel_sAcosh_ttab, 1
  stub _zemsAcosh_11, ork_zem_kernel_sAcosh_ttab, 2
  stub _zemsAdd_21, ork_zem_kernel_sAdd_ttab, 0
  stub _zemsAdd_HA, ork_zem_kernel_sAdd_ttab, 1
  stub _zemsAdd, ork_zem_kernel_sAdd_ttab, 1
  stub _zemsAdd_11, ork_zem_kernel_sAdd_ttab, 2
  stub _zemsAsin_21, ork_zem_kernel_sAsin_ttab, 0
  stub _zemsAsin_HA, ork_zem_kernel_sAsin_ttab, 1
  stub _zemsAsin, ork_zem_kernel_sAsin_ttab, 1
  stub _zemsAsin_11, ork_zem_kernel_sAsin_ttab, 2
  stub _zemsAsinh_21, ork_zem_kernel_sAsinh_ttab, 0
  stub _zemsAsinh_HA, ork_zem_kernel_sAsinh_ttab, 1
  stub _zemsAsinh, ork_zem_kernel_sAsinh_ttab, 1
  stub _zemsAsinh_11, ork_zem_kernel_sAsinh_ttab, 2
  stub _zemsAtan_21, ork_zem_kernel_sAtan_ttab, 0
  stub _zemsAtan_HA, ork_zem_kernel_sAtan_ttab, 1
  stub _zemsAtan, ork_zem_kernel_sAtan_ttab, 1
  stub _zemsAtan_11, ork_zem_kernel_sAtan_ttab, 2
  stub _zemsAtan2_21, ork_zem_kernel_sAtan2_ttab, 0
  stub _zemsAtan2_HA, ork_zem_kernel_sAtan2_ttab, 1
  stub _zemsAtan2, ork_zem_kernel_sAtan2_ttab, 1
  stub _zemsAtan2_11, ork_zem_kernel_sAtan2_ttab, 2
  stub _zemsAtanh_21, ork_zem_kernel_sAtanh_ttab, 0
  stub _zemsAtanh_HA, ork_zem_kernel_sAtanh_ttab, 1
  stub _zemsAtanh, ork_zem_kernel_sAtanh_ttab, 1
  stub _zemsAtanh_11, ork_zem_kernel_sAtanh_ttab, 2
  stub _zemsCbrt_21, ork_zem_kernel_sCbrt_ttab, 0
  stub _zemsCbrt_HA, ork_zem_kernel_sCbrt_ttab, 1
  stub _zemsCbrt, ork_zem_kernel_sCbrt_ttab, 1
  stub _zemsCbrt_11, ork_zem_kernel_sCbrt_ttab, 2
  stub _zemsCdfNorm_21, ork_zem_kernel_sCdfNorm_ttab, 0
  stub _zemsCdfNorm_HA, ork_zem_kernel_sCdfNorm_ttab, 1
  stub _zemsCdfNorm, ork_zem_kernel_sCdfNorm_ttab, 1
  stub _zemsCdfNorm_11, ork_zem_kernel_sCdfNorm_ttab, 2
  stub _zemsCdfNormInv_21, ork_zem_kernel_sCdfNormInv_ttab, 0
  stub _zemsCdfNormInv_HA, ork_zem_kernel_sCdfNormInv_ttab, 1
  stub _zemsCdfNormInv, ork_zem_kernel_sCdfNormInv_ttab, 1
  stub _zemsCdfNormInv_11, ork_zem_kernel_sCdfNormInv_ttab, 2
  stub _zemsCeil_21, ork_zem_kernel_sCeil_ttab, 0
  stub _zemsCeil_HA, ork_zem_kernel_sCeil_ttab, 1
  stub _zemsCeil, ork_zem_kernel_sCeil_ttab, 1
  stub _zemsCeil_11, ork_zem_kernel_sCeil_ttab, 2
  stub _zemsCos_21, ork_zem_kernel_sCos_ttab, 0
  stub _zemsCos_HA, ork_zem_kernel_sCos_ttab, 1
  stub _zemsCos, ork_zem_kernel_sCos_ttab, 1
  stub _zemsCos_11, ork_zem_kernel_sCos_ttab, 2
  stub _zemsCosh_21, ork_zem_kernel_sCosh_ttab, 0
  stub _zemsCosh_HA, ork_zem_kernel_sCosh_ttab, 1
  stub _zemsCosh, ork_zem_kernel_sCosh_ttab, 1
  stub _zemsCosh_11, ork_zem_kernel_sCosh_ttab, 2
  stub _zemsDiv_21, ork_zem_kernel_sDiv_ttab, 0
  stub _zemsDiv_HA, ork_zem_kernel_sDiv_ttab, 1
  stub _zemsDiv, ork_zem_kernel_sDiv_ttab, 1
  stub _zemsDiv_11, ork_zem_kernel_sDiv_ttab, 2
  stub _zemsErf_21, ork_zem_kernel_sErf_ttab, 0
  stub _zemsErf_HA, ork_zem_kernel_sErf_ttab, 1
  stub _zemsErf, ork_zem_kernel_sErf_ttab, 1
  stub _zemsErf_11, ork_zem_kernel_sErf_ttab, 2
  stub _zemsErfInv_21, ork_zem_kernel_sErfInv_ttab, 0
  stub _zemsErfInv_HA, ork_zem_kernel_sErfInv_ttab, 1
  stub _zemsErfInv, ork_zem_kernel_sErfInv_ttab, 1
  stub _zemsErfInv_11, ork_zem_kernel_sErfInv_ttab, 2
  stub _zemsErfc_21, ork_zem_kernel_sErfc_ttab, 0
  stub _zemsErfc_HA, ork_zem_kernel_sErfc_ttab, 1
  stub _zemsErfc, ork_zem_kernel_sErfc_ttab, 1
  stub _zemsErfc_11, ork_zem_kernel_sErfc_ttab, 2
  stub _zemsErfcInv_21, ork_zem_kernel_sErfcInv_ttab, 0
  stub _zemsErfcInv_HA, ork_zem_kernel_sErfcInv_ttab, 1
  stub _zemsErfcInv, ork_zem_kernel_sErfcInv_ttab, 1
  stub _zemsErfcInv_11, ork_zem_kernel_sErfcInv_ttab, 2
  stub _zemsExp_21, ork_zem_kernel_sExp_ttab, 0
  stub _zemsExp_HA, ork_zem_kernel_sExp_ttab, 1
  stub _zemsExp, ork_zem_kernel_sExp_ttab, 1
  stub _zemsExp_11, ork_zem_kernel_sExp_ttab, 2
  stub _zemsExpm1_21, ork_zem_kernel_sExpm1_ttab, 0
  stub _zemsExpm1_HA, ork_zem_kernel_sExpm1_ttab, 1
  stub _zemsExpm1, ork_zem_kernel_sExpm1_ttab, 1
  stub _zemsExpm1_11, ork_zem_kernel_sExpm1_ttab, 2
  stub _zemsFloor_21, ork_zem_kernel_sFloor_ttab, 0
  stub _zemsFloor_HA, ork_zem_kernel_sFloor_ttab, 1
  stub _zemsFloor, ork_zem_kernel_sFloor_ttab, 1
  stub _zemsFloor_11, ork_zem_kernel_sFloor_ttab, 2
  stub _zemsHypot_21, ork_zem_kernel_sHypot_ttab, 0
  stub _zemsHypot_HA, ork_zem_kernel_sHypot_ttab, 1
  stub _zemsHypot, ork_zem_kernel_sHypot_ttab, 1
  stub _zemsHypot_11, ork_zem_kernel_sHypot_ttab, 2
  stub _zemsInv_21, ork_zem_kernel_sInv_ttab, 0
  stub _zemsInv_HA, ork_zem_kernel_sInv_ttab, 1
  stub _zemsInv, ork_zem_kernel_sInv_ttab, 1
  stub _zemsInv_11, ork_zem_kernel_sInv_ttab, 2
  stub _zemsInvCbrt_21, ork_zem_kernel_sInvCbrt_ttab, 0
  stub _zemsInvCbrt_HA, ork_zem_kernel_sInvCbrt_ttab, 1
  stub _zemsInvCbrt, ork_zem_kernel_sInvCbrt_ttab, 1
  stub _zemsInvCbrt_11, ork_zem_kernel_sInvCbrt_ttab, 2
  stub _zemsInvSqrt_21, ork_zem_kernel_sInvSqrt_ttab, 0
  stub _zemsInvSqrt_HA, ork_zem_kernel_sInvSqrt_ttab, 1
  stub _zemsInvSqrt, ork_zem_kernel_sInvSqrt_ttab, 1
  stub _zemsInvSqrt_11, ork_zem_kernel_sInvSqrt_ttab, 2
  stub _zemsLGamma_21, ork_zem_kernel_sLGamma_ttab, 0
  stub _zemsLGamma_HA, ork_zem_kernel_sLGamma_ttab, 1
  stub _zemsLGamma, ork_zem_kernel_sLGamma_ttab, 1
  stub _zemsLGamma_11, ork_zem_kernel_sLGamma_ttab, 2
  stub _zemsLinearFrac_21, ork_zem_kernel_sLinearFrac_ttab, 0
  stub _zemsLinearFrac_HA, ork_zem_kernel_sLinearFrac_ttab, 1
  stub _zemsLinearFrac, ork_zem_kernel_sLinearFrac_ttab, 1
  stub _zemsLinearFrac_11, ork_zem_kernel_sLinearFrac_ttab, 2
  stub _zemsLn_21, ork_zem_kernel_sLn_ttab, 0
  stub _zemsLn_HA, ork_zem_kernel_sLn_ttab, 1
  stub _zemsLn, ork_zem_kernel_sLn_ttab, 1
  stub _zemsLn_11, ork_zem_kernel_sLn_ttab, 2
  stub _zemsLog10_21, ork_zem_kernel_sLog10_ttab, 0
  stub _zemsLog10_HA, ork_zem_kernel_sLog10_ttab, 1
  stub _zemsLog10, ork_zem_kernel_sLog10_ttab, 1
  stub _zemsLog10_11, ork_zem_kernel_sLog10_ttab, 2
  stub _zemsLog1p_21, ork_zem_kernel_sLog1p_ttab, 0
  stub _zemsLog1p_HA, ork_zem_kernel_sLog1p_ttab, 1
  stub _zemsLog1p, ork_zem_kernel_sLog1p_ttab, 1
  stub _zemsLog1p_11, ork_zem_kernel_sLog1p_ttab, 2
  stub _zemsModf_21, ork_zem_kernel_sModf_ttab, 0
  stub _zemsModf_HA, ork_zem_kernel_sModf_ttab, 1
  stub _zemsModf, ork_zem_kernel_sModf_ttab, 1
  stub _zemsModf_11, ork_zem_kernel_sModf_ttab, 2
  stub _zemsMul_21, ork_zem_kernel_sMul_ttab, 0
  stub _zemsMul_HA, ork_zem_kernel_sMul_ttab, 1
  stub _zemsMul, ork_zem_kernel_sMul_ttab, 1
  stub _zemsMul_11, ork_zem_kernel_sMul_ttab, 2
  stub _zemsNearbyInt_21, ork_zem_kernel_sNearbyInt_ttab, 0
  stub _zemsNearbyInt_HA, ork_zem_kernel_sNearbyInt_ttab, 1
  stub _zemsNearbyInt, ork_zem_kernel_sNearbyInt_ttab, 1
  stub _zemsNearbyInt_11, ork_zem_kernel_sNearbyInt_ttab, 2
  stub _zemsPackI_21, ork_zem_kernel_sPackI_ttab, 0, 7
  stub _zemsPackI_HA, ork_zem_kernel_sPackI_ttab, 1, 7
  stub _zemsPackI, ork_zem_kernel_sPackI_ttab, 1, 7
  stub _zemsPackI_11, ork_zem_kernel_sPackI_ttab, 2, 7
  stub _zemsPackM_21, ork_zem_kernel_sPackM_ttab, 0, 6
  stub _zemsPackM_HA, ork_zem_kernel_sPackM_ttab, 1, 6
  stub _zemsPackM, ork_zem_kernel_sPackM_ttab, 1, 6
  stub _zemsPackM_11, ork_zem_kernel_sPackM_ttab, 2, 6
  stub _zemsPackV_21, ork_zem_kernel_sPackV_ttab, 0, 6
  stub _zemsPackV_HA, ork_zem_kernel_sPackV_ttab, 1, 6
  stub _zemsPackV, ork_zem_kernel_sPackV_ttab, 1, 6
  stub _zemsPackV_11, ork_zem_kernel_sPackV_ttab, 2, 6
  stub _zemsPow_21, ork_zem_kernel_sPow_ttab, 0
  stub _zemsPow_HA, ork_zem_kernel_sPow_ttab, 1
  stub _zemsPow, ork_zem_kernel_sPow_ttab, 1
  stub _zemsPow_11, ork_zem_kernel_sPow_ttab, 2
  stub _zemsPow2o3_21, ork_zem_kernel_sPow2o3_ttab, 0
  stub _zemsPow2o3_HA, ork_zem_kernel_sPow2o3_ttab, 1
  stub _zemsPow2o3, ork_zem_kernel_sPow2o3_ttab, 1
  stub _zemsPow2o3_11, ork_zem_kernel_sPow2o3_ttab, 2
  stub _zemsPow3o2_21, ork_zem_kernel_sPow3o2_ttab, 0
  stub _zemsPow3o2_HA, ork_zem_kernel_sPow3o2_ttab, 1
  stub _zemsPow3o2, ork_zem_kernel_sPow3o2_ttab, 1
  stub _zemsPow3o2_11, ork_zem_kernel_sPow3o2_ttab, 2
  stub _zemsPowx_21, ork_zem_kernel_sPowx_ttab, 0
  stub _zemsPowx_HA, ork_zem_kernel_sPowx_ttab, 1
  stub _zemsPowx, ork_zem_kernel_sPowx_ttab, 1
  stub _zemsPowx_11, ork_zem_kernel_sPowx_ttab, 2
  stub _zemsRint_21, ork_zem_kernel_sRint_ttab, 0
  stub _zemsRint_HA, ork_zem_kernel_sRint_ttab, 1
  stub _zemsRint, ork_zem_kernel_sRint_ttab, 1
  stub _zemsRint_11, ork_zem_kernel_sRint_ttab, 2
  stub _zemsRound_21, ork_zem_kernel_sRound_ttab, 0
  stub _zemsRound_HA, ork_zem_kernel_sRound_ttab, 1
  stub _zemsRound, ork_zem_kernel_sRound_ttab, 1
  stub _zemsRound_11, ork_zem_kernel_sRound_ttab, 2
  stub _zemsSin_21, ork_zem_kernel_sSin_ttab, 0
  stub _zemsSin_HA, ork_zem_kernel_sSin_ttab, 1
  stub _zemsSin, ork_zem_kernel_sSin_ttab, 1
  stub _zemsSin_11, ork_zem_kernel_sSin_ttab, 2
  stub _zemsSinCos_21, ork_zem_kernel_sSinCos_ttab, 0
  stub _zemsSinCos_HA, ork_zem_kernel_sSinCos_ttab, 1
  stub _zemsSinCos, ork_zem_kernel_sSinCos_ttab, 1
  stub _zemsSinCos_11, ork_zem_kernel_sSinCos_ttab, 2
  stub _zemsSinh_21, ork_zem_kernel_sSinh_ttab, 0
  stub _zemsSinh_HA, ork_zem_kernel_sSinh_ttab, 1
  stub _zemsSinh, ork_zem_kernel_sSinh_ttab, 1
  stub _zemsSinh_11, ork_zem_kernel_sSinh_ttab, 2
  stub _zemsSqr_21, ork_zem_kernel_sSqr_ttab, 0
  stub _zemsSqr_HA, ork_zem_kernel_sSqr_ttab, 1
  stub _zemsSqr, ork_zem_kernel_sSqr_ttab, 1
  stub _zemsSqr_11, ork_zem_kernel_sSqr_ttab, 2
  stub _zemsSqrt_21, ork_zem_kernel_sSqrt_ttab, 0
  stub _zemsSqrt_HA, ork_zem_kernel_sSqrt_ttab, 1
  stub _zemsSqrt, ork_zem_kernel_sSqrt_ttab, 1
  stub _zemsSqrt_11, ork_zem_kernel_sSqrt_ttab, 2
  stub _zemsSub_21, ork_zem_kernel_sSub_ttab, 0
  stub _zemsSub_HA, ork_zem_kernel_sSub_ttab, 1
  stub _zemsSub, ork_zem_kernel_sSub_ttab, 1
  stub _zemsSub_11, ork_zem_kernel_sSub_ttab, 2
  stub _zemsTGamma_21, ork_zem_kernel_sTGamma_ttab, 0
  stub _zemsTGamma_HA, ork_zem_kernel_sTGamma_ttab, 1
  stub _zemsTGamma, ork_zem_kernel_sTGamma_ttab, 1
  stub _zemsTGamma_11, ork_zem_kernel_sTGamma_ttab, 2
  stub _zemsTan_21, ork_zem_kernel_sTan_ttab, 0
  stub _zemsTan_HA, ork_zem_kernel_sTan_ttab, 1
  stub _zemsTan, ork_zem_kernel_sTan_ttab, 1
  stub _zemsTan_11, ork_zem_kernel_sTan_ttab, 2
  stub _zemsTanh_21, ork_zem_kernel_sTanh_ttab, 0
  stub _zemsTanh_HA, ork_zem_kernel_sTanh_ttab, 1
  stub _zemsTanh, ork_zem_kernel_sTanh_ttab, 1
  stub _zemsTanh_11, ork_zem_kernel_sTanh_ttab, 2
  stub _zemsTrunc_21, ork_zem_kernel_sTrunc_ttab, 0
  stub _zemsTrunc_HA, ork_zem_kernel_sTrunc_ttab, 1
  stub _zemsTrunc, ork_zem_kernel_sTrunc_ttab, 1
  stub _zemsTrunc_11, ork_zem_kernel_sTrunc_ttab, 2
  stub _zemsUnpackI_21, ork_zem_kernel_sUnpackI_ttab, 0, 7
  stub _zemsUnpackI_HA, ork_zem_kernel_sUnpackI_ttab, 1, 7
  stub _zemsUnpackI, ork_zem_kernel_sUnpackI_ttab, 1, 7
  stub _zemsUnpackI_11, ork_zem_kernel_sUnpackI_ttab, 2, 7
  stub _zemsUnpackM_21, ork_zem_kernel_sUnpackM_ttab, 0, 6
  stub _zemsUnpackM_HA, ork_zem_kernel_sUnpackM_ttab, 1, 6
  stub _zemsUnpackM, ork_zem_kernel_sUnpackM_ttab, 1, 6
  stub _zemsUnpackM_11, ork_zem_kernel_sUnpackM_ttab, 2, 6
  stub _zemsUnpackV_21, ork_zem_kernel_sUnpackV_ttab, 0, 6
  stub _zemsUnpackV_HA, ork_zem_kernel_sUnpackV_ttab, 1, 6
  stub _zemsUnpackV, ork_zem_kernel_sUnpackV_ttab, 1, 6
  stub _zemsUnpackV_11, ork_zem_kernel_sUnpackV_ttab, 2, 6
  stub _zemcAbs_21, ork_zem_kernel_cAbs_ttab, 0
  stub _zemcAbs_HA, ork_zem_kernel_cAbs_ttab, 1
  stub _zemcAbs, ork_zem_kernel_cAbs_ttab, 1
  stub _zemcAbs_11, ork_zem_kernel_cAbs_ttab, 2
  stub _zemcAcos_21, ork_zem_kernel_cAcos_ttab, 0
  stub _zemcAcos_HA, ork_zem_kernel_cAcos_ttab, 1
  stub _zemcAcos, ork_zem_kernel_cAcos_ttab, 1
  stub _zemcAcos_11, ork_zem_kernel_cAcos_ttab, 2
  stub _zemcAcosh_21, ork_zem_kernel_cAcosh_ttab, 0
  stub _zemcAcosh_HA, ork_zem_kernel_cAcosh_ttab, 1
  stub _zemcAcosh, ork_zem_kernel_cAcosh_ttab, 1
  stub _zemcAcosh_11, ork_zem_kernel_cAcosh_ttab, 2
  stub _zemcAdd_21, ork_zem_kernel_cAdd_ttab, 0
  stub _zemcAdd_HA, ork_zem_kernel_cAdd_ttab, 1
  stub _zemcAdd, ork_zem_kernel_cAdd_ttab, 1
  stub _zemcAdd_11, ork_zem_kernel_cAdd_ttab, 2
  stub _zemcArg_21, ork_zem_kernel_cArg_ttab, 0
  stub _zemcArg_HA, ork_zem_kernel_cArg_ttab, 1
  stub _zemcArg, ork_zem_kernel_cArg_ttab, 1
  stub _zemcArg_11, ork_zem_kernel_cArg_ttab, 2
  stub _zemcAsin_21, ork_zem_kernel_cAsin_ttab, 0
  stub _zemcAsin_HA, ork_zem_kernel_cAsin_ttab, 1
  stub _zemcAsin, ork_zem_kernel_cAsin_ttab, 1
  stub _zemcAsin_11, ork_zem_kernel_cAsin_ttab, 2
  stub _zemcAsinh_21, ork_zem_kernel_cAsinh_ttab, 0
  stub _zemcAsinh_HA, ork_zem_kernel_cAsinh_ttab, 1
  stub _zemcAsinh, ork_zem_kernel_cAsinh_ttab, 1
  stub _zemcAsinh_11, ork_zem_kernel_cAsinh_ttab, 2
  stub _zemcAtan_21, ork_zem_kernel_cAtan_ttab, 0
  stub _zemcAtan_HA, ork_zem_kernel_cAtan_ttab, 1
  stub _zemcAtan, ork_zem_kernel_cAtan_ttab, 1
  stub _zemcAtan_11, ork_zem_kernel_cAtan_ttab, 2
  stub _zemcAtanh_21, ork_zem_kernel_cAtanh_ttab, 0
  stub _zemcAtanh_HA, ork_zem_kernel_cAtanh_ttab, 1
  stub _zemcAtanh, ork_zem_kernel_cAtanh_ttab, 1
  stub _zemcAtanh_11, ork_zem_kernel_cAtanh_ttab, 2
  stub _zemcCIS_21, ork_zem_kernel_cCIS_ttab, 0
  stub _zemcCIS_HA, ork_zem_kernel_cCIS_ttab, 1
  stub _zemcCIS, ork_zem_kernel_cCIS_ttab, 1
  stub _zemcCIS_11, ork_zem_kernel_cCIS_ttab, 2
  stub _zemcConj_21, ork_zem_kernel_cConj_ttab, 0
  stub _zemcConj_HA, ork_zem_kernel_cConj_ttab, 1
  stub _zemcConj, ork_zem_kernel_cConj_ttab, 1
  stub _zemcConj_11, ork_zem_kernel_cConj_ttab, 2
  stub _zemcCos_21, ork_zem_kernel_cCos_ttab, 0
  stub _zemcCos_HA, ork_zem_kernel_cCos_ttab, 1
  stub _zemcCos, ork_zem_kernel_cCos_ttab, 1
  stub _zemcCos_11, ork_zem_kernel_cCos_ttab, 2
  stub _zemcCosh_21, ork_zem_kernel_cCosh_ttab, 0
  stub _zemcCosh_HA, ork_zem_kernel_cCosh_ttab, 1
  stub _zemcCosh, ork_zem_kernel_cCosh_ttab, 1
  stub _zemcCosh_11, ork_zem_kernel_cCosh_ttab, 2
  stub _zemcDiv_21, ork_zem_kernel_cDiv_ttab, 0
  stub _zemcDiv_HA, ork_zem_kernel_cDiv_ttab, 1
  stub _zemcDiv, ork_zem_kernel_cDiv_ttab, 1
  stub _zemcDiv_11, ork_zem_kernel_cDiv_ttab, 2
  stub _zemcExp_21, ork_zem_kernel_cExp_ttab, 0
  stub _zemcExp_HA, ork_zem_kernel_cExp_ttab, 1
  stub _zemcExp, ork_zem_kernel_cExp_ttab, 1
  stub _zemcExp_11, ork_zem_kernel_cExp_ttab, 2
  stub _zemcLn_21, ork_zem_kernel_cLn_ttab, 0
  stub _zemcLn_HA, ork_zem_kernel_cLn_ttab, 1
  stub _zemcLn, ork_zem_kernel_cLn_ttab, 1
  stub _zemcLn_11, ork_zem_kernel_cLn_ttab, 2
  stub _zemcLog10_21, ork_zem_kernel_cLog10_ttab, 0
  stub _zemcLog10_HA, ork_zem_kernel_cLog10_ttab, 1
  stub _zemcLog10, ork_zem_kernel_cLog10_ttab, 1
  stub _zemcLog10_11, ork_zem_kernel_cLog10_ttab, 2
  stub _zemcMul_21, ork_zem_kernel_cMul_ttab, 0
  stub _zemcMul_HA, ork_zem_kernel_cMul_ttab, 1
  stub _zemcMul, ork_zem_kernel_cMul_ttab, 1
  stub _zemcMul_11, ork_zem_kernel_cMul_ttab, 2
  stub _zemcMulByConj_21, ork_zem_kernel_cMulByConj_ttab, 0
  stub _zemcMulByConj_HA, ork_zem_kernel_cMulByConj_ttab, 1
  stub _zemcMulByConj, ork_zem_kernel_cMulByConj_ttab, 1
  stub _zemcMulByConj_11, ork_zem_kernel_cMulByConj_ttab, 2
  stub _zemcPackI_21, ork_zem_kernel_cPackI_ttab, 0, 7
  stub _zemcPackI_HA, ork_zem_kernel_cPackI_ttab, 1, 7
  stub _zemcPackI, ork_zem_kernel_cPackI_ttab, 1, 7
  stub _zemcPackI_11, ork_zem_kernel_cPackI_ttab, 2, 7
  stub _zemcPackM_21, ork_zem_kernel_cPackM_ttab, 0, 6
  stub _zemcPackM_HA, ork_zem_kernel_cPackM_ttab, 1, 6
  stub _zemcPackM, ork_zem_kernel_cPackM_ttab, 1, 6
  stub _zemcPackM_11, ork_zem_kernel_cPackM_ttab, 2, 6
  stub _zemcPackV_21, ork_zem_kernel_cPackV_ttab, 0, 6
  stub _zemcPackV_HA, ork_zem_kernel_cPackV_ttab, 1, 6
  stub _zemcPackV, ork_zem_kernel_cPackV_ttab, 1, 6
  stub _zemcPackV_11, ork_zem_kernel_cPackV_ttab, 2, 6
  stub _zemcPow_21, ork_zem_kernel_cPow_ttab, 0
  stub _zemcPow_HA, ork_zem_kernel_cPow_ttab, 1
  stub _zemcPow, ork_zem_kernel_cPow_ttab, 1
  stub _zemcPow_11, ork_zem_kernel_cPow_ttab, 2
  stub _zemcPowx_21, ork_zem_kernel_cPowx_ttab, 0
  stub _zemcPowx_HA, ork_zem_kernel_cPowx_ttab, 1
  stub _zemcPowx, ork_zem_kernel_cPowx_ttab, 1
  stub _zemcPowx_11, ork_zem_kernel_cPowx_ttab, 2
  stub _zemcSin_21, ork_zem_kernel_cSin_ttab, 0
  stub _zemcSin_HA, ork_zem_kernel_cSin_ttab, 1
  stub _zemcSin, ork_zem_kernel_cSin_ttab, 1
  stub _zemcSin_11, ork_zem_kernel_cSin_ttab, 2
  stub _zemcSinh_21, ork_zem_kernel_cSinh_ttab, 0
  stub _zemcSinh_HA, ork_zem_kernel_cSinh_ttab, 1
  stub _zemcSinh, ork_zem_kernel_cSinh_ttab, 1
  stub _zemcSinh_11, ork_zem_kernel_cSinh_ttab, 2
  stub _zemcSqrt_21, ork_zem_kernel_cSqrt_ttab, 0
  stub _zemcSqrt_HA, ork_zem_kernel_cSqrt_ttab, 1
  stub _zemcSqrt, ork_zem_kernel_cSqrt_ttab, 1
  stub _zemcSqrt_11, ork_zem_kernel_cSqrt_ttab, 2
  stub _zemcSub_21, ork_zem_kernel_cSub_ttab, 0
  stub _zemcSub_HA, ork_zem_kernel_cSub_ttab, 1
  stub _zemcSub, ork_zem_kernel_cSub_ttab, 1
  stub _zemcSub_11, ork_zem_kernel_cSub_ttab, 2
  stub _zemcTan_21, ork_zem_kernel_cTan_ttab, 0
  stub _zemcTan_HA, ork_zem_kernel_cTan_ttab, 1
  stub _zemcTan, ork_zem_kernel_cTan_ttab, 1
  stub _zemcTan_11, ork_zem_kernel_cTan_ttab, 2
  stub _zemcTanh_21, ork_zem_kernel_cTanh_ttab, 0
  stub _zemcTanh_HA, ork_zem_kernel_cTanh_ttab, 1
  stub _zemcTanh, ork_zem_kernel_cTanh_ttab, 1
  stub _zemcTanh_11, ork_zem_kernel_cTanh_ttab, 2
  stub _zemcUnpackI_21, ork_zem_kernel_cUnpackI_ttab, 0, 7
  stub _zemcUnpackI_HA, ork_zem_kernel_cUnpackI_ttab, 1, 7
  stub _zemcUnpackI, ork_zem_kernel_cUnpackI_ttab, 1, 7
  stub _zemcUnpackI_11, ork_zem_kernel_cUnpackI_ttab, 2, 7
  stub _zemcUnpackM_21, ork_zem_kernel_cUnpackM_ttab, 0, 6
  stub _zemcUnpackM_HA, ork_zem_kernel_cUnpackM_ttab, 1, 6
  stub _zemcUnpackM, ork_zem_kernel_cUnpackM_ttab, 1, 6
  stub _zemcUnpackM_11, ork_zem_kernel_cUnpackM_ttab, 2, 6
  stub _zemcUnpackV_21, ork_zem_kernel_cUnpackV_ttab, 0, 6
  stub _zemcUnpackV_HA, ork_zem_kernel_cUnpackV_ttab, 1, 6
  stub _zemcUnpackV, ork_zem_kernel_cUnpackV_ttab, 1, 6
  stub _zemcUnpackV_11, ork_zem_kernel_cUnpackV_ttab, 2, 6
  stub _zemzAbs_50, ork_zem_kernel_zAbs_ttab, 0
  stub _zemzAbs_HA, ork_zem_kernel_zAbs_ttab, 1
  stub _zemzAbs, ork_zem_kernel_zAbs_ttab, 1
  stub _zemzAbs_26, ork_zem_kernel_zAbs_ttab, 2
  stub _zemzAcos_50, ork_zem_kernel_zAcos_ttab, 0
  stub _zemzAcos_HA, ork_zem_kernel_zAcos_ttab, 1
  stub _zemzAcos, ork_zem_kernel_zAcos_ttab, 1
  stub _zemzAcos_26, ork_zem_kernel_zAcos_ttab, 2
  stub _zemzAcosh_50, ork_zem_kernel_zAcosh_ttab, 0
  stub _zemzAcosh_HA, ork_zem_kernel_zAcosh_ttab, 1
  stub _zemzAcosh, ork_zem_kernel_zAcosh_ttab, 1
  stub _zemzAcosh_26, ork_zem_kernel_zAcosh_ttab, 2
  stub _zemzAdd_50, ork_zem_kernel_zAdd_ttab, 0
  stub _zemzAdd_HA, ork_zem_kernel_zAdd_ttab, 1
  stub _zemzAdd, ork_zem_kernel_zAdd_ttab, 1
  stub _zemzAdd_26, ork_zem_kernel_zAdd_ttab, 2
  stub _zemzArg_50, ork_zem_kernel_zArg_ttab, 0
  stub _zemzArg_HA, ork_zem_kernel_zArg_ttab, 1
  stub _zemzArg, ork_zem_kernel_zArg_ttab, 1
  stub _zemzArg_26, ork_zem_kernel_zArg_ttab, 2
  stub _zemzAsin_50, ork_zem_kernel_zAsin_ttab, 0
  stub _zemzAsin_HA, ork_zem_kernel_zAsin_ttab, 1
  stub _zemzAsin, ork_zem_kernel_zAsin_ttab, 1
  stub _zemzAsin_26, ork_zem_kernel_zAsin_ttab, 2
  stub _zemzAsinh_50, ork_zem_kernel_zAsinh_ttab, 0
  stub _zemzAsinh_HA, ork_zem_kernel_zAsinh_ttab, 1
  stub _zemzAsinh, ork_zem_kernel_zAsinh_ttab, 1
  stub _zemzAsinh_26, ork_zem_kernel_zAsinh_ttab, 2
  stub _zemzAtan_50, ork_zem_kernel_zAtan_ttab, 0
  stub _zemzAtan_HA, ork_zem_kernel_zAtan_ttab, 1
  stub _zemzAtan, ork_zem_kernel_zAtan_ttab, 1
  stub _zemzAtan_26, ork_zem_kernel_zAtan_ttab, 2
  stub _zemzAtanh_50, ork_zem_kernel_zAtanh_ttab, 0
  stub _zemzAtanh_HA, ork_zem_kernel_zAtanh_ttab, 1
  stub _zemzAtanh, ork_zem_kernel_zAtanh_ttab, 1
  stub _zemzAtanh_26, ork_zem_kernel_zAtanh_ttab, 2
  stub _zemzCIS_50, ork_zem_kernel_zCIS_ttab, 0
  stub _zemzCIS_HA, ork_zem_kernel_zCIS_ttab, 1
  stub _zemzCIS, ork_zem_kernel_zCIS_ttab, 1
  stub _zemzCIS_26, ork_zem_kernel_zCIS_ttab, 2
  stub _zemzConj_50, ork_zem_kernel_zConj_ttab, 0
  stub _zemzConj_HA, ork_zem_kernel_zConj_ttab, 1
  stub _zemzConj, ork_zem_kernel_zConj_ttab, 1
  stub _zemzConj_26, ork_zem_kernel_zConj_ttab, 2
  stub _zemzCos_50, ork_zem_kernel_zCos_ttab, 0
  stub _zemzCos_HA, ork_zem_kernel_zCos_ttab, 1
  stub _zemzCos, ork_zem_kernel_zCos_ttab, 1
  stub _zemzCos_26, ork_zem_kernel_zCos_ttab, 2
  stub _zemzCosh_50, ork_zem_kernel_zCosh_ttab, 0
  stub _zemzCosh_HA, ork_zem_kernel_zCosh_ttab, 1
  stub _zemzCosh, ork_zem_kernel_zCosh_ttab, 1
  stub _zemzCosh_26, ork_zem_kernel_zCosh_ttab, 2
  stub _zemzDiv_50, ork_zem_kernel_zDiv_ttab, 0
  stub _zemzDiv_HA, ork_zem_kernel_zDiv_ttab, 1
  stub _zemzDiv, ork_zem_kernel_zDiv_ttab, 1
  stub _zemzDiv_26, ork_zem_kernel_zDiv_ttab, 2
  stub _zemzExp_50, ork_zem_kernel_zExp_ttab, 0
  stub _zemzExp_HA, ork_zem_kernel_zExp_ttab, 1
  stub _zemzExp, ork_zem_kernel_zExp_ttab, 1
  stub _zemzExp_26, ork_zem_kernel_zExp_ttab, 2
  stub _zemzLn_50, ork_zem_kernel_zLn_ttab, 0
  stub _zemzLn_HA, ork_zem_kernel_zLn_ttab, 1
  stub _zemzLn, ork_zem_kernel_zLn_ttab, 1
  stub _zemzLn_26, ork_zem_kernel_zLn_ttab, 2
  stub _zemzLog10_50, ork_zem_kernel_zLog10_ttab, 0
  stub _zemzLog10_HA, ork_zem_kernel_zLog10_ttab, 1
  stub _zemzLog10, ork_zem_kernel_zLog10_ttab, 1
  stub _zemzLog10_26, ork_zem_kernel_zLog10_ttab, 2
  stub _zemzMul_50, ork_zem_kernel_zMul_ttab, 0
  stub _zemzMul_HA, ork_zem_kernel_zMul_ttab, 1
  stub _zemzMul, ork_zem_kernel_zMul_ttab, 1
  stub _zemzMul_26, ork_zem_kernel_zMul_ttab, 2
  stub _zemzMulByConj_50, ork_zem_kernel_zMulByConj_ttab, 0
  stub _zemzMulByConj_HA, ork_zem_kernel_zMulByConj_ttab, 1
  stub _zemzMulByConj, ork_zem_kernel_zMulByConj_ttab, 1
  stub _zemzMulByConj_26, ork_zem_kernel_zMulByConj_ttab, 2
  stub _zemzPackI_50, ork_zem_kernel_zPackI_ttab, 0, 7
  stub _zemzPackI_HA, ork_zem_kernel_zPackI_ttab, 1, 7
  stub _zemzPackI, ork_zem_kernel_zPackI_ttab, 1, 7
  stub _zemzPackI_26, ork_zem_kernel_zPackI_ttab, 2, 7
  stub _zemzPackM_50, ork_zem_kernel_zPackM_ttab, 0, 6
  stub _zemzPackM_HA, ork_zem_kernel_zPackM_ttab, 1, 6
  stub _zemzPackM, ork_zem_kernel_zPackM_ttab, 1, 6
  stub _zemzPackM_26, ork_zem_kernel_zPackM_ttab, 2, 6
  stub _zemzPackV_50, ork_zem_kernel_zPackV_ttab, 0, 6
  stub _zemzPackV_HA, ork_zem_kernel_zPackV_ttab, 1, 6
  stub _zemzPackV, ork_zem_kernel_zPackV_ttab, 1, 6
  stub _zemzPackV_26, ork_zem_kernel_zPackV_ttab, 2, 6
  stub _zemzPow_50, ork_zem_kernel_zPow_ttab, 0
  stub _zemzPow_HA, ork_zem_kernel_zPow_ttab, 1
  stub _zemzPow, ork_zem_kernel_zPow_ttab, 1
  stub _zemzPow_26, ork_zem_kernel_zPow_ttab, 2
  stub _zemzPowx_50, ork_zem_kernel_zPowx_ttab, 0
  stub _zemzPowx_HA, ork_zem_kernel_zPowx_ttab, 1
  stub _zemzPowx, ork_zem_kernel_zPowx_ttab, 1
  stub _zemzPowx_26, ork_zem_kernel_zPowx_ttab, 2
  stub _zemzSin_50, ork_zem_kernel_zSin_ttab, 0
  stub _zemzSin_HA, ork_zem_kernel_zSin_ttab, 1
  stub _zemzSin, ork_zem_kernel_zSin_ttab, 1
  stub _zemzSin_26, ork_zem_kernel_zSin_ttab, 2
  stub _zemzSinh_50, ork_zem_kernel_zSinh_ttab, 0
  stub _zemzSinh_HA, ork_zem_kernel_zSinh_ttab, 1
  stub _zemzSinh, ork_zem_kernel_zSinh_ttab, 1
  stub _zemzSinh_26, ork_zem_kernel_zSinh_ttab, 2
  stub _zemzSqrt_50, ork_zem_kernel_zSqrt_ttab, 0
  stub _zemzSqrt_HA, ork_zem_kernel_zSqrt_ttab, 1
  stub _zemzSqrt, ork_zem_kernel_zSqrt_ttab, 1
  stub _zemzSqrt_26, ork_zem_kernel_zSqrt_ttab, 2
  stub _zemzSub_50, ork_zem_kernel_zSub_ttab, 0
  stub _zemzSub_HA, ork_zem_kernel_zSub_ttab, 1
  stub _zemzSub, ork_zem_kernel_zSub_ttab, 1
  stub _zemzSub_26, ork_zem_kernel_zSub_ttab, 2
  stub _zemzTan_50, ork_zem_kernel_zTan_ttab, 0
  stub _zemzTan_HA, ork_zem_kernel_zTan_ttab, 1
  stub _zemzTan, ork_zem_kernel_zTan_ttab, 1
  stub _zemzTan_26, ork_zem_kernel_zTan_ttab, 2
  stub _zemzTanh_50, ork_zem_kernel_zTanh_ttab, 0
  stub _zemzTanh_HA, ork_zem_kernel_zTanh_ttab, 1
  stub _zemzTanh, ork_zem_kernel_zTanh_ttab, 1
  stub _zemzTanh_26, ork_zem_kernel_zTanh_ttab, 2
  stub _zemzUnpackI_50, ork_zem_kernel_zUnpackI_ttab, 0, 7
  stub _zemzUnpackI_HA, ork_zem_kernel_zUnpackI_ttab, 1, 7
  stub _zemzUnpackI, ork_zem_kernel_zUnpackI_ttab, 1, 7
  stub _zemzUnpackI_26, ork_zem_kernel_zUnpackI_ttab, 2, 7
  stub _zemzUnpackM_50, ork_zem_kernel_zUnpackM_ttab, 0, 6
  stub _zemzUnpackM_HA, ork_zem_kernel_zUnpackM_ttab, 1, 6
  stub _zemzUnpackM, ork_zem_kernel_zUnpackM_ttab, 1, 6
  stub _zemzUnpackM_26, ork_zem_kernel_zUnpackM_ttab, 2, 6
  stub _zemzUnpackV_50, ork_zem_kernel_zUnpackV_ttab, 0, 6
  stub _zemzUnpackV_HA, ork_zem_kernel_zUnpackV_ttab, 1, 6
  stub _zemzUnpackV, ork_zem_kernel_zUnpackV_ttab, 1, 6
  stub _zemzUnpackV_26, ork_zem_kernel_zUnpackV_ttab, 2, 6
