/* Data fitting in one dimension: splines through functions sampled on a partition.
 *
 * A task lends a partition x[0] <= ... <= x[nx - 1] and ny functions to the library. It is
 * edited to name a spline kind and the caller's coefficient storage; a construction entry
 * fills the coefficients; search, interpolation and integration then read them. The task
 * copies nothing but its settings: every array stays the caller's and must outlive its use.
 *
 * Letters: d is double, s is float; the twins do the same. Every function returns 0 or a
 * negative code below. Integers are 64 bits wide and their low 32 bits are used. A hint is
 * one of the listed values. Names of bits are their values: "bit 4" is the mask 4.
 *
 * A task takes no lock. Calls that only read a task may run side by side.
 */
#ifndef ORK_DF_H
#define ORK_DF_H

#include <stdint.h>

#include "ork/threader.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct ork_df_task ork_df_task;

/* Return codes. */
enum {
  ORK_DF_OK = 0,
  ORK_DF_NULL_TASK = -1000,
  ORK_DF_NO_MEMORY = -1001,
  ORK_DF_BAD_METHOD = -1002, /* method code, or quadratic type, not supported */
  ORK_DF_BAD_NX = -1004,     /* too few breakpoints */
  ORK_DF_BAD_X = -1005,      /* x is null */
  ORK_DF_BAD_XHINT = -1006,
  ORK_DF_BAD_NY = -1007,    /* ny not valid, or 0 where functions are needed */
  ORK_DF_BAD_Y = -1008,     /* y is null */
  ORK_DF_BAD_YHINT = -1009, /* not valid, or no separate functions to point at */
  ORK_DF_BAD_ORDER = -1010,
  ORK_DF_BAD_TYPE = -1011, /* type not valid, or nothing evaluates order and type */
  ORK_DF_BAD_IC = -1012,   /* internal condition does not fit the spline */
  ORK_DF_BAD_IC_VALUES = -1013,
  ORK_DF_BAD_BC = -1014, /* boundary condition does not fit the spline */
  ORK_DF_BAD_BC_VALUES = -1015,
  ORK_DF_BAD_COEFFS = -1016,
  ORK_DF_BAD_COEFF_HINT = -1017,
  ORK_DF_NOT_PERIODIC = -1018,     /* periodic, and y[0] != y[nx - 1] for some function */
  ORK_DF_BAD_CODE = -1019,         /* an editor or a query does not know the code */
  ORK_DF_BAD_INDEX = -1020,        /* function index out of range */
  ORK_DF_NOT_A_BREAKPOINT = -1022, /* look-up spline: a site is not a breakpoint */
  ORK_DF_LOOKUP_ONE_FLAG = -1024,  /* look-up spline: not exactly one derivative flag */
  ORK_DF_LOOKUP_VALUE = -1025,     /* look-up spline: the value is not asked for */
  ORK_DF_BAD_DATA_HINT = -1026,
  ORK_DF_BAD_RESULT_HINT = -1028,     /* interpolation */
  ORK_DF_BAD_INTEGRAL_LAYOUT = -1034, /* integration */
  ORK_DF_BAD_EXTENSION = -1036,
  ORK_DF_NULL_RESULT = -1037, /* out pointer of a query is null */
  ORK_DF_SOLVER_FAILED = -1500
};

/* xhint: what is known of the partition. */
enum {
  ORK_DF_X_UNKNOWN = 0,
  ORK_DF_X_NON_UNIFORM = 1,
  ORK_DF_X_QUASI_UNIFORM = 2, /* close to equal spacing */
  ORK_DF_X_UNIFORM = 4        /* x holds the two ends; step (x[1] - x[0]) / (nx - 1) */
};

/* yhint, coeffHint: how functions and coefficient rows lie in memory. */
enum {
  ORK_DF_ROWS_DEFAULT = 0, /* row f starts at y + f * nx */
  ORK_DF_ROWS = 16,        /* the same */
  ORK_DF_COLS = 32,        /* yhint only: function f of breakpoint i at y[i * ny + f] */
  ORK_DF_ROWS_APART = 128  /* row 0 given, the others set one by one by their index; a row that
                            * was never set: BAD_Y or BAD_COEFFS from what reads or fills it */
};

/* siteHint, limit hints. */
enum {
  ORK_DF_SITES_UNIFORM = 4, /* the array holds the first and the last site */
  ORK_DF_SITES_SORTED = 64  /* ascending */
};

/* resultHint of interpolation and of integration. */
enum {
  ORK_DF_RESULT_DEFAULT = 0,
  ORK_DF_RESULT_ROWS = 16,
  ORK_DF_RESULT_COLS = 32,
  ORK_DF_RESULT_ROWS_APART = 128
};

