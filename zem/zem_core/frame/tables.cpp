// Generated from zem/zem_core/frame/slots.tsv by ./dev tables slots; edit that.
// A kernel that does not exist yet leaves a null in its slots: the references are weak.
#include "ork/zem_kernels.h"

#define ORK_TABLE extern "C" __attribute__((visibility("default")))

#pragma weak ork_zem_kernel_dAbs_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dAbs_ttab[3] = {ork_zem_kernel_dAbs_W7HAynn, ork_zem_kernel_dAbs_W7HAynn, ork_zem_kernel_dAbs_W7HAynn};
ORK_TABLE const float ork_zem_kernel_dAbs_ctab[3] = {2.19f, 2.19f, 2.19f};
#pragma weak ork_zem_kernel_dAcos_V8LAynn
#pragma weak ork_zem_kernel_dAcos_V8HAynn
#pragma weak ork_zem_kernel_dAcos_V8EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dAcos_ttab[3] = {ork_zem_kernel_dAcos_V8LAynn, ork_zem_kernel_dAcos_V8HAynn, ork_zem_kernel_dAcos_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_dAcos_ctab[3] = {29.89f, 32.97f, 20.80f};
#pragma weak ork_zem_kernel_dAcosh_V8LAynn
#pragma weak ork_zem_kernel_dAcosh_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dAcosh_ttab[3] = {ork_zem_kernel_dAcosh_V8LAynn, ork_zem_kernel_dAcosh_W7HAynn, ork_zem_kernel_dAcosh_V8LAynn};
ORK_TABLE const float ork_zem_kernel_dAcosh_ctab[3] = {43.38f, 94.50f, 43.38f};
#pragma weak ork_zem_kernel_dAdd_V8HAynn
ORK_TABLE const ork_d_binary ork_zem_kernel_dAdd_ttab[3] = {ork_zem_kernel_dAdd_V8HAynn, ork_zem_kernel_dAdd_V8HAynn, ork_zem_kernel_dAdd_V8HAynn};
ORK_TABLE const float ork_zem_kernel_dAdd_ctab[3] = {1.63f, 1.63f, 1.63f};
#pragma weak ork_zem_kernel_dAsin_V8LAynn
#pragma weak ork_zem_kernel_dAsin_V8HAynn
#pragma weak ork_zem_kernel_dAsin_V8EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dAsin_ttab[3] = {ork_zem_kernel_dAsin_V8LAynn, ork_zem_kernel_dAsin_V8HAynn, ork_zem_kernel_dAsin_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_dAsin_ctab[3] = {29.10f, 31.73f, 19.24f};
#pragma weak ork_zem_kernel_dAsinh_W7LAynn
#pragma weak ork_zem_kernel_dAsinh_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dAsinh_ttab[3] = {ork_zem_kernel_dAsinh_W7LAynn, ork_zem_kernel_dAsinh_W7HAynn, ork_zem_kernel_dAsinh_W7LAynn};
ORK_TABLE const float ork_zem_kernel_dAsinh_ctab[3] = {52.01f, 97.89f, 52.01f};
#pragma weak ork_zem_kernel_dAtan_W7HAynn
#pragma weak ork_zem_kernel_dAtan_V8EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dAtan_ttab[3] = {ork_zem_kernel_dAtan_W7HAynn, ork_zem_kernel_dAtan_W7HAynn, ork_zem_kernel_dAtan_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_dAtan_ctab[3] = {36.61f, 36.61f, 25.56f};
#pragma weak ork_zem_kernel_dAtan2_W7LAynn
#pragma weak ork_zem_kernel_dAtan2_W7HAynn
#pragma weak ork_zem_kernel_dAtan2_V8EPnnn
ORK_TABLE const ork_d_binary ork_zem_kernel_dAtan2_ttab[3] = {ork_zem_kernel_dAtan2_W7LAynn, ork_zem_kernel_dAtan2_W7HAynn, ork_zem_kernel_dAtan2_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_dAtan2_ctab[3] = {44.13f, 74.89f, 31.65f};
#pragma weak ork_zem_kernel_dAtanh_W7LAynn
#pragma weak ork_zem_kernel_dAtanh_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dAtanh_ttab[3] = {ork_zem_kernel_dAtanh_W7LAynn, ork_zem_kernel_dAtanh_W7HAynn, ork_zem_kernel_dAtanh_W7LAynn};
ORK_TABLE const float ork_zem_kernel_dAtanh_ctab[3] = {41.68f, 48.91f, 41.68f};
#pragma weak ork_zem_kernel_dCbrt_W7LAynn
#pragma weak ork_zem_kernel_dCbrt_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dCbrt_ttab[3] = {ork_zem_kernel_dCbrt_W7LAynn, ork_zem_kernel_dCbrt_W7HAynn, ork_zem_kernel_dCbrt_W7LAynn};
ORK_TABLE const float ork_zem_kernel_dCbrt_ctab[3] = {22.35f, 27.77f, 22.35f};
#pragma weak ork_zem_kernel_dCdfNorm_W7LAynn
#pragma weak ork_zem_kernel_dCdfNorm_V8HAynn
#pragma weak ork_zem_kernel_dCdfNorm_V8EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dCdfNorm_ttab[3] = {ork_zem_kernel_dCdfNorm_W7LAynn, ork_zem_kernel_dCdfNorm_V8HAynn, ork_zem_kernel_dCdfNorm_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_dCdfNorm_ctab[3] = {29.65f, 43.15f, 22.36f};
#pragma weak ork_zem_kernel_dCdfNormInv_W7LAynn
#pragma weak ork_zem_kernel_dCdfNormInv_W7HAynn
#pragma weak ork_zem_kernel_dCdfNormInv_W7EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dCdfNormInv_ttab[3] = {ork_zem_kernel_dCdfNormInv_W7LAynn, ork_zem_kernel_dCdfNormInv_W7HAynn, ork_zem_kernel_dCdfNormInv_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_dCdfNormInv_ctab[3] = {31.73f, 48.05f, 20.51f};
#pragma weak ork_zem_kernel_dCeil_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dCeil_ttab[3] = {ork_zem_kernel_dCeil_W7HAynn, ork_zem_kernel_dCeil_W7HAynn, ork_zem_kernel_dCeil_W7HAynn};
ORK_TABLE const float ork_zem_kernel_dCeil_ctab[3] = {4.10f, 4.10f, 4.10f};
#pragma weak ork_zem_kernel_dCos_V8LAynn
#pragma weak ork_zem_kernel_dCos_T7HAynn
#pragma weak ork_zem_kernel_dCos_V8EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dCos_ttab[3] = {ork_zem_kernel_dCos_V8LAynn, ork_zem_kernel_dCos_T7HAynn, ork_zem_kernel_dCos_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_dCos_ctab[3] = {16.29f, 23.92f, 12.65f};
#pragma weak ork_zem_kernel_dCosh_V8LAynn
#pragma weak ork_zem_kernel_dCosh_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dCosh_ttab[3] = {ork_zem_kernel_dCosh_V8LAynn, ork_zem_kernel_dCosh_W7HAynn, ork_zem_kernel_dCosh_V8LAynn};
ORK_TABLE const float ork_zem_kernel_dCosh_ctab[3] = {17.19f, 23.48f, 17.19f};
#pragma weak ork_zem_kernel_dDiv_W7LAynn
#pragma weak ork_zem_kernel_dDiv_W7HAynn
ORK_TABLE const ork_d_binary ork_zem_kernel_dDiv_ttab[3] = {ork_zem_kernel_dDiv_W7LAynn, ork_zem_kernel_dDiv_W7HAynn, ork_zem_kernel_dDiv_W7LAynn};
ORK_TABLE const float ork_zem_kernel_dDiv_ctab[3] = {9.52f, 15.71f, 9.52f};
#pragma weak ork_zem_kernel_dErf_V8LAynn
#pragma weak ork_zem_kernel_dErf_V8HAynn
#pragma weak ork_zem_kernel_dErf_V8EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dErf_ttab[3] = {ork_zem_kernel_dErf_V8LAynn, ork_zem_kernel_dErf_V8HAynn, ork_zem_kernel_dErf_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_dErf_ctab[3] = {20.30f, 25.30f, 17.30f};
#pragma weak ork_zem_kernel_dErfInv_W7LAynn
#pragma weak ork_zem_kernel_dErfInv_W7HAynn
#pragma weak ork_zem_kernel_dErfInv_W7EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dErfInv_ttab[3] = {ork_zem_kernel_dErfInv_W7LAynn, ork_zem_kernel_dErfInv_W7HAynn, ork_zem_kernel_dErfInv_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_dErfInv_ctab[3] = {28.26f, 45.86f, 15.17f};
#pragma weak ork_zem_kernel_dErfc_W7LAynn
#pragma weak ork_zem_kernel_dErfc_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dErfc_ttab[3] = {ork_zem_kernel_dErfc_W7LAynn, ork_zem_kernel_dErfc_W7HAynn, ork_zem_kernel_dErfc_W7LAynn};
ORK_TABLE const float ork_zem_kernel_dErfc_ctab[3] = {45.11f, 63.69f, 45.11f};
#pragma weak ork_zem_kernel_dErfcInv_W7LAynn
#pragma weak ork_zem_kernel_dErfcInv_W7HAynn
#pragma weak ork_zem_kernel_dErfcInv_W7EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dErfcInv_ttab[3] = {ork_zem_kernel_dErfcInv_W7LAynn, ork_zem_kernel_dErfcInv_W7HAynn, ork_zem_kernel_dErfcInv_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_dErfcInv_ctab[3] = {31.68f, 46.85f, 19.91f};
#pragma weak ork_zem_kernel_dExp_W7LAynn
#pragma weak ork_zem_kernel_dExp_W7HAynn
#pragma weak ork_zem_kernel_dExp_W7EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dExp_ttab[3] = {ork_zem_kernel_dExp_W7LAynn, ork_zem_kernel_dExp_W7HAynn, ork_zem_kernel_dExp_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_dExp_ctab[3] = {11.22f, 17.91f, 8.81f};
#pragma weak ork_zem_kernel_dExpm1_V8LAynn
#pragma weak ork_zem_kernel_dExpm1_V8HAynn
#pragma weak ork_zem_kernel_dExpm1_V8EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dExpm1_ttab[3] = {ork_zem_kernel_dExpm1_V8LAynn, ork_zem_kernel_dExpm1_V8HAynn, ork_zem_kernel_dExpm1_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_dExpm1_ctab[3] = {20.99f, 26.99f, 16.99f};
#pragma weak ork_zem_kernel_dFloor_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dFloor_ttab[3] = {ork_zem_kernel_dFloor_W7HAynn, ork_zem_kernel_dFloor_W7HAynn, ork_zem_kernel_dFloor_W7HAynn};
ORK_TABLE const float ork_zem_kernel_dFloor_ctab[3] = {4.06f, 4.06f, 4.06f};
#pragma weak ork_zem_kernel_dHypot_W7HAynn
#pragma weak ork_zem_kernel_dHypot_V8EPnnn
ORK_TABLE const ork_d_binary ork_zem_kernel_dHypot_ttab[3] = {ork_zem_kernel_dHypot_W7HAynn, ork_zem_kernel_dHypot_W7HAynn, ork_zem_kernel_dHypot_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_dHypot_ctab[3] = {32.04f, 32.04f, 12.71f};
#pragma weak ork_zem_kernel_dInv_W7LAynn
#pragma weak ork_zem_kernel_dInv_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dInv_ttab[3] = {ork_zem_kernel_dInv_W7LAynn, ork_zem_kernel_dInv_W7HAynn, ork_zem_kernel_dInv_W7LAynn};
ORK_TABLE const float ork_zem_kernel_dInv_ctab[3] = {6.60f, 15.71f, 6.60f};
#pragma weak ork_zem_kernel_dInvCbrt_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dInvCbrt_ttab[3] = {ork_zem_kernel_dInvCbrt_W7HAynn, ork_zem_kernel_dInvCbrt_W7HAynn, ork_zem_kernel_dInvCbrt_W7HAynn};
ORK_TABLE const float ork_zem_kernel_dInvCbrt_ctab[3] = {27.64f, 27.64f, 27.64f};
#pragma weak ork_zem_kernel_dInvSqrt_W7LAynn
#pragma weak ork_zem_kernel_dInvSqrt_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dInvSqrt_ttab[3] = {ork_zem_kernel_dInvSqrt_W7LAynn, ork_zem_kernel_dInvSqrt_W7HAynn, ork_zem_kernel_dInvSqrt_W7LAynn};
ORK_TABLE const float ork_zem_kernel_dInvSqrt_ctab[3] = {11.25f, 13.50f, 11.25f};
#pragma weak ork_zem_kernel_dLGamma_PXHAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dLGamma_ttab[3] = {ork_zem_kernel_dLGamma_PXHAynn, ork_zem_kernel_dLGamma_PXHAynn, ork_zem_kernel_dLGamma_PXHAynn};
ORK_TABLE const float ork_zem_kernel_dLGamma_ctab[3] = {319.79f, 319.79f, 319.79f};
#pragma weak ork_zem_kernel_dLinearFrac_V8HAynn
ORK_TABLE const ork_d_linear ork_zem_kernel_dLinearFrac_ttab[3] = {ork_zem_kernel_dLinearFrac_V8HAynn, ork_zem_kernel_dLinearFrac_V8HAynn, ork_zem_kernel_dLinearFrac_V8HAynn};
ORK_TABLE const float ork_zem_kernel_dLinearFrac_ctab[3] = {13.53f, 13.53f, 13.53f};
#pragma weak ork_zem_kernel_dLn_W7HAynn
#pragma weak ork_zem_kernel_dLn_W7EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dLn_ttab[3] = {ork_zem_kernel_dLn_W7HAynn, ork_zem_kernel_dLn_W7HAynn, ork_zem_kernel_dLn_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_dLn_ctab[3] = {18.09f, 18.09f, 11.36f};
#pragma weak ork_zem_kernel_dLog10_V8LAynn
#pragma weak ork_zem_kernel_dLog10_W7HAynn
#pragma weak ork_zem_kernel_dLog10_W7EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dLog10_ttab[3] = {ork_zem_kernel_dLog10_V8LAynn, ork_zem_kernel_dLog10_W7HAynn, ork_zem_kernel_dLog10_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_dLog10_ctab[3] = {18.09f, 19.03f, 11.54f};
#pragma weak ork_zem_kernel_dLog1p_V8LAynn
#pragma weak ork_zem_kernel_dLog1p_V8HAynn
#pragma weak ork_zem_kernel_dLog1p_V8EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dLog1p_ttab[3] = {ork_zem_kernel_dLog1p_V8LAynn, ork_zem_kernel_dLog1p_V8HAynn, ork_zem_kernel_dLog1p_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_dLog1p_ctab[3] = {21.00f, 24.00f, 18.00f};
#pragma weak ork_zem_kernel_dModf_W7HAynn
ORK_TABLE const ork_d_two ork_zem_kernel_dModf_ttab[3] = {ork_zem_kernel_dModf_W7HAynn, ork_zem_kernel_dModf_W7HAynn, ork_zem_kernel_dModf_W7HAynn};
ORK_TABLE const float ork_zem_kernel_dModf_ctab[3] = {5.35f, 5.35f, 5.35f};
#pragma weak ork_zem_kernel_dMul_V8HAynn
ORK_TABLE const ork_d_binary ork_zem_kernel_dMul_ttab[3] = {ork_zem_kernel_dMul_V8HAynn, ork_zem_kernel_dMul_V8HAynn, ork_zem_kernel_dMul_V8HAynn};
ORK_TABLE const float ork_zem_kernel_dMul_ctab[3] = {1.63f, 1.63f, 1.63f};
#pragma weak ork_zem_kernel_dNearbyInt_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dNearbyInt_ttab[3] = {ork_zem_kernel_dNearbyInt_W7HAynn, ork_zem_kernel_dNearbyInt_W7HAynn, ork_zem_kernel_dNearbyInt_W7HAynn};
ORK_TABLE const float ork_zem_kernel_dNearbyInt_ctab[3] = {3.97f, 3.97f, 3.97f};
#pragma weak ork_zem_kernel_dPackI_PXHAynn
ORK_TABLE const ork_d_pack_i ork_zem_kernel_dPackI_ttab[3] = {ork_zem_kernel_dPackI_PXHAynn, ork_zem_kernel_dPackI_PXHAynn, ork_zem_kernel_dPackI_PXHAynn};
ORK_TABLE const float ork_zem_kernel_dPackI_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_dPackM_PXHAynn
ORK_TABLE const ork_d_pack_m ork_zem_kernel_dPackM_ttab[3] = {ork_zem_kernel_dPackM_PXHAynn, ork_zem_kernel_dPackM_PXHAynn, ork_zem_kernel_dPackM_PXHAynn};
ORK_TABLE const float ork_zem_kernel_dPackM_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_dPackV_PXHAynn
ORK_TABLE const ork_d_pack_v ork_zem_kernel_dPackV_ttab[3] = {ork_zem_kernel_dPackV_PXHAynn, ork_zem_kernel_dPackV_PXHAynn, ork_zem_kernel_dPackV_PXHAynn};
ORK_TABLE const float ork_zem_kernel_dPackV_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_dPow_V8LAynn
#pragma weak ork_zem_kernel_dPow_V8HAynn
#pragma weak ork_zem_kernel_dPow_V8EPnnn
ORK_TABLE const ork_d_binary ork_zem_kernel_dPow_ttab[3] = {ork_zem_kernel_dPow_V8LAynn, ork_zem_kernel_dPow_V8HAynn, ork_zem_kernel_dPow_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_dPow_ctab[3] = {48.57f, 51.59f, 27.61f};
#pragma weak ork_zem_kernel_dPow2o3_W7LAynn
#pragma weak ork_zem_kernel_dPow2o3_W7HAynn
#pragma weak ork_zem_kernel_dPow2o3_W7EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dPow2o3_ttab[3] = {ork_zem_kernel_dPow2o3_W7LAynn, ork_zem_kernel_dPow2o3_W7HAynn, ork_zem_kernel_dPow2o3_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_dPow2o3_ctab[3] = {19.50f, 23.80f, 16.20f};
#pragma weak ork_zem_kernel_dPow3o2_W7LAynn
#pragma weak ork_zem_kernel_dPow3o2_V8HAynn
#pragma weak ork_zem_kernel_dPow3o2_W7EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dPow3o2_ttab[3] = {ork_zem_kernel_dPow3o2_W7LAynn, ork_zem_kernel_dPow3o2_V8HAynn, ork_zem_kernel_dPow3o2_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_dPow3o2_ctab[3] = {18.67f, 21.30f, 15.18f};
#pragma weak ork_zem_kernel_dPowx_V8LAynn
#pragma weak ork_zem_kernel_dPowx_W7HAynn
#pragma weak ork_zem_kernel_dPowx_V8EPnnn
ORK_TABLE const ork_d_scalar ork_zem_kernel_dPowx_ttab[3] = {ork_zem_kernel_dPowx_V8LAynn, ork_zem_kernel_dPowx_W7HAynn, ork_zem_kernel_dPowx_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_dPowx_ctab[3] = {48.57f, 50.40f, 27.61f};
#pragma weak ork_zem_kernel_dRint_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dRint_ttab[3] = {ork_zem_kernel_dRint_W7HAynn, ork_zem_kernel_dRint_W7HAynn, ork_zem_kernel_dRint_W7HAynn};
ORK_TABLE const float ork_zem_kernel_dRint_ctab[3] = {3.94f, 3.94f, 3.94f};
#pragma weak ork_zem_kernel_dRound_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dRound_ttab[3] = {ork_zem_kernel_dRound_W7HAynn, ork_zem_kernel_dRound_W7HAynn, ork_zem_kernel_dRound_W7HAynn};
ORK_TABLE const float ork_zem_kernel_dRound_ctab[3] = {5.62f, 5.62f, 5.62f};
#pragma weak ork_zem_kernel_dSin_V8LAynn
#pragma weak ork_zem_kernel_dSin_T7HAynn
#pragma weak ork_zem_kernel_dSin_V8EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dSin_ttab[3] = {ork_zem_kernel_dSin_V8LAynn, ork_zem_kernel_dSin_T7HAynn, ork_zem_kernel_dSin_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_dSin_ctab[3] = {15.71f, 22.62f, 12.21f};
#pragma weak ork_zem_kernel_dSinCos_W7LAynn
#pragma weak ork_zem_kernel_dSinCos_T7HAynn
#pragma weak ork_zem_kernel_dSinCos_V8EPnnn
ORK_TABLE const ork_d_two ork_zem_kernel_dSinCos_ttab[3] = {ork_zem_kernel_dSinCos_W7LAynn, ork_zem_kernel_dSinCos_T7HAynn, ork_zem_kernel_dSinCos_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_dSinCos_ctab[3] = {29.32f, 37.21f, 23.58f};
#pragma weak ork_zem_kernel_dSinh_W7LAynn
#pragma weak ork_zem_kernel_dSinh_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dSinh_ttab[3] = {ork_zem_kernel_dSinh_W7LAynn, ork_zem_kernel_dSinh_W7HAynn, ork_zem_kernel_dSinh_W7LAynn};
ORK_TABLE const float ork_zem_kernel_dSinh_ctab[3] = {21.77f, 24.66f, 21.77f};
#pragma weak ork_zem_kernel_dSqr_V8HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dSqr_ttab[3] = {ork_zem_kernel_dSqr_V8HAynn, ork_zem_kernel_dSqr_V8HAynn, ork_zem_kernel_dSqr_V8HAynn};
ORK_TABLE const float ork_zem_kernel_dSqr_ctab[3] = {0.71f, 0.71f, 0.71f};
#pragma weak ork_zem_kernel_dSqrt_W7LAynn
#pragma weak ork_zem_kernel_dSqrt_W7HAynn
#pragma weak ork_zem_kernel_dSqrt_W7EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dSqrt_ttab[3] = {ork_zem_kernel_dSqrt_W7LAynn, ork_zem_kernel_dSqrt_W7HAynn, ork_zem_kernel_dSqrt_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_dSqrt_ctab[3] = {13.95f, 17.61f, 10.38f};
#pragma weak ork_zem_kernel_dSub_V8HAynn
ORK_TABLE const ork_d_binary ork_zem_kernel_dSub_ttab[3] = {ork_zem_kernel_dSub_V8HAynn, ork_zem_kernel_dSub_V8HAynn, ork_zem_kernel_dSub_V8HAynn};
ORK_TABLE const float ork_zem_kernel_dSub_ctab[3] = {1.63f, 1.63f, 1.63f};
#pragma weak ork_zem_kernel_dTGamma_PXHAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dTGamma_ttab[3] = {ork_zem_kernel_dTGamma_PXHAynn, ork_zem_kernel_dTGamma_PXHAynn, ork_zem_kernel_dTGamma_PXHAynn};
ORK_TABLE const float ork_zem_kernel_dTGamma_ctab[3] = {426.34f, 426.34f, 426.34f};
#pragma weak ork_zem_kernel_dTan_W7LAynn
#pragma weak ork_zem_kernel_dTan_W7HAynn
#pragma weak ork_zem_kernel_dTan_W7EPnnn
ORK_TABLE const ork_d_unary ork_zem_kernel_dTan_ttab[3] = {ork_zem_kernel_dTan_W7LAynn, ork_zem_kernel_dTan_W7HAynn, ork_zem_kernel_dTan_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_dTan_ctab[3] = {30.57f, 45.74f, 22.93f};
#pragma weak ork_zem_kernel_dTanh_W7LAynn
#pragma weak ork_zem_kernel_dTanh_T7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dTanh_ttab[3] = {ork_zem_kernel_dTanh_W7LAynn, ork_zem_kernel_dTanh_T7HAynn, ork_zem_kernel_dTanh_W7LAynn};
ORK_TABLE const float ork_zem_kernel_dTanh_ctab[3] = {29.11f, 34.91f, 29.11f};
#pragma weak ork_zem_kernel_dTrunc_W7HAynn
ORK_TABLE const ork_d_unary ork_zem_kernel_dTrunc_ttab[3] = {ork_zem_kernel_dTrunc_W7HAynn, ork_zem_kernel_dTrunc_W7HAynn, ork_zem_kernel_dTrunc_W7HAynn};
ORK_TABLE const float ork_zem_kernel_dTrunc_ctab[3] = {4.29f, 4.29f, 4.29f};
#pragma weak ork_zem_kernel_dUnpackI_PXHAynn
ORK_TABLE const ork_d_unpack_i ork_zem_kernel_dUnpackI_ttab[3] = {ork_zem_kernel_dUnpackI_PXHAynn, ork_zem_kernel_dUnpackI_PXHAynn, ork_zem_kernel_dUnpackI_PXHAynn};
ORK_TABLE const float ork_zem_kernel_dUnpackI_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_dUnpackM_PXHAynn
ORK_TABLE const ork_d_unpack_m ork_zem_kernel_dUnpackM_ttab[3] = {ork_zem_kernel_dUnpackM_PXHAynn, ork_zem_kernel_dUnpackM_PXHAynn, ork_zem_kernel_dUnpackM_PXHAynn};
ORK_TABLE const float ork_zem_kernel_dUnpackM_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_dUnpackV_PXHAynn
ORK_TABLE const ork_d_unpack_v ork_zem_kernel_dUnpackV_ttab[3] = {ork_zem_kernel_dUnpackV_PXHAynn, ork_zem_kernel_dUnpackV_PXHAynn, ork_zem_kernel_dUnpackV_PXHAynn};
ORK_TABLE const float ork_zem_kernel_dUnpackV_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_sAbs_W7HAynn
ORK_TABLE const ork_s_unary ork_zem_kernel_sAbs_ttab[3] = {ork_zem_kernel_sAbs_W7HAynn, ork_zem_kernel_sAbs_W7HAynn, ork_zem_kernel_sAbs_W7HAynn};
ORK_TABLE const float ork_zem_kernel_sAbs_ctab[3] = {1.75f, 1.75f, 1.75f};
#pragma weak ork_zem_kernel_sAcos_V8LAynn
#pragma weak ork_zem_kernel_sAcos_V8HAynn
#pragma weak ork_zem_kernel_sAcos_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sAcos_ttab[3] = {ork_zem_kernel_sAcos_V8LAynn, ork_zem_kernel_sAcos_V8HAynn, ork_zem_kernel_sAcos_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sAcos_ctab[3] = {9.15f, 12.38f, 6.99f};
#pragma weak ork_zem_kernel_sAcosh_T7HAynn
#pragma weak ork_zem_kernel_sAcosh_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sAcosh_ttab[3] = {ork_zem_kernel_sAcosh_T7HAynn, ork_zem_kernel_sAcosh_T7HAynn, ork_zem_kernel_sAcosh_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sAcosh_ctab[3] = {14.00f, 14.00f, 8.94f};
#pragma weak ork_zem_kernel_sAdd_V8HAynn
ORK_TABLE const ork_s_binary ork_zem_kernel_sAdd_ttab[3] = {ork_zem_kernel_sAdd_V8HAynn, ork_zem_kernel_sAdd_V8HAynn, ork_zem_kernel_sAdd_V8HAynn};
ORK_TABLE const float ork_zem_kernel_sAdd_ctab[3] = {0.96f, 0.96f, 0.96f};
#pragma weak ork_zem_kernel_sAsin_W7LAynn
#pragma weak ork_zem_kernel_sAsin_T7HAynn
#pragma weak ork_zem_kernel_sAsin_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sAsin_ttab[3] = {ork_zem_kernel_sAsin_W7LAynn, ork_zem_kernel_sAsin_T7HAynn, ork_zem_kernel_sAsin_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sAsin_ctab[3] = {8.49f, 10.60f, 5.81f};
#pragma weak ork_zem_kernel_sAsinh_W7LAynn
#pragma weak ork_zem_kernel_sAsinh_T7HAynn
#pragma weak ork_zem_kernel_sAsinh_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sAsinh_ttab[3] = {ork_zem_kernel_sAsinh_W7LAynn, ork_zem_kernel_sAsinh_T7HAynn, ork_zem_kernel_sAsinh_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sAsinh_ctab[3] = {13.89f, 14.53f, 7.38f};
#pragma weak ork_zem_kernel_sAtan_W7LAynn
#pragma weak ork_zem_kernel_sAtan_W7HAynn
#pragma weak ork_zem_kernel_sAtan_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sAtan_ttab[3] = {ork_zem_kernel_sAtan_W7LAynn, ork_zem_kernel_sAtan_W7HAynn, ork_zem_kernel_sAtan_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sAtan_ctab[3] = {8.02f, 15.90f, 5.22f};
#pragma weak ork_zem_kernel_sAtan2_V8LAynn
#pragma weak ork_zem_kernel_sAtan2_V8HAynn
#pragma weak ork_zem_kernel_sAtan2_W7EPnnn
ORK_TABLE const ork_s_binary ork_zem_kernel_sAtan2_ttab[3] = {ork_zem_kernel_sAtan2_V8LAynn, ork_zem_kernel_sAtan2_V8HAynn, ork_zem_kernel_sAtan2_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sAtan2_ctab[3] = {13.48f, 30.45f, 11.11f};
#pragma weak ork_zem_kernel_sAtanh_W7LAynn
#pragma weak ork_zem_kernel_sAtanh_W7HAynn
#pragma weak ork_zem_kernel_sAtanh_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sAtanh_ttab[3] = {ork_zem_kernel_sAtanh_W7LAynn, ork_zem_kernel_sAtanh_W7HAynn, ork_zem_kernel_sAtanh_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sAtanh_ctab[3] = {11.98f, 20.18f, 8.81f};
#pragma weak ork_zem_kernel_sCbrt_W7LAynn
#pragma weak ork_zem_kernel_sCbrt_W7HAynn
#pragma weak ork_zem_kernel_sCbrt_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sCbrt_ttab[3] = {ork_zem_kernel_sCbrt_W7LAynn, ork_zem_kernel_sCbrt_W7HAynn, ork_zem_kernel_sCbrt_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sCbrt_ctab[3] = {8.52f, 12.78f, 5.55f};
#pragma weak ork_zem_kernel_sCdfNorm_T7LAynn
#pragma weak ork_zem_kernel_sCdfNorm_T7HAynn
#pragma weak ork_zem_kernel_sCdfNorm_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sCdfNorm_ttab[3] = {ork_zem_kernel_sCdfNorm_T7LAynn, ork_zem_kernel_sCdfNorm_T7HAynn, ork_zem_kernel_sCdfNorm_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sCdfNorm_ctab[3] = {10.95f, 15.35f, 9.21f};
#pragma weak ork_zem_kernel_sCdfNormInv_W7LAynn
#pragma weak ork_zem_kernel_sCdfNormInv_W7HAynn
#pragma weak ork_zem_kernel_sCdfNormInv_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sCdfNormInv_ttab[3] = {ork_zem_kernel_sCdfNormInv_W7LAynn, ork_zem_kernel_sCdfNormInv_W7HAynn, ork_zem_kernel_sCdfNormInv_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sCdfNormInv_ctab[3] = {9.93f, 19.75f, 8.11f};
#pragma weak ork_zem_kernel_sCeil_W7HAynn
ORK_TABLE const ork_s_unary ork_zem_kernel_sCeil_ttab[3] = {ork_zem_kernel_sCeil_W7HAynn, ork_zem_kernel_sCeil_W7HAynn, ork_zem_kernel_sCeil_W7HAynn};
ORK_TABLE const float ork_zem_kernel_sCeil_ctab[3] = {2.25f, 2.25f, 2.25f};
#pragma weak ork_zem_kernel_sCos_W7LAynn
#pragma weak ork_zem_kernel_sCos_W7HAynn
#pragma weak ork_zem_kernel_sCos_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sCos_ttab[3] = {ork_zem_kernel_sCos_W7LAynn, ork_zem_kernel_sCos_W7HAynn, ork_zem_kernel_sCos_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sCos_ctab[3] = {7.42f, 11.85f, 6.38f};
#pragma weak ork_zem_kernel_sCosh_V8LAynn
#pragma weak ork_zem_kernel_sCosh_W7HAynn
#pragma weak ork_zem_kernel_sCosh_V8EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sCosh_ttab[3] = {ork_zem_kernel_sCosh_V8LAynn, ork_zem_kernel_sCosh_W7HAynn, ork_zem_kernel_sCosh_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_sCosh_ctab[3] = {7.52f, 12.09f, 7.30f};
#pragma weak ork_zem_kernel_sDiv_W7LAynn
#pragma weak ork_zem_kernel_sDiv_W7HAynn
#pragma weak ork_zem_kernel_sDiv_W7EPnnn
ORK_TABLE const ork_s_binary ork_zem_kernel_sDiv_ttab[3] = {ork_zem_kernel_sDiv_W7LAynn, ork_zem_kernel_sDiv_W7HAynn, ork_zem_kernel_sDiv_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sDiv_ctab[3] = {2.46f, 4.42f, 1.97f};
#pragma weak ork_zem_kernel_sErf_V8LAynn
#pragma weak ork_zem_kernel_sErf_V8HAynn
#pragma weak ork_zem_kernel_sErf_V8EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sErf_ttab[3] = {ork_zem_kernel_sErf_V8LAynn, ork_zem_kernel_sErf_V8HAynn, ork_zem_kernel_sErf_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_sErf_ctab[3] = {13.30f, 16.49f, 5.30f};
#pragma weak ork_zem_kernel_sErfInv_W7LAynn
#pragma weak ork_zem_kernel_sErfInv_W7HAynn
#pragma weak ork_zem_kernel_sErfInv_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sErfInv_ttab[3] = {ork_zem_kernel_sErfInv_W7LAynn, ork_zem_kernel_sErfInv_W7HAynn, ork_zem_kernel_sErfInv_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sErfInv_ctab[3] = {9.19f, 20.33f, 6.92f};
#pragma weak ork_zem_kernel_sErfc_W7LAynn
#pragma weak ork_zem_kernel_sErfc_W7HAynn
#pragma weak ork_zem_kernel_sErfc_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sErfc_ttab[3] = {ork_zem_kernel_sErfc_W7LAynn, ork_zem_kernel_sErfc_W7HAynn, ork_zem_kernel_sErfc_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sErfc_ctab[3] = {23.80f, 29.05f, 11.36f};
#pragma weak ork_zem_kernel_sErfcInv_W7LAynn
#pragma weak ork_zem_kernel_sErfcInv_W7HAynn
#pragma weak ork_zem_kernel_sErfcInv_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sErfcInv_ttab[3] = {ork_zem_kernel_sErfcInv_W7LAynn, ork_zem_kernel_sErfcInv_W7HAynn, ork_zem_kernel_sErfcInv_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sErfcInv_ctab[3] = {10.11f, 20.48f, 8.19f};
#pragma weak ork_zem_kernel_sExp_W7LAynn
#pragma weak ork_zem_kernel_sExp_W7HAynn
#pragma weak ork_zem_kernel_sExp_V8EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sExp_ttab[3] = {ork_zem_kernel_sExp_W7LAynn, ork_zem_kernel_sExp_W7HAynn, ork_zem_kernel_sExp_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_sExp_ctab[3] = {6.46f, 7.16f, 5.03f};
#pragma weak ork_zem_kernel_sExpm1_V8HAynn
ORK_TABLE const ork_s_unary ork_zem_kernel_sExpm1_ttab[3] = {ork_zem_kernel_sExpm1_V8HAynn, ork_zem_kernel_sExpm1_V8HAynn, ork_zem_kernel_sExpm1_V8HAynn};
ORK_TABLE const float ork_zem_kernel_sExpm1_ctab[3] = {20.00f, 20.00f, 20.00f};
#pragma weak ork_zem_kernel_sFloor_W7HAynn
ORK_TABLE const ork_s_unary ork_zem_kernel_sFloor_ttab[3] = {ork_zem_kernel_sFloor_W7HAynn, ork_zem_kernel_sFloor_W7HAynn, ork_zem_kernel_sFloor_W7HAynn};
ORK_TABLE const float ork_zem_kernel_sFloor_ctab[3] = {2.31f, 2.31f, 2.31f};
#pragma weak ork_zem_kernel_sHypot_W7LAynn
#pragma weak ork_zem_kernel_sHypot_W7HAynn
#pragma weak ork_zem_kernel_sHypot_V8EPnnn
ORK_TABLE const ork_s_binary ork_zem_kernel_sHypot_ttab[3] = {ork_zem_kernel_sHypot_W7LAynn, ork_zem_kernel_sHypot_W7HAynn, ork_zem_kernel_sHypot_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_sHypot_ctab[3] = {11.99f, 15.58f, 2.87f};
#pragma weak ork_zem_kernel_sInv_W7LAynn
#pragma weak ork_zem_kernel_sInv_W7HAynn
#pragma weak ork_zem_kernel_sInv_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sInv_ttab[3] = {ork_zem_kernel_sInv_W7LAynn, ork_zem_kernel_sInv_W7HAynn, ork_zem_kernel_sInv_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sInv_ctab[3] = {2.01f, 4.44f, 1.43f};
#pragma weak ork_zem_kernel_sInvCbrt_W7LAynn
#pragma weak ork_zem_kernel_sInvCbrt_W7HAynn
#pragma weak ork_zem_kernel_sInvCbrt_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sInvCbrt_ttab[3] = {ork_zem_kernel_sInvCbrt_W7LAynn, ork_zem_kernel_sInvCbrt_W7HAynn, ork_zem_kernel_sInvCbrt_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sInvCbrt_ctab[3] = {9.80f, 14.13f, 6.23f};
#pragma weak ork_zem_kernel_sInvSqrt_W7LAynn
#pragma weak ork_zem_kernel_sInvSqrt_W7HAynn
#pragma weak ork_zem_kernel_sInvSqrt_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sInvSqrt_ttab[3] = {ork_zem_kernel_sInvSqrt_W7LAynn, ork_zem_kernel_sInvSqrt_W7HAynn, ork_zem_kernel_sInvSqrt_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sInvSqrt_ctab[3] = {2.28f, 3.84f, 1.32f};
#pragma weak ork_zem_kernel_sLGamma_PXHAynn
ORK_TABLE const ork_s_unary ork_zem_kernel_sLGamma_ttab[3] = {ork_zem_kernel_sLGamma_PXHAynn, ork_zem_kernel_sLGamma_PXHAynn, ork_zem_kernel_sLGamma_PXHAynn};
ORK_TABLE const float ork_zem_kernel_sLGamma_ctab[3] = {225.27f, 225.27f, 225.27f};
#pragma weak ork_zem_kernel_sLinearFrac_V8HAynn
ORK_TABLE const ork_s_linear ork_zem_kernel_sLinearFrac_ttab[3] = {ork_zem_kernel_sLinearFrac_V8HAynn, ork_zem_kernel_sLinearFrac_V8HAynn, ork_zem_kernel_sLinearFrac_V8HAynn};
ORK_TABLE const float ork_zem_kernel_sLinearFrac_ctab[3] = {3.45f, 3.45f, 3.45f};
#pragma weak ork_zem_kernel_sLn_V8LAynn
#pragma weak ork_zem_kernel_sLn_V8HAynn
#pragma weak ork_zem_kernel_sLn_V8EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sLn_ttab[3] = {ork_zem_kernel_sLn_V8LAynn, ork_zem_kernel_sLn_V8HAynn, ork_zem_kernel_sLn_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_sLn_ctab[3] = {7.53f, 9.77f, 5.25f};
#pragma weak ork_zem_kernel_sLog10_V8LAynn
#pragma weak ork_zem_kernel_sLog10_V8HAynn
#pragma weak ork_zem_kernel_sLog10_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sLog10_ttab[3] = {ork_zem_kernel_sLog10_V8LAynn, ork_zem_kernel_sLog10_V8HAynn, ork_zem_kernel_sLog10_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sLog10_ctab[3] = {8.50f, 10.69f, 5.27f};
#pragma weak ork_zem_kernel_sLog1p_V8LAynn
#pragma weak ork_zem_kernel_sLog1p_V8HAynn
ORK_TABLE const ork_s_unary ork_zem_kernel_sLog1p_ttab[3] = {ork_zem_kernel_sLog1p_V8LAynn, ork_zem_kernel_sLog1p_V8HAynn, ork_zem_kernel_sLog1p_V8LAynn};
ORK_TABLE const float ork_zem_kernel_sLog1p_ctab[3] = {10.58f, 13.62f, 10.58f};
#pragma weak ork_zem_kernel_sModf_W7HAynn
ORK_TABLE const ork_s_two ork_zem_kernel_sModf_ttab[3] = {ork_zem_kernel_sModf_W7HAynn, ork_zem_kernel_sModf_W7HAynn, ork_zem_kernel_sModf_W7HAynn};
ORK_TABLE const float ork_zem_kernel_sModf_ctab[3] = {2.71f, 2.71f, 2.71f};
#pragma weak ork_zem_kernel_sMul_V8HAynn
ORK_TABLE const ork_s_binary ork_zem_kernel_sMul_ttab[3] = {ork_zem_kernel_sMul_V8HAynn, ork_zem_kernel_sMul_V8HAynn, ork_zem_kernel_sMul_V8HAynn};
ORK_TABLE const float ork_zem_kernel_sMul_ctab[3] = {0.96f, 0.96f, 0.96f};
#pragma weak ork_zem_kernel_sNearbyInt_W7HAynn
ORK_TABLE const ork_s_unary ork_zem_kernel_sNearbyInt_ttab[3] = {ork_zem_kernel_sNearbyInt_W7HAynn, ork_zem_kernel_sNearbyInt_W7HAynn, ork_zem_kernel_sNearbyInt_W7HAynn};
ORK_TABLE const float ork_zem_kernel_sNearbyInt_ctab[3] = {2.18f, 2.18f, 2.18f};
#pragma weak ork_zem_kernel_sPackI_PXHAynn
ORK_TABLE const ork_s_pack_i ork_zem_kernel_sPackI_ttab[3] = {ork_zem_kernel_sPackI_PXHAynn, ork_zem_kernel_sPackI_PXHAynn, ork_zem_kernel_sPackI_PXHAynn};
ORK_TABLE const float ork_zem_kernel_sPackI_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_sPackM_PXHAynn
ORK_TABLE const ork_s_pack_m ork_zem_kernel_sPackM_ttab[3] = {ork_zem_kernel_sPackM_PXHAynn, ork_zem_kernel_sPackM_PXHAynn, ork_zem_kernel_sPackM_PXHAynn};
ORK_TABLE const float ork_zem_kernel_sPackM_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_sPackV_PXHAynn
ORK_TABLE const ork_s_pack_v ork_zem_kernel_sPackV_ttab[3] = {ork_zem_kernel_sPackV_PXHAynn, ork_zem_kernel_sPackV_PXHAynn, ork_zem_kernel_sPackV_PXHAynn};
ORK_TABLE const float ork_zem_kernel_sPackV_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_sPow_T7HAynn
#pragma weak ork_zem_kernel_sPow_V8EPnnn
ORK_TABLE const ork_s_binary ork_zem_kernel_sPow_ttab[3] = {ork_zem_kernel_sPow_T7HAynn, ork_zem_kernel_sPow_T7HAynn, ork_zem_kernel_sPow_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_sPow_ctab[3] = {24.73f, 24.73f, 12.98f};
#pragma weak ork_zem_kernel_sPow2o3_W7LAynn
#pragma weak ork_zem_kernel_sPow2o3_W7HAynn
#pragma weak ork_zem_kernel_sPow2o3_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sPow2o3_ttab[3] = {ork_zem_kernel_sPow2o3_W7LAynn, ork_zem_kernel_sPow2o3_W7HAynn, ork_zem_kernel_sPow2o3_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sPow2o3_ctab[3] = {9.35f, 12.70f, 5.96f};
#pragma weak ork_zem_kernel_sPow3o2_V8LAynn
#pragma weak ork_zem_kernel_sPow3o2_V8HAynn
#pragma weak ork_zem_kernel_sPow3o2_V8EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sPow3o2_ttab[3] = {ork_zem_kernel_sPow3o2_V8LAynn, ork_zem_kernel_sPow3o2_V8HAynn, ork_zem_kernel_sPow3o2_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_sPow3o2_ctab[3] = {4.06f, 8.79f, 2.49f};
#pragma weak ork_zem_kernel_sPowx_W7HAynn
#pragma weak ork_zem_kernel_sPowx_V8EPnnn
ORK_TABLE const ork_s_scalar ork_zem_kernel_sPowx_ttab[3] = {ork_zem_kernel_sPowx_W7HAynn, ork_zem_kernel_sPowx_W7HAynn, ork_zem_kernel_sPowx_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_sPowx_ctab[3] = {24.23f, 24.23f, 12.98f};
#pragma weak ork_zem_kernel_sRint_W7HAynn
ORK_TABLE const ork_s_unary ork_zem_kernel_sRint_ttab[3] = {ork_zem_kernel_sRint_W7HAynn, ork_zem_kernel_sRint_W7HAynn, ork_zem_kernel_sRint_W7HAynn};
ORK_TABLE const float ork_zem_kernel_sRint_ctab[3] = {2.18f, 2.18f, 2.18f};
#pragma weak ork_zem_kernel_sRound_W7HAynn
ORK_TABLE const ork_s_unary ork_zem_kernel_sRound_ttab[3] = {ork_zem_kernel_sRound_W7HAynn, ork_zem_kernel_sRound_W7HAynn, ork_zem_kernel_sRound_W7HAynn};
ORK_TABLE const float ork_zem_kernel_sRound_ctab[3] = {2.79f, 2.79f, 2.79f};
#pragma weak ork_zem_kernel_sSin_W7LAynn
#pragma weak ork_zem_kernel_sSin_W7HAynn
#pragma weak ork_zem_kernel_sSin_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sSin_ttab[3] = {ork_zem_kernel_sSin_W7LAynn, ork_zem_kernel_sSin_W7HAynn, ork_zem_kernel_sSin_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sSin_ctab[3] = {6.35f, 11.33f, 5.46f};
#pragma weak ork_zem_kernel_sSinCos_W7LAynn
#pragma weak ork_zem_kernel_sSinCos_W7HAynn
#pragma weak ork_zem_kernel_sSinCos_W7EPnnn
ORK_TABLE const ork_s_two ork_zem_kernel_sSinCos_ttab[3] = {ork_zem_kernel_sSinCos_W7LAynn, ork_zem_kernel_sSinCos_W7HAynn, ork_zem_kernel_sSinCos_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sSinCos_ctab[3] = {12.60f, 18.16f, 8.62f};
#pragma weak ork_zem_kernel_sSinh_V8LAynn
#pragma weak ork_zem_kernel_sSinh_V8HAynn
#pragma weak ork_zem_kernel_sSinh_V8EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sSinh_ttab[3] = {ork_zem_kernel_sSinh_V8LAynn, ork_zem_kernel_sSinh_V8HAynn, ork_zem_kernel_sSinh_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_sSinh_ctab[3] = {8.33f, 15.88f, 7.63f};
#pragma weak ork_zem_kernel_sSqr_V8HAynn
ORK_TABLE const ork_s_unary ork_zem_kernel_sSqr_ttab[3] = {ork_zem_kernel_sSqr_V8HAynn, ork_zem_kernel_sSqr_V8HAynn, ork_zem_kernel_sSqr_V8HAynn};
ORK_TABLE const float ork_zem_kernel_sSqr_ctab[3] = {0.40f, 0.40f, 0.40f};
#pragma weak ork_zem_kernel_sSqrt_W7LAynn
#pragma weak ork_zem_kernel_sSqrt_T7HAynn
#pragma weak ork_zem_kernel_sSqrt_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sSqrt_ttab[3] = {ork_zem_kernel_sSqrt_W7LAynn, ork_zem_kernel_sSqrt_T7HAynn, ork_zem_kernel_sSqrt_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sSqrt_ctab[3] = {2.58f, 5.41f, 2.04f};
#pragma weak ork_zem_kernel_sSub_V8HAynn
ORK_TABLE const ork_s_binary ork_zem_kernel_sSub_ttab[3] = {ork_zem_kernel_sSub_V8HAynn, ork_zem_kernel_sSub_V8HAynn, ork_zem_kernel_sSub_V8HAynn};
ORK_TABLE const float ork_zem_kernel_sSub_ctab[3] = {0.96f, 0.96f, 0.96f};
#pragma weak ork_zem_kernel_sTGamma_PXHAynn
ORK_TABLE const ork_s_unary ork_zem_kernel_sTGamma_ttab[3] = {ork_zem_kernel_sTGamma_PXHAynn, ork_zem_kernel_sTGamma_PXHAynn, ork_zem_kernel_sTGamma_PXHAynn};
ORK_TABLE const float ork_zem_kernel_sTGamma_ctab[3] = {295.01f, 295.01f, 295.01f};
#pragma weak ork_zem_kernel_sTan_W7LAynn
#pragma weak ork_zem_kernel_sTan_W7HAynn
#pragma weak ork_zem_kernel_sTan_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sTan_ttab[3] = {ork_zem_kernel_sTan_W7LAynn, ork_zem_kernel_sTan_W7HAynn, ork_zem_kernel_sTan_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sTan_ctab[3] = {10.39f, 19.75f, 9.68f};
#pragma weak ork_zem_kernel_sTanh_V8LAynn
#pragma weak ork_zem_kernel_sTanh_V8HAynn
#pragma weak ork_zem_kernel_sTanh_W7EPnnn
ORK_TABLE const ork_s_unary ork_zem_kernel_sTanh_ttab[3] = {ork_zem_kernel_sTanh_V8LAynn, ork_zem_kernel_sTanh_V8HAynn, ork_zem_kernel_sTanh_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_sTanh_ctab[3] = {13.71f, 16.52f, 12.10f};
#pragma weak ork_zem_kernel_sTrunc_W7HAynn
ORK_TABLE const ork_s_unary ork_zem_kernel_sTrunc_ttab[3] = {ork_zem_kernel_sTrunc_W7HAynn, ork_zem_kernel_sTrunc_W7HAynn, ork_zem_kernel_sTrunc_W7HAynn};
ORK_TABLE const float ork_zem_kernel_sTrunc_ctab[3] = {2.14f, 2.14f, 2.14f};
#pragma weak ork_zem_kernel_sUnpackI_PXHAynn
ORK_TABLE const ork_s_unpack_i ork_zem_kernel_sUnpackI_ttab[3] = {ork_zem_kernel_sUnpackI_PXHAynn, ork_zem_kernel_sUnpackI_PXHAynn, ork_zem_kernel_sUnpackI_PXHAynn};
ORK_TABLE const float ork_zem_kernel_sUnpackI_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_sUnpackM_PXHAynn
ORK_TABLE const ork_s_unpack_m ork_zem_kernel_sUnpackM_ttab[3] = {ork_zem_kernel_sUnpackM_PXHAynn, ork_zem_kernel_sUnpackM_PXHAynn, ork_zem_kernel_sUnpackM_PXHAynn};
ORK_TABLE const float ork_zem_kernel_sUnpackM_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_sUnpackV_PXHAynn
ORK_TABLE const ork_s_unpack_v ork_zem_kernel_sUnpackV_ttab[3] = {ork_zem_kernel_sUnpackV_PXHAynn, ork_zem_kernel_sUnpackV_PXHAynn, ork_zem_kernel_sUnpackV_PXHAynn};
ORK_TABLE const float ork_zem_kernel_sUnpackV_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_cAbs_V8LAynn
#pragma weak ork_zem_kernel_cAbs_V8HAynn
#pragma weak ork_zem_kernel_cAbs_V8EPnnn
ORK_TABLE const ork_c_to_real ork_zem_kernel_cAbs_ttab[3] = {ork_zem_kernel_cAbs_V8LAynn, ork_zem_kernel_cAbs_V8HAynn, ork_zem_kernel_cAbs_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_cAbs_ctab[3] = {7.57f, 13.13f, 3.65f};
#pragma weak ork_zem_kernel_cAcos_PXHAynn
ORK_TABLE const ork_c_unary ork_zem_kernel_cAcos_ttab[3] = {ork_zem_kernel_cAcos_PXHAynn, ork_zem_kernel_cAcos_PXHAynn, ork_zem_kernel_cAcos_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cAcos_ctab[3] = {1156.79f, 1156.79f, 1156.79f};
#pragma weak ork_zem_kernel_cAcosh_PXHAynn
ORK_TABLE const ork_c_unary ork_zem_kernel_cAcosh_ttab[3] = {ork_zem_kernel_cAcosh_PXHAynn, ork_zem_kernel_cAcosh_PXHAynn, ork_zem_kernel_cAcosh_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cAcosh_ctab[3] = {1167.15f, 1167.15f, 1167.15f};
#pragma weak ork_zem_kernel_cAdd_V8HAynn
#pragma weak ork_zem_kernel_cAdd_V8EPnnn
ORK_TABLE const ork_c_binary ork_zem_kernel_cAdd_ttab[3] = {ork_zem_kernel_cAdd_V8HAynn, ork_zem_kernel_cAdd_V8HAynn, ork_zem_kernel_cAdd_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_cAdd_ctab[3] = {6.34f, 6.34f, 1.85f};
#pragma weak ork_zem_kernel_cArg_V8LAynn
#pragma weak ork_zem_kernel_cArg_V8HAynn
#pragma weak ork_zem_kernel_cArg_V8EPnnn
ORK_TABLE const ork_c_to_real ork_zem_kernel_cArg_ttab[3] = {ork_zem_kernel_cArg_V8LAynn, ork_zem_kernel_cArg_V8HAynn, ork_zem_kernel_cArg_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_cArg_ctab[3] = {12.72f, 28.78f, 11.65f};
#pragma weak ork_zem_kernel_cAsin_PXHAynn
ORK_TABLE const ork_c_unary ork_zem_kernel_cAsin_ttab[3] = {ork_zem_kernel_cAsin_PXHAynn, ork_zem_kernel_cAsin_PXHAynn, ork_zem_kernel_cAsin_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cAsin_ctab[3] = {1260.85f, 1260.85f, 1260.85f};
#pragma weak ork_zem_kernel_cAsinh_PXHAynn
ORK_TABLE const ork_c_unary ork_zem_kernel_cAsinh_ttab[3] = {ork_zem_kernel_cAsinh_PXHAynn, ork_zem_kernel_cAsinh_PXHAynn, ork_zem_kernel_cAsinh_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cAsinh_ctab[3] = {1140.70f, 1140.70f, 1140.70f};
#pragma weak ork_zem_kernel_cAtan_PXHAynn
ORK_TABLE const ork_c_unary ork_zem_kernel_cAtan_ttab[3] = {ork_zem_kernel_cAtan_PXHAynn, ork_zem_kernel_cAtan_PXHAynn, ork_zem_kernel_cAtan_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cAtan_ctab[3] = {635.47f, 635.47f, 635.47f};
#pragma weak ork_zem_kernel_cAtanh_PXHAynn
ORK_TABLE const ork_c_unary ork_zem_kernel_cAtanh_ttab[3] = {ork_zem_kernel_cAtanh_PXHAynn, ork_zem_kernel_cAtanh_PXHAynn, ork_zem_kernel_cAtanh_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cAtanh_ctab[3] = {555.74f, 555.74f, 555.74f};
#pragma weak ork_zem_kernel_cCIS_V8LAynn
#pragma weak ork_zem_kernel_cCIS_W7HAynn
#pragma weak ork_zem_kernel_cCIS_V8EPnnn
ORK_TABLE const ork_c_from_real ork_zem_kernel_cCIS_ttab[3] = {ork_zem_kernel_cCIS_V8LAynn, ork_zem_kernel_cCIS_W7HAynn, ork_zem_kernel_cCIS_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_cCIS_ctab[3] = {14.20f, 19.03f, 11.84f};
#pragma weak ork_zem_kernel_cConj_W7HAynn
ORK_TABLE const ork_c_unary ork_zem_kernel_cConj_ttab[3] = {ork_zem_kernel_cConj_W7HAynn, ork_zem_kernel_cConj_W7HAynn, ork_zem_kernel_cConj_W7HAynn};
ORK_TABLE const float ork_zem_kernel_cConj_ctab[3] = {2.86f, 2.86f, 2.86f};
#pragma weak ork_zem_kernel_cCos_PXHAynn
ORK_TABLE const ork_c_unary ork_zem_kernel_cCos_ttab[3] = {ork_zem_kernel_cCos_PXHAynn, ork_zem_kernel_cCos_PXHAynn, ork_zem_kernel_cCos_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cCos_ctab[3] = {552.02f, 552.02f, 552.02f};
#pragma weak ork_zem_kernel_cCosh_PXHAynn
ORK_TABLE const ork_c_unary ork_zem_kernel_cCosh_ttab[3] = {ork_zem_kernel_cCosh_PXHAynn, ork_zem_kernel_cCosh_PXHAynn, ork_zem_kernel_cCosh_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cCosh_ctab[3] = {494.12f, 494.12f, 494.12f};
#pragma weak ork_zem_kernel_cDiv_V8HAynn
#pragma weak ork_zem_kernel_cDiv_V8EPnnn
ORK_TABLE const ork_c_binary ork_zem_kernel_cDiv_ttab[3] = {ork_zem_kernel_cDiv_V8HAynn, ork_zem_kernel_cDiv_V8HAynn, ork_zem_kernel_cDiv_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_cDiv_ctab[3] = {30.49f, 30.49f, 7.46f};
#pragma weak ork_zem_kernel_cExp_W7LAynn
#pragma weak ork_zem_kernel_cExp_W7HAynn
ORK_TABLE const ork_c_unary ork_zem_kernel_cExp_ttab[3] = {ork_zem_kernel_cExp_W7LAynn, ork_zem_kernel_cExp_W7HAynn, ork_zem_kernel_cExp_W7LAynn};
ORK_TABLE const float ork_zem_kernel_cExp_ctab[3] = {20.78f, 65.83f, 20.78f};
#pragma weak ork_zem_kernel_cLn_W7LAynn
#pragma weak ork_zem_kernel_cLn_W7HAynn
#pragma weak ork_zem_kernel_cLn_W7EPnnn
ORK_TABLE const ork_c_unary ork_zem_kernel_cLn_ttab[3] = {ork_zem_kernel_cLn_W7LAynn, ork_zem_kernel_cLn_W7HAynn, ork_zem_kernel_cLn_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_cLn_ctab[3] = {35.42f, 53.63f, 23.41f};
#pragma weak ork_zem_kernel_cLog10_PXHAynn
ORK_TABLE const ork_c_unary ork_zem_kernel_cLog10_ttab[3] = {ork_zem_kernel_cLog10_PXHAynn, ork_zem_kernel_cLog10_PXHAynn, ork_zem_kernel_cLog10_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cLog10_ctab[3] = {567.51f, 567.51f, 567.51f};
#pragma weak ork_zem_kernel_cMul_V8HAynn
#pragma weak ork_zem_kernel_cMul_V8EPnnn
ORK_TABLE const ork_c_binary ork_zem_kernel_cMul_ttab[3] = {ork_zem_kernel_cMul_V8HAynn, ork_zem_kernel_cMul_V8HAynn, ork_zem_kernel_cMul_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_cMul_ctab[3] = {15.21f, 15.21f, 2.97f};
#pragma weak ork_zem_kernel_cMulByConj_V8HAynn
#pragma weak ork_zem_kernel_cMulByConj_V8EPnnn
ORK_TABLE const ork_c_binary ork_zem_kernel_cMulByConj_ttab[3] = {ork_zem_kernel_cMulByConj_V8HAynn, ork_zem_kernel_cMulByConj_V8HAynn, ork_zem_kernel_cMulByConj_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_cMulByConj_ctab[3] = {15.23f, 15.23f, 6.17f};
#pragma weak ork_zem_kernel_cPackI_PXHAynn
ORK_TABLE const ork_c_pack_i ork_zem_kernel_cPackI_ttab[3] = {ork_zem_kernel_cPackI_PXHAynn, ork_zem_kernel_cPackI_PXHAynn, ork_zem_kernel_cPackI_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cPackI_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_cPackM_PXHAynn
ORK_TABLE const ork_c_pack_m ork_zem_kernel_cPackM_ttab[3] = {ork_zem_kernel_cPackM_PXHAynn, ork_zem_kernel_cPackM_PXHAynn, ork_zem_kernel_cPackM_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cPackM_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_cPackV_PXHAynn
ORK_TABLE const ork_c_pack_v ork_zem_kernel_cPackV_ttab[3] = {ork_zem_kernel_cPackV_PXHAynn, ork_zem_kernel_cPackV_PXHAynn, ork_zem_kernel_cPackV_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cPackV_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_cPow_PXHAynn
ORK_TABLE const ork_c_binary ork_zem_kernel_cPow_ttab[3] = {ork_zem_kernel_cPow_PXHAynn, ork_zem_kernel_cPow_PXHAynn, ork_zem_kernel_cPow_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cPow_ctab[3] = {1065.61f, 1065.61f, 1065.61f};
#pragma weak ork_zem_kernel_cPowx_PXHAynn
ORK_TABLE const ork_c_scalar ork_zem_kernel_cPowx_ttab[3] = {ork_zem_kernel_cPowx_PXHAynn, ork_zem_kernel_cPowx_PXHAynn, ork_zem_kernel_cPowx_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cPowx_ctab[3] = {1056.72f, 1056.72f, 1056.72f};
#pragma weak ork_zem_kernel_cSin_PXHAynn
ORK_TABLE const ork_c_unary ork_zem_kernel_cSin_ttab[3] = {ork_zem_kernel_cSin_PXHAynn, ork_zem_kernel_cSin_PXHAynn, ork_zem_kernel_cSin_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cSin_ctab[3] = {572.87f, 572.87f, 572.87f};
#pragma weak ork_zem_kernel_cSinh_PXHAynn
ORK_TABLE const ork_c_unary ork_zem_kernel_cSinh_ttab[3] = {ork_zem_kernel_cSinh_PXHAynn, ork_zem_kernel_cSinh_PXHAynn, ork_zem_kernel_cSinh_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cSinh_ctab[3] = {491.26f, 491.26f, 491.26f};
#pragma weak ork_zem_kernel_cSqrt_W7LAynn
#pragma weak ork_zem_kernel_cSqrt_W7HAynn
ORK_TABLE const ork_c_unary ork_zem_kernel_cSqrt_ttab[3] = {ork_zem_kernel_cSqrt_W7LAynn, ork_zem_kernel_cSqrt_W7HAynn, ork_zem_kernel_cSqrt_W7LAynn};
ORK_TABLE const float ork_zem_kernel_cSqrt_ctab[3] = {26.63f, 60.18f, 26.63f};
#pragma weak ork_zem_kernel_cSub_V8HAynn
#pragma weak ork_zem_kernel_cSub_V8EPnnn
ORK_TABLE const ork_c_binary ork_zem_kernel_cSub_ttab[3] = {ork_zem_kernel_cSub_V8HAynn, ork_zem_kernel_cSub_V8HAynn, ork_zem_kernel_cSub_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_cSub_ctab[3] = {6.34f, 6.34f, 1.85f};
#pragma weak ork_zem_kernel_cTan_PXHAynn
ORK_TABLE const ork_c_unary ork_zem_kernel_cTan_ttab[3] = {ork_zem_kernel_cTan_PXHAynn, ork_zem_kernel_cTan_PXHAynn, ork_zem_kernel_cTan_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cTan_ctab[3] = {655.21f, 655.21f, 655.21f};
#pragma weak ork_zem_kernel_cTanh_PXHAynn
ORK_TABLE const ork_c_unary ork_zem_kernel_cTanh_ttab[3] = {ork_zem_kernel_cTanh_PXHAynn, ork_zem_kernel_cTanh_PXHAynn, ork_zem_kernel_cTanh_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cTanh_ctab[3] = {569.96f, 569.96f, 569.96f};
#pragma weak ork_zem_kernel_cUnpackI_PXHAynn
ORK_TABLE const ork_c_unpack_i ork_zem_kernel_cUnpackI_ttab[3] = {ork_zem_kernel_cUnpackI_PXHAynn, ork_zem_kernel_cUnpackI_PXHAynn, ork_zem_kernel_cUnpackI_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cUnpackI_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_cUnpackM_PXHAynn
ORK_TABLE const ork_c_unpack_m ork_zem_kernel_cUnpackM_ttab[3] = {ork_zem_kernel_cUnpackM_PXHAynn, ork_zem_kernel_cUnpackM_PXHAynn, ork_zem_kernel_cUnpackM_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cUnpackM_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_cUnpackV_PXHAynn
ORK_TABLE const ork_c_unpack_v ork_zem_kernel_cUnpackV_ttab[3] = {ork_zem_kernel_cUnpackV_PXHAynn, ork_zem_kernel_cUnpackV_PXHAynn, ork_zem_kernel_cUnpackV_PXHAynn};
ORK_TABLE const float ork_zem_kernel_cUnpackV_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_zAbs_V8LAynn
#pragma weak ork_zem_kernel_zAbs_V8HAynn
#pragma weak ork_zem_kernel_zAbs_V8EPnnn
ORK_TABLE const ork_z_to_real ork_zem_kernel_zAbs_ttab[3] = {ork_zem_kernel_zAbs_V8LAynn, ork_zem_kernel_zAbs_V8HAynn, ork_zem_kernel_zAbs_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_zAbs_ctab[3] = {16.23f, 32.01f, 13.91f};
#pragma weak ork_zem_kernel_zAcos_PXHAynn
ORK_TABLE const ork_z_unary ork_zem_kernel_zAcos_ttab[3] = {ork_zem_kernel_zAcos_PXHAynn, ork_zem_kernel_zAcos_PXHAynn, ork_zem_kernel_zAcos_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zAcos_ctab[3] = {1147.36f, 1147.36f, 1147.36f};
#pragma weak ork_zem_kernel_zAcosh_PXHAynn
ORK_TABLE const ork_z_unary ork_zem_kernel_zAcosh_ttab[3] = {ork_zem_kernel_zAcosh_PXHAynn, ork_zem_kernel_zAcosh_PXHAynn, ork_zem_kernel_zAcosh_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zAcosh_ctab[3] = {1157.88f, 1157.88f, 1157.88f};
#pragma weak ork_zem_kernel_zAdd_V8HAynn
#pragma weak ork_zem_kernel_zAdd_V8EPnnn
ORK_TABLE const ork_z_binary ork_zem_kernel_zAdd_ttab[3] = {ork_zem_kernel_zAdd_V8HAynn, ork_zem_kernel_zAdd_V8HAynn, ork_zem_kernel_zAdd_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_zAdd_ctab[3] = {9.78f, 9.78f, 7.56f};
#pragma weak ork_zem_kernel_zArg_W7LAynn
#pragma weak ork_zem_kernel_zArg_V8HAynn
#pragma weak ork_zem_kernel_zArg_V8EPnnn
ORK_TABLE const ork_z_to_real ork_zem_kernel_zArg_ttab[3] = {ork_zem_kernel_zArg_W7LAynn, ork_zem_kernel_zArg_V8HAynn, ork_zem_kernel_zArg_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_zArg_ctab[3] = {44.49f, 68.29f, 31.42f};
#pragma weak ork_zem_kernel_zAsin_PXHAynn
ORK_TABLE const ork_z_unary ork_zem_kernel_zAsin_ttab[3] = {ork_zem_kernel_zAsin_PXHAynn, ork_zem_kernel_zAsin_PXHAynn, ork_zem_kernel_zAsin_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zAsin_ctab[3] = {1251.71f, 1251.71f, 1251.71f};
#pragma weak ork_zem_kernel_zAsinh_PXHAynn
ORK_TABLE const ork_z_unary ork_zem_kernel_zAsinh_ttab[3] = {ork_zem_kernel_zAsinh_PXHAynn, ork_zem_kernel_zAsinh_PXHAynn, ork_zem_kernel_zAsinh_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zAsinh_ctab[3] = {1136.96f, 1136.96f, 1136.96f};
#pragma weak ork_zem_kernel_zAtan_PXHAynn
ORK_TABLE const ork_z_unary ork_zem_kernel_zAtan_ttab[3] = {ork_zem_kernel_zAtan_PXHAynn, ork_zem_kernel_zAtan_PXHAynn, ork_zem_kernel_zAtan_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zAtan_ctab[3] = {628.75f, 628.75f, 628.75f};
#pragma weak ork_zem_kernel_zAtanh_PXHAynn
ORK_TABLE const ork_z_unary ork_zem_kernel_zAtanh_ttab[3] = {ork_zem_kernel_zAtanh_PXHAynn, ork_zem_kernel_zAtanh_PXHAynn, ork_zem_kernel_zAtanh_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zAtanh_ctab[3] = {547.21f, 547.21f, 547.21f};
#pragma weak ork_zem_kernel_zCIS_V8LAynn
#pragma weak ork_zem_kernel_zCIS_V8HAynn
#pragma weak ork_zem_kernel_zCIS_V8EPnnn
ORK_TABLE const ork_z_from_real ork_zem_kernel_zCIS_ttab[3] = {ork_zem_kernel_zCIS_V8LAynn, ork_zem_kernel_zCIS_V8HAynn, ork_zem_kernel_zCIS_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_zCIS_ctab[3] = {35.19f, 43.99f, 25.73f};
#pragma weak ork_zem_kernel_zConj_W7HAynn
ORK_TABLE const ork_z_unary ork_zem_kernel_zConj_ttab[3] = {ork_zem_kernel_zConj_W7HAynn, ork_zem_kernel_zConj_W7HAynn, ork_zem_kernel_zConj_W7HAynn};
ORK_TABLE const float ork_zem_kernel_zConj_ctab[3] = {3.48f, 3.48f, 3.48f};
#pragma weak ork_zem_kernel_zCos_PXHAynn
ORK_TABLE const ork_z_unary ork_zem_kernel_zCos_ttab[3] = {ork_zem_kernel_zCos_PXHAynn, ork_zem_kernel_zCos_PXHAynn, ork_zem_kernel_zCos_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zCos_ctab[3] = {548.27f, 548.27f, 548.27f};
#pragma weak ork_zem_kernel_zCosh_PXHAynn
ORK_TABLE const ork_z_unary ork_zem_kernel_zCosh_ttab[3] = {ork_zem_kernel_zCosh_PXHAynn, ork_zem_kernel_zCosh_PXHAynn, ork_zem_kernel_zCosh_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zCosh_ctab[3] = {485.76f, 485.76f, 485.76f};
#pragma weak ork_zem_kernel_zDiv_V8HAynn
#pragma weak ork_zem_kernel_zDiv_V8EPnnn
ORK_TABLE const ork_z_binary ork_zem_kernel_zDiv_ttab[3] = {ork_zem_kernel_zDiv_V8HAynn, ork_zem_kernel_zDiv_V8HAynn, ork_zem_kernel_zDiv_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_zDiv_ctab[3] = {102.36f, 102.36f, 15.98f};
#pragma weak ork_zem_kernel_zExp_V8LAynn
#pragma weak ork_zem_kernel_zExp_W7HAynn
ORK_TABLE const ork_z_unary ork_zem_kernel_zExp_ttab[3] = {ork_zem_kernel_zExp_V8LAynn, ork_zem_kernel_zExp_W7HAynn, ork_zem_kernel_zExp_V8LAynn};
ORK_TABLE const float ork_zem_kernel_zExp_ctab[3] = {63.48f, 86.67f, 63.48f};
#pragma weak ork_zem_kernel_zLn_W7LAynn
#pragma weak ork_zem_kernel_zLn_V8HAynn
#pragma weak ork_zem_kernel_zLn_W7EPnnn
ORK_TABLE const ork_z_unary ork_zem_kernel_zLn_ttab[3] = {ork_zem_kernel_zLn_W7LAynn, ork_zem_kernel_zLn_V8HAynn, ork_zem_kernel_zLn_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_zLn_ctab[3] = {95.54f, 119.03f, 59.18f};
#pragma weak ork_zem_kernel_zLog10_PXHAynn
ORK_TABLE const ork_z_unary ork_zem_kernel_zLog10_ttab[3] = {ork_zem_kernel_zLog10_PXHAynn, ork_zem_kernel_zLog10_PXHAynn, ork_zem_kernel_zLog10_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zLog10_ctab[3] = {556.75f, 556.75f, 556.75f};
#pragma weak ork_zem_kernel_zMul_V8HAynn
#pragma weak ork_zem_kernel_zMul_V8EPnnn
ORK_TABLE const ork_z_binary ork_zem_kernel_zMul_ttab[3] = {ork_zem_kernel_zMul_V8HAynn, ork_zem_kernel_zMul_V8HAynn, ork_zem_kernel_zMul_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_zMul_ctab[3] = {61.06f, 61.06f, 7.62f};
#pragma weak ork_zem_kernel_zMulByConj_V8HAynn
#pragma weak ork_zem_kernel_zMulByConj_W7EPnnn
ORK_TABLE const ork_z_binary ork_zem_kernel_zMulByConj_ttab[3] = {ork_zem_kernel_zMulByConj_V8HAynn, ork_zem_kernel_zMulByConj_V8HAynn, ork_zem_kernel_zMulByConj_W7EPnnn};
ORK_TABLE const float ork_zem_kernel_zMulByConj_ctab[3] = {61.48f, 61.48f, 8.98f};
#pragma weak ork_zem_kernel_zPackI_PXHAynn
ORK_TABLE const ork_z_pack_i ork_zem_kernel_zPackI_ttab[3] = {ork_zem_kernel_zPackI_PXHAynn, ork_zem_kernel_zPackI_PXHAynn, ork_zem_kernel_zPackI_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zPackI_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_zPackM_PXHAynn
ORK_TABLE const ork_z_pack_m ork_zem_kernel_zPackM_ttab[3] = {ork_zem_kernel_zPackM_PXHAynn, ork_zem_kernel_zPackM_PXHAynn, ork_zem_kernel_zPackM_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zPackM_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_zPackV_PXHAynn
ORK_TABLE const ork_z_pack_v ork_zem_kernel_zPackV_ttab[3] = {ork_zem_kernel_zPackV_PXHAynn, ork_zem_kernel_zPackV_PXHAynn, ork_zem_kernel_zPackV_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zPackV_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_zPow_PXHAynn
ORK_TABLE const ork_z_binary ork_zem_kernel_zPow_ttab[3] = {ork_zem_kernel_zPow_PXHAynn, ork_zem_kernel_zPow_PXHAynn, ork_zem_kernel_zPow_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zPow_ctab[3] = {1051.69f, 1051.69f, 1051.69f};
#pragma weak ork_zem_kernel_zPowx_PXHAynn
ORK_TABLE const ork_z_scalar ork_zem_kernel_zPowx_ttab[3] = {ork_zem_kernel_zPowx_PXHAynn, ork_zem_kernel_zPowx_PXHAynn, ork_zem_kernel_zPowx_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zPowx_ctab[3] = {1041.83f, 1041.83f, 1041.83f};
#pragma weak ork_zem_kernel_zSin_PXHAynn
ORK_TABLE const ork_z_unary ork_zem_kernel_zSin_ttab[3] = {ork_zem_kernel_zSin_PXHAynn, ork_zem_kernel_zSin_PXHAynn, ork_zem_kernel_zSin_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zSin_ctab[3] = {564.97f, 564.97f, 564.97f};
#pragma weak ork_zem_kernel_zSinh_PXHAynn
ORK_TABLE const ork_z_unary ork_zem_kernel_zSinh_ttab[3] = {ork_zem_kernel_zSinh_PXHAynn, ork_zem_kernel_zSinh_PXHAynn, ork_zem_kernel_zSinh_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zSinh_ctab[3] = {487.50f, 487.50f, 487.50f};
#pragma weak ork_zem_kernel_zSqrt_V8HAynn
ORK_TABLE const ork_z_unary ork_zem_kernel_zSqrt_ttab[3] = {ork_zem_kernel_zSqrt_V8HAynn, ork_zem_kernel_zSqrt_V8HAynn, ork_zem_kernel_zSqrt_V8HAynn};
ORK_TABLE const float ork_zem_kernel_zSqrt_ctab[3] = {186.06f, 186.06f, 186.06f};
#pragma weak ork_zem_kernel_zSub_V8HAynn
#pragma weak ork_zem_kernel_zSub_V8EPnnn
ORK_TABLE const ork_z_binary ork_zem_kernel_zSub_ttab[3] = {ork_zem_kernel_zSub_V8HAynn, ork_zem_kernel_zSub_V8HAynn, ork_zem_kernel_zSub_V8EPnnn};
ORK_TABLE const float ork_zem_kernel_zSub_ctab[3] = {9.78f, 9.78f, 7.56f};
#pragma weak ork_zem_kernel_zTan_PXHAynn
ORK_TABLE const ork_z_unary ork_zem_kernel_zTan_ttab[3] = {ork_zem_kernel_zTan_PXHAynn, ork_zem_kernel_zTan_PXHAynn, ork_zem_kernel_zTan_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zTan_ctab[3] = {642.92f, 642.92f, 642.92f};
#pragma weak ork_zem_kernel_zTanh_PXHAynn
ORK_TABLE const ork_z_unary ork_zem_kernel_zTanh_ttab[3] = {ork_zem_kernel_zTanh_PXHAynn, ork_zem_kernel_zTanh_PXHAynn, ork_zem_kernel_zTanh_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zTanh_ctab[3] = {557.26f, 557.26f, 557.26f};
#pragma weak ork_zem_kernel_zUnpackI_PXHAynn
ORK_TABLE const ork_z_unpack_i ork_zem_kernel_zUnpackI_ttab[3] = {ork_zem_kernel_zUnpackI_PXHAynn, ork_zem_kernel_zUnpackI_PXHAynn, ork_zem_kernel_zUnpackI_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zUnpackI_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_zUnpackM_PXHAynn
ORK_TABLE const ork_z_unpack_m ork_zem_kernel_zUnpackM_ttab[3] = {ork_zem_kernel_zUnpackM_PXHAynn, ork_zem_kernel_zUnpackM_PXHAynn, ork_zem_kernel_zUnpackM_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zUnpackM_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
#pragma weak ork_zem_kernel_zUnpackV_PXHAynn
ORK_TABLE const ork_z_unpack_v ork_zem_kernel_zUnpackV_ttab[3] = {ork_zem_kernel_zUnpackV_PXHAynn, ork_zem_kernel_zUnpackV_PXHAynn, ork_zem_kernel_zUnpackV_PXHAynn};
ORK_TABLE const float ork_zem_kernel_zUnpackV_ctab[3] = {1111.00f, 1111.00f, 1111.00f};
