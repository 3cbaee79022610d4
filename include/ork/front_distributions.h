/* Generated from rua/rua_kernel/service/distributions.txt by ./dev tables distributions; edit that.
 *
 * n numbers of a distribution, with the methods and parameters of rua_distributions.h. Checked,
 * in this order: stream null -5; method unknown -2; n below 0, a parameter or an element of
 * an array whose length is known outside its range or not finite, more than 2^31 - 1 values -3;
 * r or an array null -5 (before its elements are looked at). n = 0 draws nothing.
 */
#ifndef ORK_FRONT_DISTRIBUTIONS_H
#define ORK_FRONT_DISTRIBUTIONS_H

#include "ork/rua.h"

#ifdef __cplusplus
extern "C" {
#endif

int ork_dRngUniform(int method, RuaStream* stream, int n, double* r, double a, double b);
int ork_sRngUniform(int method, RuaStream* stream, int n, float* r, float a, float b);
int ork_dRngGaussian(int method, RuaStream* stream, int n, double* r, double a, double sigma);
int ork_sRngGaussian(int method, RuaStream* stream, int n, float* r, float a, float sigma);
int ork_dRngExponential(int method, RuaStream* stream, int n, double* r, double a, double beta);
int ork_sRngExponential(int method, RuaStream* stream, int n, float* r, float a, float beta);
int ork_dRngLaplace(int method, RuaStream* stream, int n, double* r, double a, double beta);
int ork_sRngLaplace(int method, RuaStream* stream, int n, float* r, float a, float beta);
int ork_dRngCauchy(int method, RuaStream* stream, int n, double* r, double a, double beta);
int ork_sRngCauchy(int method, RuaStream* stream, int n, float* r, float a, float beta);
int ork_dRngRayleigh(int method, RuaStream* stream, int n, double* r, double a, double beta);
int ork_sRngRayleigh(int method, RuaStream* stream, int n, float* r, float a, float beta);
int ork_dRngLognormal(int method, RuaStream* stream, int n, double* r, double a, double sigma,
                      double b, double beta);
int ork_sRngLognormal(int method, RuaStream* stream, int n, float* r, float a, float sigma, float b,
                      float beta);
int ork_dRngWeibull(int method, RuaStream* stream, int n, double* r, double alpha, double a,
                    double beta);
int ork_sRngWeibull(int method, RuaStream* stream, int n, float* r, float alpha, float a,
                    float beta);
int ork_dRngGumbel(int method, RuaStream* stream, int n, double* r, double a, double beta);
int ork_sRngGumbel(int method, RuaStream* stream, int n, float* r, float a, float beta);
int ork_dRngGamma(int method, RuaStream* stream, int n, double* r, double alpha, double a,
                  double beta);
int ork_sRngGamma(int method, RuaStream* stream, int n, float* r, float alpha, float a, float beta);
int ork_dRngBeta(int method, RuaStream* stream, int n, double* r, double p, double q, double a,
                 double beta);
int ork_sRngBeta(int method, RuaStream* stream, int n, float* r, float p, float q, float a,
                 float beta);
int ork_dRngGaussianMV(int method, RuaStream* stream, int n, double* r, int32_t dim,
                       int32_t mstorage, const double* a, const double* t);
int ork_sRngGaussianMV(int method, RuaStream* stream, int n, float* r, int32_t dim,
                       int32_t mstorage, const float* a, const float* t);
int ork_iRngUniform(int method, RuaStream* stream, int n, int32_t* r, int32_t a, int32_t b);
int ork_iRngUniformBits(int method, RuaStream* stream, int n, uint32_t* r);
int ork_iRngUniformBits32(int method, RuaStream* stream, int n, uint32_t* r);
int ork_iRngUniformBits64(int method, RuaStream* stream, int n, uint64_t* r);
int ork_iRngBernoulli(int method, RuaStream* stream, int n, int32_t* r, double p);
int ork_iRngGeometric(int method, RuaStream* stream, int n, int32_t* r, double p);

#ifdef __cplusplus
}
#endif

#endif
