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

/* From a to b, as the generator scales it; rounding may reach b and, without
 * RUA_METHOD_ACCURATE, pass it. The only function that hands n on to the generator even if it
 * is below 1. Range: b > a. */
int ork_dRngUniform(int method, RuaStream* stream, int n, double* r, double a, double b);
int ork_sRngUniform(int method, RuaStream* stream, int n, float* r, float a, float b);

/* Mean a, standard deviation sigma (Box, Muller 1958). Half a pair that BOXMULLER2 has not used
 * stays with the stream, in chunk 2 (d) or 1 (s), and is the first output of the next call, so
 * that calls in pieces give the numbers of one long call, to the bit; a copied or saved stream
 * keeps it, and a failed call leaves it. NO_MEMORY: that chunk could not be made;
 * BAD_GENERATOR: it is shorter than a pair, and nothing is drawn. By ICDF a uniform number that
 * is an end of its range, where erfinv is infinite, counts as erfinv = 5.8635847487551676 (s
 * 3.832507) at 1 and as -0.7670519064056041 (s -1.0837466) at -1, which is no large number.
 * Ends come about once in 2^32 numbers (s 2^26). Range: sigma > 0. */
int ork_dRngGaussian(int method, RuaStream* stream, int n, double* r, double a, double sigma);
int ork_sRngGaussian(int method, RuaStream* stream, int n, float* r, float a, float sigma);

/* a - beta ln(u), never below a. Range: beta > 0. */
int ork_dRngExponential(int method, RuaStream* stream, int n, double* r, double a, double beta);
int ork_sRngExponential(int method, RuaStream* stream, int n, float* r, float a, float beta);

/* a + beta ln(u1) if u2 is above 1/2, else a - beta ln(u1): two uniform numbers each. Range:
 * beta > 0. */
int ork_dRngLaplace(int method, RuaStream* stream, int n, double* r, double a, double beta);
int ork_sRngLaplace(int method, RuaStream* stream, int n, float* r, float a, float beta);

/* a + beta tan(v), v uniform from -pi/2 to pi/2. Range: beta > 0. */
int ork_dRngCauchy(int method, RuaStream* stream, int n, double* r, double a, double beta);
int ork_sRngCauchy(int method, RuaStream* stream, int n, float* r, float a, float beta);

/* a + beta sqrt(-ln(u)), never below a. Range: beta > 0. */
int ork_dRngRayleigh(int method, RuaStream* stream, int n, double* r, double a, double beta);
int ork_sRngRayleigh(int method, RuaStream* stream, int n, float* r, float a, float beta);

/* b + beta exp(g), g Gaussian of mean a and standard deviation sigma; never below b. Range:
 * sigma > 0, beta > 0. */
int ork_dRngLognormal(int method, RuaStream* stream, int n, double* r, double a, double sigma,
                      double b, double beta);
int ork_sRngLognormal(int method, RuaStream* stream, int n, float* r, float a, float sigma, float b,
                      float beta);

/* a + beta (-ln(u))^(1/alpha), never below a. Range: alpha > 0, beta > 0. */
int ork_dRngWeibull(int method, RuaStream* stream, int n, double* r, double alpha, double a,
                    double beta);
int ork_sRngWeibull(int method, RuaStream* stream, int n, float* r, float alpha, float a,
                    float beta);

/* a + beta ln(e), e exponential of scale 1. Range: beta > 0. */
int ork_dRngGumbel(int method, RuaStream* stream, int n, double* r, double a, double beta);
int ork_sRngGumbel(int method, RuaStream* stream, int n, float* r, float a, float beta);

/* a + beta x, never below a, x gamma of shape alpha. Above shape 1 by a Gaussian number's cube
 * (Marsaglia, Tsang 2000): a candidate that a call has no use for stays with the stream, in
 * chunk 7 (d) or 8 (s), and is the first of the next call with such a shape; a copied or saved
 * stream keeps it, a failed call loses it. At 1 the exponential distribution; from 0.6 on a
 * Weibull envelope (Vaduva 1977), below an envelope of x^alpha. After a failure what r holds is
 * not yet scaled. NO_MEMORY: the chunk could not be made; BAD_GENERATOR: it is shorter than a
 * candidate. Range: alpha > 0, beta > 0. */
int ork_dRngGamma(int method, RuaStream* stream, int n, double* r, double alpha, double a,
                  double beta);
int ork_sRngGamma(int method, RuaStream* stream, int n, float* r, float alpha, float a, float beta);

/* a + beta x, from a to a + beta, x beta of shapes p and q. Two shapes above 1: Cheng 1978; one
 * or both below: Atkinson, Whittaker 1976; both small: Johnk 1964; one of them 1: a power of a
 * uniform number. The law suffers where the type has no room for it: p + q below 0.015 (s:
 * 0.15), and for s above 3e4. After a failure what r holds is not yet scaled. Range: p > 0, q >
 * 0, beta > 0. */
int ork_dRngBeta(int method, RuaStream* stream, int n, double* r, double p, double q, double a,
                 double beta);
int ork_sRngBeta(int method, RuaStream* stream, int n, float* r, float p, float q, float a,
                 float beta);

/* n vectors of dim coordinates, one after the other: a + T z with z from Gaussian by the same
 * method (coordinate j of vector i is number i dim + j), mean a, covariance T T'. t holds the
 * lower triangular factor T as mstorage says; its strict upper part is not read. dim 1 is
 * Gaussian itself with deviation t[0], whatever mstorage is. Range: dim > 0, mstorage >= 0,
 * mstorage <= 2. */
int ork_dRngGaussianMV(int method, RuaStream* stream, int n, double* r, int32_t dim,
                       int32_t mstorage, const double* a, const double* t);
