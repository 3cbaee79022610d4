/* The library by its front door: functions that check what they are given.
 *
 * Link ork::ork_front (CMake) or what `pkg-config --libs ork` says; every other header of the
 * library serves beside this one. All functions return 0 or a status of their domain; a call
 * with bad arguments writes nothing. Memory is the caller's unless a comment says otherwise.
 */
#ifndef ORK_FRONT_H
#define ORK_FRONT_H

#include <stdint.h>

#include "ork/df.h"
#include "ork/front_distributions.h"
#include "ork/front_elementwise.h"
#include "ork/front_tasks.h"
#include "ork/rua_distributions.h"
#include "ork/ss.h"
#include "ork/threader.h"
#include "ork/version.h"
#include "ork/zem_kernels.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Elementwise functions ---------------------------------------------------------------
 *
 * ork_dExp(n, a, r) and the others of front_elementwise.h: r[i] = exp(a[i]) for the n elements,
 * at the accuracy of the thread's mode word (zem.h; high accuracy unless set otherwise, and
 * where the word names none). Forms:
 *
 *   (n, a, r)                  most
 *   (n, a, b, r)               Add Sub Mul MulByConj Div Pow Hypot Atan2; Powx with one value b
 *   (n, a, r, r2)              SinCos: sine, cosine; Modf: integer part, fraction
 *   (n, a, b, scale_a, shift_a, scale_b, shift_b, r)
 *                              LinearFrac: (scale_a a + shift_a) / (scale_b b + shift_b)
 *   PackI, PackM, PackV        gather from a by stride, where mask[i] is not 0, by index[i]
 *   UnpackI, UnpackM, UnpackV  scatter to y likewise. n is the number of elements moved, for
 *                              the masked forms the length of the mask
 *
 * Complex arrays (c, z) are pairs of float or double; std::complex<float>* and float _Complex*, or
 * those of double, may be passed with a cast to float* or double*. n counts pairs. Abs and Arg
 * write one number for a pair, CIS reads one.
 *
 * Arrays need no alignment. An output may be an input itself; arrays may not overlap otherwise.
 * Indices and strides are not checked.
 *
 * Result: 0; or the status of the last element that raised one (1 domain, 2 singularity,
 * 3 overflow, 4 underflow: all elements have their values nevertheless); or, nothing having been
 * touched, -1 for n below 0 and -2 for a null array. n = 0 is fine, with null arrays too. The
 * same status stays in the thread's error status, which a call without events leaves alone.
 * Rejected calls go through the error dispatch like an element's event, with the argument's
 * number (n is 1) as index for -1.
 *
 * A long vector is cut into slices for several threads (see below). Bits of results, statuses,
 * reported indices, errno and floating-point flags are those of a whole call. Workers run under
 * the caller's error mode, denormal handling, rounding and callback, and go back to their own.
 * The callback runs on the thread that raises the event, for several events at once on several
 * threads; its changes to a worker's mode end with the slice. It may call these functions. A call
 * that is divided or rejected leaves ork_zem_kernel_SetInterfInputVectorPointer at null; other
 * calls do not touch it.
 *
 * The threads are those of ork_threader_parallel: threader.h tells what happens where the system
 * has none left (the program ends: ork_set_threads(1) avoids it) and in the child of a fork() (it
 * computes, on one thread). The library may be unloaded while they are idle. */

/* The greatest number of threads for one elementwise call of this process: 0, as at the start,
 * for what ork_threader_parallel says, 1 for none but the caller's, at most 128. Returns the
 * setting before; a negative number only asks. */
int ork_set_threads(int threads);

/* The least work that a slice is worth, in elements times cost per element (the figures of
 * ork_zem_kernel_<t><Function>_ctab, 0.3 to 0.8 cycles each); 100000 at the start. A vector of
 * less than two such slices stays whole. Returns the setting before; 0, a negative number or NaN
 * only asks. */
float ork_set_threshold(float work);

/* ---- Streams ------------------------------------------------------------------------------
 *
 * The functions of rua.h behind checks: RUA_STATUS_NULL_POINTER for a null stream, array or
 * file name. Streams take no lock: one thread at a time for each. */

/* A stream of generator `brng` (RUA_BRNG_...) from a seed of one word, in *stream, to be
 * released by ork_stream_delete. After any failure *stream is null. */
int ork_stream_new(RuaStream** stream, int32_t brng, uint32_t seed);

/* The same from a seed of n words, as many as the generator takes (rua.h), or, of a quasi-random
 * one, from a block with tables of the caller's own. BAD_ARGUMENT: n below 0, and what rua.h says
 * of such blocks. */
int ork_stream_new_words(RuaStream** stream, int32_t brng, int32_t n, const uint32_t* seed);

/* A quasi-random sequence of points with `dimension` components, RUA_BRNG_SOBOL (up to 40) or
 * RUA_BRNG_NIEDERR (up to 318), that starts with its first point; each draw is the next
 * component. BAD_ARGUMENT: dimension out of range. BAD_GENERATOR: another generator. After any
 * failure *stream is null. */
int ork_stream_new_points(RuaStream** stream, int32_t brng, int32_t dimension);

/* From here on only that component of the points. NO_LEAPFROG: there is no such component. */
int ork_stream_select(RuaStream* stream, int32_t component);