/* bcType is one of the values below, or an end of each side: 4 or 16 with 8 or 32. */
enum {
  ORK_DF_BC_NOT_SET = 0,
  ORK_DF_BC_NOT_A_KNOT = 1,
  ORK_DF_BC_FREE_END = 2,
  ORK_DF_BC_1ST_LEFT = 4,
  ORK_DF_BC_1ST_RIGHT = 8,
  ORK_DF_BC_2ND_LEFT = 16,
  ORK_DF_BC_2ND_RIGHT = 32,
  ORK_DF_BC_PERIODIC = 64,
  ORK_DF_BC_MIDDLE = 128 /* value of a quadratic spline at the middle of the first cell */
};

/* icType of the Subbotin spline: an explicit sub-grid, and that it is uniform. With bit 8
 * alone icValues is null (cell middles) or holds the nx + 1 points k_0 .. k_nx; with both
 * it holds k_1 and k_(nx - 1). */
enum { ORK_DF_IC_UNIFORM = 4, ORK_DF_IC_SUBGRID = 8 };

/* splineType, read together with splineOrder (values per cell). Orders 2 and above 4 take
 * any type; order 3 takes 0 and 1, order 4 takes 0 and 2 to 5, order 0 takes 6 to 8. */
enum {
  ORK_DF_TYPE_DEFAULT = 0,
  ORK_DF_TYPE_SUBBOTIN = 1,
  ORK_DF_TYPE_NATURAL = 2,
  ORK_DF_TYPE_HERMITE = 3,
  ORK_DF_TYPE_BESSEL = 4,
  ORK_DF_TYPE_AKIMA = 5,
  ORK_DF_TYPE_LOOKUP = 6,
  ORK_DF_TYPE_STEP_RIGHT = 7, /* continuous from the right */
  ORK_DF_TYPE_STEP_LEFT = 8   /* continuous from the left */
};

/* Codes of pointer editors and queries. */
enum {
  ORK_DF_PTR_X = 1,
  ORK_DF_PTR_Y = 2,
  ORK_DF_PTR_IC = 3,
  ORK_DF_PTR_BC = 4,
  ORK_DF_PTR_COEFFS = 5
};

/* Codes of value editors and queries, with the values that the editor accepts. */
enum {
  ORK_DF_VAL_NX = 14,         /* at least 2 */
  ORK_DF_VAL_XHINT = 15,      /* 0, 1, 2, 4 */
  ORK_DF_VAL_NY = 16,         /* at least 1 */
  ORK_DF_VAL_YHINT = 17,      /* 0, 16, 32, 128 */
  ORK_DF_VAL_ORDER = 18,      /* not negative */
  ORK_DF_VAL_TYPE = 19,       /* 0 to 5 */
  ORK_DF_VAL_IC = 20,         /* 0, 1, 2, or any value with bit 8 */
  ORK_DF_VAL_BC = 21,         /* not negative */
  ORK_DF_VAL_COEFF_HINT = 22, /* 0, 16, 32, 128 */
  ORK_DF_VAL_EXTENSION = 23   /* 0, 1; stored and returned only */
};

/* ---- Task ---------------------------------------------------------------------------- */

/* Makes a task. ny = 0 with y = null makes one for searches alone. widthFlag 0: integer
 * results of queries, cell arrays and derivative flags are 32 bits wide; else 64 bits.
 * After ORK_DF_NO_MEMORY *task may hold a task; delete it as usual. */
int ork_df_kernel_dNewTask1D(ork_df_task** task, int64_t nx, const double* x, int64_t xhint,
                             int64_t ny, const double* y, int64_t yhint, int32_t widthFlag);
int ork_df_kernel_sNewTask1D(ork_df_task** task, int64_t nx, const float* x, int64_t xhint,
                             int64_t ny, const float* y, int64_t yhint, int32_t widthFlag);

/* Releases what the task owns, and sets *task to null. */
int ork_df_kernel_DeleteTask(ork_df_task** task);

/* Names the spline. coeffs may be null (kept as it is); else ny rows of coefficients lie
 * splineOrder * (nx - 1) values apart (splineOrder * nx for splineType 1), or, with
 * coeffHint 128, coeffs is row 0. Fields stored before a failing check stay stored. */
int ork_df_kernel_dEditPPSpline1D(ork_df_task* task, int64_t splineOrder, int64_t splineType,
                                  int64_t bcType, const double* bcValues, int64_t icType,
                                  const double* icValues, double* coeffs, int64_t coeffHint);
