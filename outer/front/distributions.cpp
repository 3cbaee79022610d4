// Generated from rua/rua_kernel/service/distributions.txt by ./dev tables distributions; edit that.
#include "ork/front_distributions.h"

#include "ork/rua_distributions.h"
#include "outer/export.hpp"
#include "outer/front/distributions.hpp"

using namespace ork::front;

ORK_OUTER int ork_dRngUniform(int method, RuaStream* stream, int n, double* r, double a, double b) {
  return draw(_ruadRngUniform, 1, b > a, true, method, stream, n, r, a, b);
}
ORK_OUTER int ork_sRngUniform(int method, RuaStream* stream, int n, float* r, float a, float b) {
  return draw(_ruasRngUniform, 1, b > a, true, method, stream, n, r, a, b);
}
ORK_OUTER int ork_dRngGaussian(int method, RuaStream* stream, int n, double* r, double a, double sigma) {
  return draw(_ruadRngGaussian, 3, sigma > 0, true, method, stream, n, r, a, sigma);
}
ORK_OUTER int ork_sRngGaussian(int method, RuaStream* stream, int n, float* r, float a, float sigma) {
  return draw(_ruasRngGaussian, 3, sigma > 0, true, method, stream, n, r, a, sigma);
}
ORK_OUTER int ork_dRngExponential(int method, RuaStream* stream, int n, double* r, double a, double beta) {
  return draw(_ruadRngExponential, 1, beta > 0, true, method, stream, n, r, a, beta);
}
ORK_OUTER int ork_sRngExponential(int method, RuaStream* stream, int n, float* r, float a, float beta) {
  return draw(_ruasRngExponential, 1, beta > 0, true, method, stream, n, r, a, beta);
}
ORK_OUTER int ork_dRngLaplace(int method, RuaStream* stream, int n, double* r, double a, double beta) {
  return draw(_ruadRngLaplace, 1, beta > 0, true, method, stream, n, r, a, beta);
}
ORK_OUTER int ork_sRngLaplace(int method, RuaStream* stream, int n, float* r, float a, float beta) {
  return draw(_ruasRngLaplace, 1, beta > 0, true, method, stream, n, r, a, beta);
}
ORK_OUTER int ork_dRngCauchy(int method, RuaStream* stream, int n, double* r, double a, double beta) {
  return draw(_ruadRngCauchy, 1, beta > 0, true, method, stream, n, r, a, beta);
}
ORK_OUTER int ork_sRngCauchy(int method, RuaStream* stream, int n, float* r, float a, float beta) {
  return draw(_ruasRngCauchy, 1, beta > 0, true, method, stream, n, r, a, beta);
}
ORK_OUTER int ork_dRngRayleigh(int method, RuaStream* stream, int n, double* r, double a, double beta) {
  return draw(_ruadRngRayleigh, 1, beta > 0, true, method, stream, n, r, a, beta);
}
ORK_OUTER int ork_sRngRayleigh(int method, RuaStream* stream, int n, float* r, float a, float beta) {
  return draw(_ruasRngRayleigh, 1, beta > 0, true, method, stream, n, r, a, beta);
}
ORK_OUTER int ork_dRngLognormal(int method, RuaStream* stream, int n, double* r, double a, double sigma,
                      double b, double beta) {
  return draw(_ruadRngLognormal, 2, sigma > 0 && beta > 0, true, method, stream, n, r, a, sigma, b, beta);
}
ORK_OUTER int ork_sRngLognormal(int method, RuaStream* stream, int n, float* r, float a, float sigma, float b,
                      float beta) {
  return draw(_ruasRngLognormal, 2, sigma > 0 && beta > 0, true, method, stream, n, r, a, sigma, b, beta);
}
ORK_OUTER int ork_dRngWeibull(int method, RuaStream* stream, int n, double* r, double alpha, double a,
                    double beta) {
  return draw(_ruadRngWeibull, 1, alpha > 0 && beta > 0, true, method, stream, n, r, alpha, a, beta);
}
ORK_OUTER int ork_sRngWeibull(int method, RuaStream* stream, int n, float* r, float alpha, float a,
                    float beta) {
  return draw(_ruasRngWeibull, 1, alpha > 0 && beta > 0, true, method, stream, n, r, alpha, a, beta);
}
ORK_OUTER int ork_dRngGumbel(int method, RuaStream* stream, int n, double* r, double a, double beta) {
  return draw(_ruadRngGumbel, 1, beta > 0, true, method, stream, n, r, a, beta);
}
ORK_OUTER int ork_sRngGumbel(int method, RuaStream* stream, int n, float* r, float a, float beta) {
  return draw(_ruasRngGumbel, 1, beta > 0, true, method, stream, n, r, a, beta);
}
ORK_OUTER int ork_dRngGamma(int method, RuaStream* stream, int n, double* r, double alpha, double a,
                  double beta) {
  return draw(_ruadRngGamma, 1, alpha > 0 && beta > 0, true, method, stream, n, r, alpha, a, beta);
}
ORK_OUTER int ork_sRngGamma(int method, RuaStream* stream, int n, float* r, float alpha, float a, float beta) {
  return draw(_ruasRngGamma, 1, alpha > 0 && beta > 0, true, method, stream, n, r, alpha, a, beta);
}
ORK_OUTER int ork_dRngBeta(int method, RuaStream* stream, int n, double* r, double p, double q, double a,
                 double beta) {
  return draw(_ruadRngBeta, 1, p > 0 && q > 0 && beta > 0, true, method, stream, n, r, p, q, a, beta);
}
ORK_OUTER int ork_sRngBeta(int method, RuaStream* stream, int n, float* r, float p, float q, float a,
                 float beta) {
  return draw(_ruasRngBeta, 1, p > 0 && q > 0 && beta > 0, true, method, stream, n, r, p, q, a, beta);
}
ORK_OUTER int ork_dRngGaussianMV(int method, RuaStream* stream, int n, double* r, int32_t dim,
                       int32_t mstorage, const double* a, const double* t) {
  const bool there = a != nullptr && t != nullptr;
  const bool valid = fits(n, dim) && dim > 0 && mstorage >= 0 && mstorage <= 2 && (!there || (all(dim, a, [](auto x) { return isfinite(x); })));
  return draw(_ruadRngGaussianMV, 3, valid, there, method, stream, n, r, dim, mstorage, a, t);
}
ORK_OUTER int ork_sRngGaussianMV(int method, RuaStream* stream, int n, float* r, int32_t dim,
                       int32_t mstorage, const float* a, const float* t) {
  const bool there = a != nullptr && t != nullptr;
  const bool valid = fits(n, dim) && dim > 0 && mstorage >= 0 && mstorage <= 2 && (!there || (all(dim, a, [](auto x) { return isfinite(x); })));
  return draw(_ruasRngGaussianMV, 3, valid, there, method, stream, n, r, dim, mstorage, a, t);
}
ORK_OUTER int ork_iRngUniform(int method, RuaStream* stream, int n, int32_t* r, int32_t a, int32_t b) {
  return draw(_ruaiRngUniform, 1, b > a, true, method, stream, n, r, a, b);
}
ORK_OUTER int ork_iRngUniformBits(int method, RuaStream* stream, int n, uint32_t* r) {
  return draw(_ruaiRngUniformBits, 1, true, true, method, stream, n, r);
}
ORK_OUTER int ork_iRngUniformBits32(int method, RuaStream* stream, int n, uint32_t* r) {
  return draw(_ruaiRngUniformBits32, 1, true, true, method, stream, n, r);
}
ORK_OUTER int ork_iRngUniformBits64(int method, RuaStream* stream, int n, uint64_t* r) {
  return draw(_ruaiRngUniformBits64, 1, true, true, method, stream, n, r);
}
ORK_OUTER int ork_iRngBernoulli(int method, RuaStream* stream, int n, int32_t* r, double p) {
  return draw(_ruaiRngBernoulli, 1, p >= 0 && p <= 1, true, method, stream, n, r, p);
}
ORK_OUTER int ork_iRngGeometric(int method, RuaStream* stream, int n, int32_t* r, double p) {
  return draw(_ruaiRngGeometric, 1, p > 0 && p < 1, true, method, stream, n, r, p);
}
ORK_OUTER int ork_iRngBinomial(int method, RuaStream* stream, int n, int32_t* r, int32_t ntrial, double p) {
  return draw(_ruaiRngBinomial, 1, ntrial >= 0 && p >= 0 && p <= 1, true, method, stream, n, r, ntrial, p);
}
ORK_OUTER int ork_iRngNegbinomial(int method, RuaStream* stream, int n, int32_t* r, double a, double p) {
  return draw(_ruaiRngNegbinomial, 1, a > 0 && p > 0 && p < 1, true, method, stream, n, r, a, p);
}
ORK_OUTER int ork_iRngHypergeometric(int method, RuaStream* stream, int n, int32_t* r, int32_t l, int32_t s,
                           int32_t m) {
  return draw(_ruaiRngHypergeometric, 1, l > 0 && s >= 0 && s <= l && m >= 0 && m <= l, true, method, stream, n, r, l, s, m);
}
ORK_OUTER int ork_iRngPoisson(int method, RuaStream* stream, int n, int32_t* r, double lambda) {
  return draw(_ruaiRngPoisson, 2, lambda > 0 && lambda <= 2e9, true, method, stream, n, r, lambda);
}
ORK_OUTER int ork_iRngPoissonV(int method, RuaStream* stream, int n, int32_t* r, const double* lambda) {
  const bool there = lambda != nullptr;
  const bool valid = true && (!there || (all(n, lambda, [](auto x) { return isfinite(x) && x > 0 && x <= 2e9; })));
  return draw(_ruaiRngPoissonV, 1, valid, there, method, stream, n, r, lambda);
}