int ork_sRngGaussianMV(int method, RuaStream* stream, int n, float* r, int32_t dim,
                       int32_t mstorage, const float* a, const float* t);

/* From a to b - 1: floors of uniform numbers in double. Where b - a is not a power of two,
 * values differ in probability by one step of the generator. A generator whose number can round
 * to 1 reaches b. Range: b > a. */
int ork_iRngUniform(int method, RuaStream* stream, int n, int32_t* r, int32_t a, int32_t b);

/* What the generator emits, n items of the wordSize bytes of its properties each; their meaning
 * is the generator's own. */
int ork_iRngUniformBits(int method, RuaStream* stream, int n, uint32_t* r);

/* Words uniform in all their bits: those of MT19937, MT2203, SFMT19937 and the non-
 * deterministic generator, and bits 27 to 58 of the numbers of MCG59. NO_BITS_FORM: another
 * generator, which stays where it is. */
int ork_iRngUniformBits32(int method, RuaStream* stream, int n, uint32_t* r);

/* Two words of UniformBits32 each, the low one first, with the same statuses. */
int ork_iRngUniformBits64(int method, RuaStream* stream, int n, uint64_t* r);

/* 1 with probability p, else 0: whether a uniform number is below p, both in single precision.
 * Range: p >= 0, p <= 1. */
int ork_iRngBernoulli(int method, RuaStream* stream, int n, int32_t* r, double p);

/* Failures before the first success of probability p: floor(ln(u) / ln(1 - p)) in single
 * precision. So values beyond 2^24 are multiples of powers of two, and those that a small p
 * leads beyond int32_t come as INT32_MIN. Range: p > 0, p < 1. */
int ork_iRngGeometric(int method, RuaStream* stream, int n, int32_t* r, double p);

/* Successes among ntrial trials of probability p, from 0 to ntrial. While ntrial min(p, 1 - p)
 * is below 30 by a table of sums of probabilities, a double uniform number each; from there on
 * by rejection, pairs of single ones (Kachitvichyanukul, Schmeiser 1988: BTPE). For p of 1/2
 * and above failures are drawn; after a failed draw r holds their numbers. Set-ups stay with
 * the stream, in chunk 5, until ntrial or p changes. NO_MEMORY: the chunk could not be made;
 * BAD_GENERATOR: it is too short. Range: ntrial >= 0, p >= 0, p <= 1. */
int ork_iRngBinomial(int method, RuaStream* stream, int n, int32_t* r, int32_t ntrial, double p);

/* Failures before the a-th success of probability p, 0 and above: k has the probability Gamma(a
 * + k) / (Gamma(a) k!) p^a (1 - p)^k, a not necessarily an integer. Mean m = a (1 - p) / p,
 * variance m / p. By sums of probabilities and one uniform number in double for each output
 * where (a - 1)(1 - p) / p is below 100, and in shapes to about 2; else by rejection below a
 * hat of five regions in single precision, so that above 2^24 values are multiples of powers of
 * two. What a and p lead to stays with the stream, in chunk 4. Values beyond int32_t come as
 * INT32_MAX by sums, and not at all by rejection. BAD_ARGUMENT: m + 2 sqrt(m / p) is beyond
 * int32_t, or no number; nothing is drawn. NO_MEMORY: the chunk could not be made;
 * BAD_GENERATOR: it is too short. Range: a > 0, p > 0, p < 1. */
int ork_iRngNegbinomial(int method, RuaStream* stream, int n, int32_t* r, double a, double p);

/* Marked items among s drawn without replacement from a lot of l, m of which are marked; from
 * max(0, s + m - l) to min(s, m), without a draw where these are one value. Of the smaller part
 * of the lot and the smaller part of the sample, a mode up to 39 by a table of sums of
 * probabilities, a double uniform number each; above by rejection, pairs of single ones
 * (Kachitvichyanukul, Schmeiser 1985: H2PE). After a failed draw r holds numbers of the smaller
 * parts. Set-ups stay with the stream, in chunk 6, until a parameter changes, which replaces
 * the chunk; a table takes 48 bytes and 8 for each value but the first, at most 2.4 MB.
 * NO_MEMORY: the chunk could not be made; BAD_GENERATOR: it is too short. Range: l > 0, s >= 0,
 * s <= l, m >= 0, m <= l. */
int ork_iRngHypergeometric(int method, RuaStream* stream, int n, int32_t* r, int32_t l, int32_t s,
                           int32_t m);

/* PTPE: below a mean of 27 a search in sums of probabilities, in double; from there on a
 * triangle, parallelograms and exponential tails with pairs of numbers in single precision
 * (Kachitvichyanukul, Schmeiser 1981). The set-up of the last mean stays with the stream, in
 * chunk 3. Calls in pieces give the numbers of one long call below 27 only, since a round of
 * pairs is as long as outputs are missing. NO_MEMORY: the chunk could not be made;
 * BAD_GENERATOR: it is too short. POISNORM: below a mean of 1 a uniform number, at most 11;
 * from there on a polynomial in a normal number, by ICDF, in single precision: results beyond
 * 2^24 are multiples of powers of two. By either method the last digits of single precision
 * begin to show in the law above 1e7 (docs/distributions.md). Range: lambda > 0, lambda <= 2e9. */
int ork_iRngPoisson(int method, RuaStream* stream, int n, int32_t* r, double lambda);

/* A mean for each output: a polynomial in a normal number by ICDF, always one each, and below a
 * mean of 1/16 sums of probabilities. In double but for that number. The law is within 6e-4 of
 * Poisson's. Range: lambda[i] > 0, lambda[i] <= 2e9. */
int ork_iRngPoissonV(int method, RuaStream* stream, int n, int32_t* r, const double* lambda);


#ifdef __cplusplus
}
#endif

#endif