int ork_df_kernel_sEditPPSpline1D(ork_df_task* task, int64_t splineOrder, int64_t splineType,
                                  int64_t bcType, const float* bcValues, int64_t icType,
                                  const float* icValues, float* coeffs, int64_t coeffHint);

/* Set one pointer, one value, or the row of one function (codes 2 and 5). After a change of
 * ny, yhint or coeffHint set y and the coefficients again. After a change of x or nx, setting
 * xhint to 1 rebuilds the table that cell search uses on non-uniform partitions; no other edit
 * does, but for a change from 4 to 0 or 2 when there is none. */
int ork_df_kernel_dEditPtr(ork_df_task* task, int64_t code, const double* pointer);
int ork_df_kernel_sEditPtr(ork_df_task* task, int64_t code, const float* pointer);
int ork_df_kernel_iEditVal(ork_df_task* task, int64_t code, int64_t value);
int ork_df_kernel_dEditIdxPtr(ork_df_task* task, int64_t code, int64_t index,
                              const double* pointer);
int ork_df_kernel_sEditIdxPtr(ork_df_task* task, int64_t code, int64_t index, const float* pointer);

/* Read the same. iQueryVal writes 32 bits, or 64 with a widthFlag other than 0. */
int ork_df_kernel_dQueryPtr(const ork_df_task* task, int64_t code, double** pointer);
int ork_df_kernel_sQueryPtr(const ork_df_task* task, int64_t code, float** pointer);
int ork_df_kernel_iQueryVal(const ork_df_task* task, int64_t code, void* value);
int ork_df_kernel_dQueryIdxPtr(const ork_df_task* task, int64_t code, int64_t index,
                               double** pointer);
int ork_df_kernel_sQueryIdxPtr(const ork_df_task* task, int64_t code, int64_t index,
                               float** pointer);

/* ---- Construction -------------------------------------------------------------------- */

/* Fill the task's coefficient rows. Function f gets a row of pieces, each of splineOrder
 * values c0, c1 .. in powers of s - x[i] for a site s: piece i is the cell x[i] .. x[i + 1],
 * for the Subbotin spline the surroundings of x[i] between two points of its sub-grid.
 *
 *   entry      least nx  spline
 *   Linear     2         straight cells; with ORK_DF_BC_PERIODIC the ends must agree
 *   Quadratic  2         splineType 0: continuous slope, bcType ORK_DF_BC_MIDDLE
 *                        splineType 1, Subbotin: continuous slope, joined at a sub-grid;
 *                        icType with ORK_DF_IC_SUBGRID, bcType one condition for each end
 *   Natural    3         continuous second derivative
 *   Default    3         second derivatives at x[1] .. x[nx - 2] from icValues
 *   Hermite    3         slopes at x[1] .. x[nx - 2] from icValues
 *   Bessel     4         slope of the parabola through three neighbouring points
 *   Akima      5         mean of the slopes on both sides, weighted by the bends beyond them;
 *                        also takes ORK_DF_BC_NOT_SET
 *
 * bcValues: [left, right] for one condition at each end; the value at the middle for
 * ORK_DF_BC_MIDDLE; for ORK_DF_BC_PERIODIC, Default and Hermite only, the second or first
 * derivative at both ends. All functions share icValues and bcValues. Periodic functions
 * must have y[0] == y[nx - 1].
 *
 * `format` is not read; `method` must be 0 for Linear and Natural and is not read by the
 * others. The threader table (null: one thread) serves Linear, Natural (from 300 breakpoints
 * and two functions on), Hermite, Bessel and Akima; the coefficients have the same bits on
 * any number of threads. Scratch is released before the return. After an error rows may be
 * partly written.
 *
 * Errors of the coefficients, relative to the largest: below 25 units of the precision on
 * cells of like length; those of the quadratic spline add up from cell to cell. On clustered
 * breakpoints natural splines with prescribed slopes keep to that, while other ends are as
 * sensitive as their conditions: with breakpoints i^2, i^4, i^8 up to 30, 140, 1700 units
 * were found for free ends and 140, 2200, 19000 under not-a-knot. Taken as c_k h^k, beside the
 * largest of their own piece, errors stay below 20, 130, 410 units there. */
typedef int ork_df_construct(ork_df_task* task, int64_t format, int64_t method,
                             const ork_threader* threader);
