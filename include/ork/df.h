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
  ORK_DF_BAD_METHOD = -1002,           /* method code, or quadratic type, not supported */
  ORK_DF_BAD_NX = -1004,               /* too few breakpoints */
  ORK_DF_BAD_X = -1005,                /* x is null */
  ORK_DF_BAD_XHINT = -1006,
  ORK_DF_BAD_NY = -1007,               /* ny not valid, or 0 where functions are needed */
  ORK_DF_BAD_Y = -1008,                /* y is null */
  ORK_DF_BAD_YHINT = -1009,            /* not valid, or no separate functions to point at */
  ORK_DF_BAD_ORDER = -1010,
  ORK_DF_BAD_TYPE = -1011,             /* type not valid, or nothing evaluates order and type */
  ORK_DF_BAD_IC = -1012,               /* internal condition does not fit the spline */
  ORK_DF_BAD_IC_VALUES = -1013,
  ORK_DF_BAD_BC = -1014,               /* boundary condition does not fit the spline */
  ORK_DF_BAD_BC_VALUES = -1015,
  ORK_DF_BAD_COEFFS = -1016,
  ORK_DF_BAD_COEFF_HINT = -1017,
  ORK_DF_NOT_PERIODIC = -1018,         /* periodic, and y[0] != y[nx - 1] for some function */
  ORK_DF_BAD_CODE = -1019,             /* an editor or a query does not know the code */
  ORK_DF_BAD_INDEX = -1020,            /* function index out of range */
  ORK_DF_NOT_A_BREAKPOINT = -1022,     /* look-up spline: a site is not a breakpoint */
  ORK_DF_LOOKUP_ONE_FLAG = -1024,      /* look-up spline: not exactly one derivative flag */
  ORK_DF_LOOKUP_VALUE = -1025,         /* look-up spline: the value is not asked for */
  ORK_DF_BAD_DATA_HINT = -1026,
  ORK_DF_BAD_RESULT_HINT = -1028,      /* interpolation */
  ORK_DF_BAD_INTEGRAL_LAYOUT = -1034,  /* integration */
  ORK_DF_BAD_EXTENSION = -1036,
  ORK_DF_NULL_RESULT = -1037,          /* out pointer of a query is null */
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
  ORK_DF_ROWS_APART = 128  /* row 0 given, the others set one by one by their index */
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
  ORK_DF_TYPE_HERMITE = 3,
  ORK_DF_TYPE_LOOKUP = 6,
  ORK_DF_TYPE_STEP_RIGHT = 7, /* continuous from the right */
  ORK_DF_TYPE_STEP_LEFT = 8   /* continuous from the left */
};

/* Codes of pointer editors and queries. */
enum { ORK_DF_PTR_X = 1, ORK_DF_PTR_Y = 2, ORK_DF_PTR_IC = 3, ORK_DF_PTR_BC = 4, ORK_DF_PTR_COEFFS = 5 };

/* Codes of value editors and queries, with the values that the editor accepts. */
enum {
  ORK_DF_VAL_NX = 14,           /* at least 2 */
  ORK_DF_VAL_XHINT = 15,        /* 0, 1, 2, 4 */
  ORK_DF_VAL_NY = 16,           /* at least 1 */
  ORK_DF_VAL_YHINT = 17,        /* 0, 16, 32, 128 */
  ORK_DF_VAL_ORDER = 18,        /* not negative */
  ORK_DF_VAL_TYPE = 19,         /* 0 to 5 */
  ORK_DF_VAL_IC = 20,           /* 0, 1, 2, or any value with bit 8 */
  ORK_DF_VAL_BC = 21,           /* not negative */
  ORK_DF_VAL_COEFF_HINT = 22,   /* 0, 16, 32, 128 */
  ORK_DF_VAL_EXTENSION = 23     /* 0, 1; stored and returned only */
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
 * x or nx, setting xhint to 1 rebuilds the table that cell search uses on non-uniform
 * partitions; no other edit does, but for a change from 4 to 0 or 2 when there is none. */
int ork_df_kernel_dEditPtr(ork_df_task* task, int64_t code, const double* pointer);
int ork_df_kernel_sEditPtr(ork_df_task* task, int64_t code, const float* pointer);
int ork_df_kernel_iEditVal(ork_df_task* task, int64_t code, int64_t value);
int ork_df_kernel_dEditIdxPtr(ork_df_task* task, int64_t code, int64_t index, const double* pointer);
int ork_df_kernel_sEditIdxPtr(ork_df_task* task, int64_t code, int64_t index, const float* pointer);

/* Read the same. iQueryVal writes 32 bits, or 64 with a widthFlag other than 0. */
int ork_df_kernel_dQueryPtr(const ork_df_task* task, int64_t code, double** pointer);
int ork_df_kernel_sQueryPtr(const ork_df_task* task, int64_t code, float** pointer);
int ork_df_kernel_iQueryVal(const ork_df_task* task, int64_t code, void* value);
int ork_df_kernel_dQueryIdxPtr(const ork_df_task* task, int64_t code, int64_t index, double** pointer);
int ork_df_kernel_sQueryIdxPtr(const ork_df_task* task, int64_t code, int64_t index, float** pointer);

/* ---- Construction -------------------------------------------------------------------- */

/* Fill the task's coefficient rows: for each function, splineOrder values a cell, constant
 * term first, in powers of s - x[i]. `format` is not read; `method` must be 0 for the linear
 * and the natural spline and is not read by the others. Least nx: linear 2, natural,
 * default, Hermite 3, Bessel 4, Akima 5.
 *
 * bcValues: [left, right] for the one-sided conditions; one value for ORK_DF_BC_MIDDLE, and
 * for ORK_DF_BC_PERIODIC with splineType 0 and 3. icValues: second (default) or first
 * (Hermite) derivatives at x[1] .. x[nx - 2]; the sub-grid of the Subbotin spline. */
typedef int ork_df_construct(ork_df_task* task, int64_t format, int64_t method,
                             const ork_threader* threader);
ork_df_construct ork_df_kernel_dDFLinearSpline1D, ork_df_kernel_sDFLinearSpline1D;
ork_df_construct ork_df_kernel_dDFQuadraticSpline1D, ork_df_kernel_sDFQuadraticSpline1D;
ork_df_construct ork_df_kernel_dDFNaturalCubicSpline1D, ork_df_kernel_sDFNaturalCubicSpline1D;
ork_df_construct ork_df_kernel_dDFDefaultCubicSpline1D, ork_df_kernel_sDFDefaultCubicSpline1D;
ork_df_construct ork_df_kernel_dDFHermiteCubicSpline1D, ork_df_kernel_sDFHermiteCubicSpline1D;
ork_df_construct ork_df_kernel_dDFBesselCubicSpline1D, ork_df_kernel_sDFBesselCubicSpline1D;
ork_df_construct ork_df_kernel_dDFAkimaCubicSpline1D, ork_df_kernel_sDFAkimaCubicSpline1D;

#ifdef __cplusplus
}
#endif

#endif