/* Releases *stream, which may be null, and sets it to null. */
int ork_stream_delete(RuaStream** stream);

/* A second stream in *copy that goes on as the first would; null after a failure. */
int ork_stream_copy(RuaStream** copy, const RuaStream* stream);

/* The stream goes on with elements k, k + nstreams, k + 2 nstreams ... of its sequence.
 * BAD_LEAPFROG_COUNT: nstreams below 1. BAD_ARGUMENT: k not from 0 to nstreams - 1.
 * NO_LEAPFROG: the generator cannot; of quasi-random points ork_stream_select takes one
 * component. */
int ork_stream_leapfrog(RuaStream* stream, int32_t k, int32_t nstreams);

/* Passes over n elements. NO_SKIPAHEAD: the generator cannot, or not by that n. */
int ork_stream_skip(RuaStream* stream, int64_t n);

/* A stream's whole state as a file, and a new stream from it (null after a failure). */
int ork_stream_save(const RuaStream* stream, const char* file);
int ork_stream_load(RuaStream** stream, const char* file);

/* Distributions: ork_dRngGaussian and the others of front_distributions.h. */

/* ---- Statistics --------------------------------------------------------------------------- */

/* Computations that have no estimate bit in ss.h: bits beside those, for ork_ss_compute alone. */
#define ORK_SS_REPAIRED_COR (1ull << 40)   /* paramCorrelation from cor, by SPECTRAL */
#define ORK_SS_IMPUTED_VALUES (1ull << 41) /* simulated and estimates, by IMPUTATION */
#define ORK_SS_ROBUST_COV (1ull << 42)     /* robustMean and robustCov, by TBS */
#define ORK_SS_OUTLIERS (1ull << 43)       /* outlierWeights, by BACON */

/* Computes the estimates (a mask of bits of ss.h and of those above) of a task made by
 * __ruadSSNewTask or __ruasSSNewTask, each by the method bits that serve it, in this order:
 * moments, sums and matrices; extremes; quantiles; deviations; pooled and group covariance;
 * outliers; robust covariance; partial covariance; repair; imputation. So partial covariance and
 * repair may start from a covariance or correlation of the same call. QUANTILES by STREAM or
 * STREAM_ADD are the streaming ones. threader null: one thread.
 *
 * Before anything is computed: NULL_TASK; BAD_METHOD for an estimate that no method bit serves;
 * then for each computation BAD_DIMENSION, BAD_OBSERVATION_COUNT, NULL_OBSERVATIONS, NULL_STORAGE,
 * and a number of quantile orders that is negative; then the status of the first array, storage
 * code or parameter that is null and needed, moments last. Numbers of a task with 64-bit integers
 * must fit 32 bits. From sums (FROM_SUMS), and by partial covariance and repair, no observations
 * are needed; streaming quantiles take n = 0, no new values. After that the first failing
 * computation's status: what ran before it stands. Whether an array is as long as these numbers
 * say cannot be checked. */
int ork_ss_compute(ork_ss_task* task, uint64_t estimates, uint64_t method,
                   const ork_threader* threader);

/* ---- Splines ------------------------------------------------------------------------------
 *
 * For tasks of front_tasks.h, which also has derivatives and cells, made by the d or the s
 * constructor and used with that letter: BAD_TYPE for the other. threader null: one thread.
 * Callbacks and data hints are for the entries of df.h, which take the same tasks. */

/* Fills the coefficients of the spline that the task names: order 2 linear, order 3 quadratic
 * (type 0 or ORK_DF_TYPE_SUBBOTIN), order 4 cubic by its type. Other orders have nothing to be
 * constructed: BAD_TYPE. */
int ork_dDFConstruct(ork_df_task* task, const ork_threader* threader);
int ork_sDFConstruct(ork_df_task* task, const ork_threader* threader);

/* Values of all functions at the sites: function f, site j at result[f * nsite + j]. siteHint: 0,
 * ORK_DF_SITES_SORTED, or ORK_DF_SITES_UNIFORM with the first and the last site in `site`.
 * NULL_TASK; BAD_NX: nsite below 0 or above 2^31 - 1, or more results than an array can hold;
 * BAD_X: site null; NULL_RESULT; BAD_XHINT: another siteHint; BAD_COEFFS or, for step splines,
 * BAD_Y where a row of coefficients or a function was never set. */
int ork_dDFInterpolate(const ork_df_task* task, int64_t nsite, const double* site, int64_t siteHint,
                       double* result, const ork_threader* threader);
int ork_sDFInterpolate(const ork_df_task* task, int64_t nsite, const float* site, int64_t siteHint,
                       float* result, const ork_threader* threader);

/* Integrals of all functions from left[j] to right[j]: function f, pair j at
 * result[f * nlim + j]. Statuses as above, BAD_X for either array of limits. */
int ork_dDFIntegrate(const ork_df_task* task, int64_t nlim, const double* left, const double* right,
                     double* result, const ork_threader* threader);
int ork_sDFIntegrate(const ork_df_task* task, int64_t nlim, const float* left, const float* right,
                     float* result, const ork_threader* threader);

#ifdef __cplusplus
}
#endif

#endif