ork_df_construct ork_df_kernel_dDFLinearSpline1D, ork_df_kernel_sDFLinearSpline1D;
ork_df_construct ork_df_kernel_dDFQuadraticSpline1D, ork_df_kernel_sDFQuadraticSpline1D;
ork_df_construct ork_df_kernel_dDFNaturalCubicSpline1D, ork_df_kernel_sDFNaturalCubicSpline1D;
ork_df_construct ork_df_kernel_dDFDefaultCubicSpline1D, ork_df_kernel_sDFDefaultCubicSpline1D;
ork_df_construct ork_df_kernel_dDFHermiteCubicSpline1D, ork_df_kernel_sDFHermiteCubicSpline1D;
ork_df_construct ork_df_kernel_dDFBesselCubicSpline1D, ork_df_kernel_sDFBesselCubicSpline1D;
ork_df_construct ork_df_kernel_dDFAkimaCubicSpline1D, ork_df_kernel_sDFAkimaCubicSpline1D;

/* ---- Cell search --------------------------------------------------------------------- */

/* The cell of a site is the number of breakpoints at or below it: 0 left of x[0], nx at or
 * right of x[nx - 1], 0 for NaN. On a quasi-uniform partition a site on the very breakpoint
 * that the equal-spacing guess names may get the cell left of it.
 *
 * The caller's own search: receives *n sites and fills n cells and n flags, both preset to 0.
 * A negative status ends the call with that status; 1000 says that all cells are final; with
 * any other status a cell whose flag is 0 is a guess, which the library corrects. */
typedef int32_t ork_df_search_d(const int64_t* n, const double* sites, int64_t* cells,
                                int32_t* flags, void* params);
typedef int32_t ork_df_search_s(const int64_t* n, const float* sites, int64_t* cells,
                                int32_t* flags, void* params);

/* Finds the cells of nsite sites. dataHint is null or an array: element 1 is 0 for no hint, 1
 * for sites close to one breakpoint, whose index is element 4. With ORK_DF_SITES_SORTED the
 * sites must ascend; otherwise cells depend on the number of threads.
 *
 * Cells are 32-bit integers. With a searchCallback they are 64-bit integers when the task's
 * widthFlag is not 0. Returns 0, a negative code, or the last status of the callback. `code`
 * is not read. Callbacks run on the calling thread. */
int ork_df_kernel_dDFSearch1D(const ork_df_task* task, int64_t code, int64_t nsite,
                              const double* site, int64_t siteHint, const double* dataHint,
                              void* cell, ork_df_search_d* searchCallback, void* searchParams,
                              const ork_threader* threader);
int ork_df_kernel_sDFSearch1D(const ork_df_task* task, int64_t code, int64_t nsite,
                              const float* site, int64_t siteHint, const float* dataHint,
                              void* cell, ork_df_search_s* searchCallback, void* searchParams,
                              const ork_threader* threader);

/* One method on the calling thread. `state` is read and written by the sorted search only:
 * the current cell, 0 at the start. `scale`: uniform and user-defined on a uniform partition
 * 1 / step; quasi-uniform (nx - 1) / (x[nx - 1] - x[0]); peak the peak's position; hybrid the
 * reciprocal of the bucket width, with `buckets` pairs (lo, hi) of breakpoint indices that
 * bracket the sites of each bucket. Cells are 32-bit; 64-bit for the user-defined methods
 * when widthFlag is not 0. `flags` is room for 128 flags of those methods, or null. The
 * twins with suffix 32 are the same. */
typedef int ork_df_simple_search_d(int64_t nx, const double* x, int64_t nsite, const double* site,
                                   int64_t* state, double scale, const double* dataHint,
                                   int64_t bucketCount, const int32_t* buckets, void* cell,
                                   int32_t widthFlag, ork_df_search_d* searchCallback,
                                   void* searchParams, int32_t* flags);
typedef int ork_df_simple_search_s(int64_t nx, const float* x, int64_t nsite, const float* site,
                                   int64_t* state, float scale, const float* dataHint,
                                   int64_t bucketCount, const int32_t* buckets, void* cell,
                                   int32_t widthFlag, ork_df_search_s* searchCallback,
                                   void* searchParams, int32_t* flags);
ork_df_simple_search_d ork_df_kernel_dDFUniformSearch1D, ork_df_kernel_dDFUniformSearch1D32;
ork_df_simple_search_d ork_df_kernel_dDFQuasiUniformSearch1D,
    ork_df_kernel_dDFQuasiUniformSearch1D32;
