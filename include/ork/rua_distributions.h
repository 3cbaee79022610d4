/* Generated from rua/rua_kernel/service/distributions.txt by ./dev tables distributions; edit that.
 *
 * Random numbers of given distributions, drawn from a stream.
 *
 * Every function fills r[0..n-1] and returns 0 or a negative status of rua.h: whatever the
 * stream's generator gave, RUA_STATUS_NO_MEMORY where a function says so. A stream that fails
 * ends the call: outputs of whole blocks made before stay in r, the rest of r is undefined.
 * Parameters are the caller's to check; what each must meet stands beside it, as does the
 * number of its chunk. n below 1 writes nothing.
 *
 * Which uniform number feeds which output is fixed for each function: the same stream state
 * gives the same numbers. The d functions work in double with vector kernels of level EP, the
 * s functions in single precision with level LA. Uniform numbers at the ends of their range
 * give large finite numbers (for Cauchy, the tangent of the ends). The thread's error mode
 * and error callback are as they were when a function returns; its denormal handling becomes
 * KEEP, which is what no handling means, if it had none.
 */
#ifndef ORK_RUA_DISTRIBUTIONS_H
#define ORK_RUA_DISTRIBUTIONS_H

#include "ork/rua.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Added to the method of Uniform: results are kept within the bounds. */
#define RUA_METHOD_ACCURATE 0x40000000

/* ---- Continuous distributions by transformation -------------------------------------------- *
 * `method` is read by Uniform, Gaussian and Lognormal only. u is a uniform number from 0 to 1,
 * one for each output unless said otherwise. */

/* From a to b, as the generator scales it; rounding may reach b and, without
 * RUA_METHOD_ACCURATE, pass it. The only function that hands n on to the generator even if it
 * is below 1. Range: b > a. */
int32_t _ruadRngUniform(int32_t method, RuaStream* stream, int32_t n, double* r, double a,
                        double b);
int32_t _ruasRngUniform(int32_t method, RuaStream* stream, int32_t n, float* r, float a, float b);

/* Methods of Gaussian. */
enum {
  RUA_GAUSSIAN_BOXMULLER = 0,  /* two uniform numbers each: sqrt(-2 ln u1) sin(2 pi u2) */
  RUA_GAUSSIAN_BOXMULLER2 = 1, /* two numbers of each pair: the sine one, the cosine one */
  RUA_GAUSSIAN_ICDF = 2        /* one uniform number each: sqrt(2) erfinv(u) */
};

/* Mean a, standard deviation sigma (Box, Muller 1958). Half a pair that BOXMULLER2 has not used
 * stays with the stream, in chunk 2 (d) or 1 (s), and is the first output of the next call, so
 * that calls in pieces give the numbers of one long call, to the bit; a copied or saved stream
 * keeps it, and a failed call leaves it. NO_MEMORY: that chunk could not be made;
 * BAD_GENERATOR: it is shorter than a pair, and nothing is drawn. Range: sigma > 0. */
int32_t _ruadRngGaussian(int32_t method, RuaStream* stream, int32_t n, double* r, double a,
                         double sigma);
int32_t _ruasRngGaussian(int32_t method, RuaStream* stream, int32_t n, float* r, float a,
                         float sigma);

/* a - beta ln(u), never below a. Range: beta > 0. */
int32_t _ruadRngExponential(int32_t method, RuaStream* stream, int32_t n, double* r, double a,
                            double beta);
int32_t _ruasRngExponential(int32_t method, RuaStream* stream, int32_t n, float* r, float a,
                            float beta);

/* a + beta ln(u1) if u2 is above 1/2, else a - beta ln(u1): two uniform numbers each. Range:
 * beta > 0. */
int32_t _ruadRngLaplace(int32_t method, RuaStream* stream, int32_t n, double* r, double a,
                        double beta);
int32_t _ruasRngLaplace(int32_t method, RuaStream* stream, int32_t n, float* r, float a,
                        float beta);

/* a + beta tan(v), v uniform from -pi/2 to pi/2. Range: beta > 0. */
int32_t _ruadRngCauchy(int32_t method, RuaStream* stream, int32_t n, double* r, double a,
                       double beta);
int32_t _ruasRngCauchy(int32_t method, RuaStream* stream, int32_t n, float* r, float a, float beta);

/* a + beta sqrt(-ln(u)), never below a. Range: beta > 0. */
int32_t _ruadRngRayleigh(int32_t method, RuaStream* stream, int32_t n, double* r, double a,
                         double beta);
int32_t _ruasRngRayleigh(int32_t method, RuaStream* stream, int32_t n, float* r, float a,
                         float beta);

/* Methods of Lognormal. */
enum {
  RUA_LOGNORMAL_BOXMULLER2 = 0,
  RUA_LOGNORMAL_ICDF = 1  /* the kernels take any other value as this */
};

/* b + beta exp(g), g Gaussian of mean a and standard deviation sigma; never below b. Range:
 * sigma > 0, beta > 0. */
int32_t _ruadRngLognormal(int32_t method, RuaStream* stream, int32_t n, double* r, double a,
                          double sigma, double b, double beta);
int32_t _ruasRngLognormal(int32_t method, RuaStream* stream, int32_t n, float* r, float a,
                          float sigma, float b, float beta);

/* a + beta (-ln(u))^(1/alpha), never below a. Range: alpha > 0, beta > 0. */
int32_t _ruadRngWeibull(int32_t method, RuaStream* stream, int32_t n, double* r, double alpha,
                        double a, double beta);
int32_t _ruasRngWeibull(int32_t method, RuaStream* stream, int32_t n, float* r, float alpha,
                        float a, float beta);

/* a + beta ln(e), e exponential of scale 1. Range: beta > 0. */
int32_t _ruadRngGumbel(int32_t method, RuaStream* stream, int32_t n, double* r, double a,
                       double beta);
int32_t _ruasRngGumbel(int32_t method, RuaStream* stream, int32_t n, float* r, float a, float beta);

#ifdef __cplusplus
}
#endif

#endif