ork_df_simple_search_d ork_df_kernel_dDFSortedSearch1D, ork_df_kernel_dDFSortedSearch1D32;
ork_df_simple_search_d ork_df_kernel_dDFPeakSearch1D, ork_df_kernel_dDFPeakSearch1D32;
ork_df_simple_search_d ork_df_kernel_dDFHybridSearch1D, ork_df_kernel_dDFHybridSearch1D32;
ork_df_simple_search_d ork_df_kernel_dDFUserDefSearch1D, ork_df_kernel_dDFUserDefSearch1D32;
ork_df_simple_search_d ork_df_kernel_dDFUniUserDefSearch1D, ork_df_kernel_dDFUniUserDefSearch1D32;
ork_df_simple_search_s ork_df_kernel_sDFUniformSearch1D, ork_df_kernel_sDFUniformSearch1D32;
ork_df_simple_search_s ork_df_kernel_sDFQuasiUniformSearch1D,
    ork_df_kernel_sDFQuasiUniformSearch1D32;
ork_df_simple_search_s ork_df_kernel_sDFSortedSearch1D, ork_df_kernel_sDFSortedSearch1D32;
ork_df_simple_search_s ork_df_kernel_sDFPeakSearch1D, ork_df_kernel_sDFPeakSearch1D32;
ork_df_simple_search_s ork_df_kernel_sDFHybridSearch1D, ork_df_kernel_sDFHybridSearch1D32;
ork_df_simple_search_s ork_df_kernel_sDFUserDefSearch1D, ork_df_kernel_sDFUserDefSearch1D32;
ork_df_simple_search_s ork_df_kernel_sDFUniUserDefSearch1D, ork_df_kernel_sDFUniUserDefSearch1D32;

/* ---- Interpolation ------------------------------------------------------------------- */

/* Evaluates in the caller's place: n pieces (counted from 0) and n sites in, results out as
 * [function][site][requested order], preset to 0. A negative status ends the work. */
typedef int32_t ork_df_interp_d(const int64_t* n, const int64_t* pieces, const double* sites,
                                double* results, void* params);
typedef int32_t ork_df_interp_s(const int64_t* n, const int64_t* pieces, const float* sites,
                                float* results, void* params);

/* Values and derivatives of all functions at nsite sites.
 *
 * type: bit 2 stores the cells of the sites in `cell`; the value 4 takes them from there and
 * searches nothing. Cells are 32 bits wide, 64 with a widthFlag other than 0, and so are the
 * nDerivFlags entries of derivFlags: entry k is 1 to ask for the derivative of order k. Count
 * is their sum; with none set the value is asked for. Orders that a spline does not have are
 * 0. `method` is not read.
 *
 * resultHint 0, 32: function f, site j, k-th requested order at (f * count + k) * nsite + j;
 *            16, 128: at (f * nsite + j) * count + k.
 *
 * Sites beyond the ends belong to the callback of their side, or else to the end piece,
 * extended; sites inside to the interior callback, or else to the spline. A site on the right
 * end counts as inside, but as right when it comes alone on the short road of one site and
 * one function, or when the sorted search is at work (ORK_DF_SITES_SORTED, neither a uniform
 * nor a quasi-uniform partition, no searchCallback). With more than 512 sites callbacks, searches
 * among them, may run on several threads at once. Step splines (order 0) give values, other
 * outputs of theirs are 0; a look-up spline takes no other request than the value. Returns 0 or a
 * negative code, and for a single site the status of its callback. */
int ork_df_kernel_dDFInterpolate1D(const ork_df_task* task, int64_t type, int64_t method,
                                   int64_t nsite, const double* site, int64_t siteHint,
                                   int64_t nDerivFlags, const void* derivFlags,
                                   const double* dataHint, double* result, int64_t resultHint,
                                   void* cell, ork_df_interp_d* leftCallback, void* leftParams,
                                   ork_df_interp_d* rightCallback, void* rightParams,
                                   ork_df_interp_d* interiorCallback, void* interiorParams,
                                   ork_df_search_d* searchCallback, void* searchParams,
                                   const ork_threader* threader);
int ork_df_kernel_sDFInterpolate1D(const ork_df_task* task, int64_t type, int64_t method,
                                   int64_t nsite, const float* site, int64_t siteHint,
                                   int64_t nDerivFlags, const void* derivFlags,
                                   const float* dataHint, float* result, int64_t resultHint,
                                   void* cell, ork_df_interp_s* leftCallback, void* leftParams,
                                   ork_df_interp_s* rightCallback, void* rightParams,
                                   ork_df_interp_s* interiorCallback, void* interiorParams,
                                   ork_df_search_s* searchCallback, void* searchParams,
                                   const ork_threader* threader);

/* The road of one site and one function of a double task. splineIndex: 0 linear, 1 quadratic,
 * 2 cubic. searchKind: 0 uniform, 1 quasi-uniform, else the bucket table. Flags, at most the
 * first 4 read, are 64 bits wide when bit 0 of the task's widthFlag is set. */
int _Interp1DKernel_scalar(const ork_df_task* task, int splineIndex, int searchKind, double site,
                           int64_t nDerivFlags, const void* derivFlags, double* result,
                           ork_df_interp_d* leftCallback, void* leftParams,
                           ork_df_interp_d* rightCallback, void* rightParams,
                           ork_df_interp_d* interiorCallback, void* interiorParams);

/* Evaluators of one function at n sites with known 32-bit cells. step is that of a uniform
 * partition. results: [site][requested order]; with a position array, site j goes to place
 * positions[j]. flags4 holds the flags of orders 0 to 3; derivFlags all of them, of the width
 * that widthFlag says. The forms with suffix CB serve all functions: function f starts
 * reserved * count values after function f - 1 (64 * count when reserved is 0), and a
 * callback, if not null, evaluates in their place. */
typedef int ork_df_eval_d(int64_t nx, const double* x, int64_t xhint, double step,
                          const double* icValues, int64_t icType, int64_t n, const double* sites,
                          double* const* y, int64_t ny, int64_t function, int64_t yhint,
                          int64_t splineOrder, double* const* coeffs, const int32_t* cells,
                          int32_t widthFlag, const int32_t* positions, double* results,
                          int64_t reserved, int64_t nDerivFlags, const void* derivFlags,
                          int64_t count, const int32_t* flags4);
typedef int ork_df_eval_cb_d(int64_t nx, const double* x, int64_t xhint, double step,
                             const double* icValues, int64_t icType, int64_t n, const double* sites,
                             double* const* y, int64_t ny, int64_t function, int64_t yhint,
                             int64_t splineOrder, double* const* coeffs, const int32_t* cells,
                             int32_t widthFlag, const int32_t* positions, double* results,
                             int64_t reserved, int64_t nDerivFlags, const void* derivFlags,
                             int64_t count, const int32_t* flags4, ork_df_interp_d* callback,
                             void* params);
typedef int ork_df_eval_s(int64_t nx, const float* x, int64_t xhint, float step,
                          const float* icValues, int64_t icType, int64_t n, const float* sites,
                          float* const* y, int64_t ny, int64_t function, int64_t yhint,
                          int64_t splineOrder, float* const* coeffs, const int32_t* cells,
                          int32_t widthFlag, const int32_t* positions, float* results,
                          int64_t reserved, int64_t nDerivFlags, const void* derivFlags,
                          int64_t count, const int32_t* flags4);
typedef int ork_df_eval_cb_s(int64_t nx, const float* x, int64_t xhint, float step,
                             const float* icValues, int64_t icType, int64_t n, const float* sites,
                             float* const* y, int64_t ny, int64_t function, int64_t yhint,
                             int64_t splineOrder, float* const* coeffs, const int32_t* cells,
                             int32_t widthFlag, const int32_t* positions, float* results,
                             int64_t reserved, int64_t nDerivFlags, const void* derivFlags,
                             int64_t count, const int32_t* flags4, ork_df_interp_s* callback,
                             void* params);
ork_df_eval_d ork_df_kernel_d_LinearSplineEval32;
ork_df_eval_cb_d ork_df_kernel_d_LinearSplineEval32CB;
ork_df_eval_d ork_df_kernel_d_QuadraticSplineEval32;
ork_df_eval_cb_d ork_df_kernel_d_QuadraticSplineEval32CB;
ork_df_eval_d ork_df_kernel_d_CubicSplineEval32;
ork_df_eval_cb_d ork_df_kernel_d_CubicSplineEval32CB;
ork_df_eval_d ork_df_kernel_d_QuadSubbSplineEval32;
ork_df_eval_cb_d ork_df_kernel_d_QuadSubbSplineEval32CB;
ork_df_eval_d ork_df_kernel_d_ArbitrSplineEval32;
ork_df_eval_cb_d ork_df_kernel_d_ArbitrSplineEval32CB;
ork_df_eval_d ork_df_kernel_d_StepLeftSplineEval32;
ork_df_eval_cb_d ork_df_kernel_d_StepLeftSplineEval32CB;
ork_df_eval_d ork_df_kernel_d_StepRightSplineEval32;
ork_df_eval_cb_d ork_df_kernel_d_StepRightSplineEval32CB;
ork_df_eval_d ork_df_kernel_d_LookUpSplineEval32;
ork_df_eval_cb_d ork_df_kernel_d_LookUpSplineEval32CB;
ork_df_eval_s ork_df_kernel_s_LinearSplineEval32;
ork_df_eval_cb_s ork_df_kernel_s_LinearSplineEval32CB;
ork_df_eval_s ork_df_kernel_s_QuadraticSplineEval32;
ork_df_eval_cb_s ork_df_kernel_s_QuadraticSplineEval32CB;
ork_df_eval_s ork_df_kernel_s_CubicSplineEval32;
ork_df_eval_cb_s ork_df_kernel_s_CubicSplineEval32CB;
ork_df_eval_s ork_df_kernel_s_QuadSubbSplineEval32;
ork_df_eval_cb_s ork_df_kernel_s_QuadSubbSplineEval32CB;
ork_df_eval_s ork_df_kernel_s_ArbitrSplineEval32;
ork_df_eval_cb_s ork_df_kernel_s_ArbitrSplineEval32CB;
ork_df_eval_s ork_df_kernel_s_StepLeftSplineEval32;
ork_df_eval_cb_s ork_df_kernel_s_StepLeftSplineEval32CB;
ork_df_eval_s ork_df_kernel_s_StepRightSplineEval32;
ork_df_eval_cb_s ork_df_kernel_s_StepRightSplineEval32CB;
ork_df_eval_s ork_df_kernel_s_LookUpSplineEval32;
ork_df_eval_cb_s ork_df_kernel_s_LookUpSplineEval32CB;

/* ---- Integration --------------------------------------------------------------------- */

/* Integrates in the caller's place between two limits, *n = 1 pair a call: the pieces
 * (counted from 0) and values of the lower and the upper limit in, one integral a function
 * out, preset to 0. A negative status ends the work. */
typedef int32_t ork_df_integr_d(const int64_t* n, const int64_t* lowerPiece, const double* lower,
                                const int64_t* upperPiece, const double* upper, double* results,
                                void* params);
typedef int32_t ork_df_integr_s(const int64_t* n, const int64_t* lowerPiece, const float* lower,
                                const int64_t* upperPiece, const float* upper, float* results,
                                void* params);

/* Integrals of all functions between nlim pairs of limits. A right limit below the left one
 * gives the negated integral. Hints and data hints of the limits are those of sites in the
 * search. resultHint 0, 32: pair j of function f at j * ny + f; 16, 128: at f * nlim + j.
 *
 * Parts of an interval left of x[0] and right of the right end belong to the callback of
 * their side, or else to the end piece, extended; the part between to the interior callback,
 * or else to the spline. Callbacks always get lower <= upper. With more than 128 pairs they
 * may run on several threads at once. `method` is not read. Returns 0 or a negative code. */
int ork_df_kernel_dDFIntegrate1D(const ork_df_task* task, int64_t method, int64_t nlim,
                                 const double* left, int64_t leftHint, const double* right,
                                 int64_t rightHint, const double* leftDataHint,
                                 const double* rightDataHint, double* result, int64_t resultHint,
                                 ork_df_integr_d* leftCallback, void* leftParams,
                                 ork_df_integr_d* rightCallback, void* rightParams,
                                 ork_df_integr_d* interiorCallback, void* interiorParams,
                                 ork_df_search_d* searchCallback, void* searchParams,
                                 const ork_threader* threader);
int ork_df_kernel_sDFIntegrate1D(const ork_df_task* task, int64_t method, int64_t nlim,
                                 const float* left, int64_t leftHint, const float* right,
                                 int64_t rightHint, const float* leftDataHint,
                                 const float* rightDataHint, float* result, int64_t resultHint,
                                 ork_df_integr_s* leftCallback, void* leftParams,
                                 ork_df_integr_s* rightCallback, void* rightParams,
                                 ork_df_integr_s* interiorCallback, void* interiorParams,
                                 ork_df_search_s* searchCallback, void* searchParams,
                                 const ork_threader* threader);

/* Integrators of one function between `count` pairs of limits with known 32-bit cells; the
 * forms with suffix CB serve all functions, pair j of function f at results[j * ny + f].
 * `middles`, if not null, holds three integrals a function (in order of functions), between
 * the breakpoints cut[0], cut[1], cut[2], cut[3]; the hints of the limits are not read. */
typedef int ork_df_integrate_d(int64_t nx, const double* x, int64_t xhint, double step,
                               double* const* coeffs, int64_t count, const double* left,
                               const int32_t* leftCells, const double* right,
                               const int32_t* rightCells, const double* icValues, int64_t icType,
                               double* const* y, int64_t ny, int64_t function, int64_t yhint,
                               int64_t splineOrder, int64_t leftHint, int64_t rightHint,
                               const double* leftDataHint, const double* rightDataHint,
                               double* results, const double* middles, int32_t cut0, int32_t cut1,
                               int32_t cut2, int32_t cut3);
typedef int ork_df_integrate_cb_d(
    int64_t nx, const double* x, int64_t xhint, double step, double* const* coeffs, int64_t count,
    const double* left, const int32_t* leftCells, const double* right, const int32_t* rightCells,
    const double* icValues, int64_t icType, double* const* y, int64_t ny, int64_t function,
    int64_t yhint, int64_t splineOrder, int64_t leftHint, int64_t rightHint,
    const double* leftDataHint, const double* rightDataHint, double* results,
    ork_df_integr_d* leftCallback, void* leftParams, ork_df_integr_d* rightCallback,
    void* rightParams, ork_df_integr_d* interiorCallback, void* interiorParams,
    const double* middles, int32_t cut0, int32_t cut1, int32_t cut2, int32_t cut3);
typedef int ork_df_integrate_s(int64_t nx, const float* x, int64_t xhint, float step,
                               float* const* coeffs, int64_t count, const float* left,
                               const int32_t* leftCells, const float* right,
                               const int32_t* rightCells, const float* icValues, int64_t icType,
                               float* const* y, int64_t ny, int64_t function, int64_t yhint,
                               int64_t splineOrder, int64_t leftHint, int64_t rightHint,
                               const float* leftDataHint, const float* rightDataHint,
                               float* results, const float* middles, int32_t cut0, int32_t cut1,
                               int32_t cut2, int32_t cut3);
typedef int ork_df_integrate_cb_s(
    int64_t nx, const float* x, int64_t xhint, float step, float* const* coeffs, int64_t count,
    const float* left, const int32_t* leftCells, const float* right, const int32_t* rightCells,
    const float* icValues, int64_t icType, float* const* y, int64_t ny, int64_t function,
    int64_t yhint, int64_t splineOrder, int64_t leftHint, int64_t rightHint,
    const float* leftDataHint, const float* rightDataHint, float* results,
    ork_df_integr_s* leftCallback, void* leftParams, ork_df_integr_s* rightCallback,
    void* rightParams, ork_df_integr_s* interiorCallback, void* interiorParams,
    const float* middles, int32_t cut0, int32_t cut1, int32_t cut2, int32_t cut3);
ork_df_integrate_d ork_df_kernel_d_IntegrateLinearSpline;
ork_df_integrate_cb_d ork_df_kernel_d_IntegrateLinearSplineCB;
ork_df_integrate_d ork_df_kernel_d_IntegrateQuadSpline;
ork_df_integrate_cb_d ork_df_kernel_d_IntegrateQuadSplineCB;
ork_df_integrate_d ork_df_kernel_d_IntegrateCubSpline;
ork_df_integrate_cb_d ork_df_kernel_d_IntegrateCubSplineCB;
ork_df_integrate_d ork_df_kernel_d_IntegrateSubbSpline;
ork_df_integrate_cb_d ork_df_kernel_d_IntegrateSubbSplineCB;
ork_df_integrate_d ork_df_kernel_d_IntegrateArbSpline;
ork_df_integrate_cb_d ork_df_kernel_d_IntegrateArbSplineCB;
ork_df_integrate_d ork_df_kernel_d_IntegratePwLSpline;
ork_df_integrate_cb_d ork_df_kernel_d_IntegratePwLSplineCB;
ork_df_integrate_d ork_df_kernel_d_IntegratePwRSpline;
ork_df_integrate_cb_d ork_df_kernel_d_IntegratePwRSplineCB;
ork_df_integrate_s ork_df_kernel_s_IntegrateLinearSpline;
ork_df_integrate_cb_s ork_df_kernel_s_IntegrateLinearSplineCB;
ork_df_integrate_s ork_df_kernel_s_IntegrateQuadSpline;
ork_df_integrate_cb_s ork_df_kernel_s_IntegrateQuadSplineCB;
ork_df_integrate_s ork_df_kernel_s_IntegrateCubSpline;
ork_df_integrate_cb_s ork_df_kernel_s_IntegrateCubSplineCB;
ork_df_integrate_s ork_df_kernel_s_IntegrateSubbSpline;
ork_df_integrate_cb_s ork_df_kernel_s_IntegrateSubbSplineCB;
ork_df_integrate_s ork_df_kernel_s_IntegrateArbSpline;
ork_df_integrate_cb_s ork_df_kernel_s_IntegrateArbSplineCB;
ork_df_integrate_s ork_df_kernel_s_IntegratePwLSpline;
ork_df_integrate_cb_s ork_df_kernel_s_IntegratePwLSplineCB;
ork_df_integrate_s ork_df_kernel_s_IntegratePwRSpline;
ork_df_integrate_cb_s ork_df_kernel_s_IntegratePwRSplineCB;

#ifdef __cplusplus
}
#endif

#endif
