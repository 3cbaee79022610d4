/* Tasks by the front door: statistics and splines made, edited and destroyed with their arguments
 * checked, derivatives and cells of splines. Included by front.h, which computes them.
 *
 * A task copies none of the caller's arrays. They must live, and be as long as its numbers say,
 * until the last computation; how long an array is cannot be checked. A task serves one caller at
 * a time, but spline calls that take it as const may run side by side. Names with d are for
 * double, with s for float. A call that fails changes nothing unless it says otherwise, and a
 * constructor that fails leaves *task null.
 */
#ifndef ORK_FRONT_TASKS_H
#define ORK_FRONT_TASKS_H

#include <stdint.h>

#include "ork/df.h"
#include "ork/ss.h"
#include "ork/threader.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Statistics --------------------------------------------------------------------------- */

/* A new task for *n observations x of *p variables in layout *storage (ORK_SS_ROWS or
 * ORK_SS_COLUMNS), with n weights w (null: all 1) and p indices, non-zero for the variables to be
 * processed (null: all). The integers stay the caller's, too: their values are read anew by each
 * computation. Without x, n and storage may be null; what is null may be set by an edit.
 *
 * In this order: NULL_TASK; BAD_DIMENSION: p null, or *p below 1; with x NULL_STORAGE,
 * BAD_STORAGE, BAD_OBSERVATION_COUNT (n null, or *n below 1); NO_MEMORY. */
int ork_dSSNewTask(ork_ss_task** task, const int32_t* p, const int32_t* n, const int32_t* storage,
                   const double* x, const double* w, const int32_t* indices);
int ork_sSSNewTask(ork_ss_task** task, const int32_t* p, const int32_t* n, const int32_t* storage,
                   const float* x, const float* w, const int32_t* indices);

/* Sets one field by its code (ORK_SS_EDIT_... of ss.h, which says how long the array must be):
 * arrays of reals by the letter of the task, integers by i. Outputs pass through `value`, too.
 *
 * NULL_TASK; BAD_CODE: the code is unknown or belongs to the other kind, the task is of the other
 * precision, or, of the i form, was made with 64-bit integers by an entry of ss.h; then for a null
 * value the status of that field. */
int ork_dSSEditTask(ork_ss_task* task, int32_t code, const double* value);
int ork_sSSEditTask(ork_ss_task* task, int32_t code, const float* value);
int ork_iSSEditTask(ork_ss_task* task, int32_t code, const int32_t* value);

/* Releases *task, which may be null, and sets it to null. NULL_TASK: task itself is null. */
int ork_ss_delete(ork_ss_task** task);

/* ---- Splines ------------------------------------------------------------------------------
 *
 * Statuses that all calls share: NULL_TASK; BAD_TYPE for a task of the other precision. Sizes
 * of arrays that no address space could hold are refused. */

/* A new task: nx breakpoints x, ascending, or for ORK_DF_X_UNIFORM the two ends; ny functions y
 * laid out by yhint. ny = 0 with y null: for cells alone.
 *
 * In this order: NULL_TASK; BAD_NX: nx below 2 or beyond what an array can hold; BAD_X: null;
 * BAD_XHINT; BAD_Y: null although ny is not 0; BAD_NY: below 0, 0 with y, or too many; BAD_YHINT;
 * NO_MEMORY. */
int ork_dDFNewTask(ork_df_task** task, int64_t nx, const double* x, int64_t xhint, int64_t ny,
                   const double* y, int64_t yhint);
int ork_sDFNewTask(ork_df_task** task, int64_t nx, const float* x, int64_t xhint, int64_t ny,
                   const float* y, int64_t yhint);

/* Another partition, or, with what the task holds, the same one whose values have changed. A new
 * number of breakpoints takes from the task what was as long as the old: functions, coefficients
 * and internal conditions, to be set again. BAD_NX, BAD_X, BAD_XHINT. */
int ork_dDFEditPartition(ork_df_task* task, int64_t nx, const double* x, int64_t xhint);
int ork_sDFEditPartition(ork_df_task* task, int64_t nx, const float* x, int64_t xhint);

/* Other functions. A new number of them takes the coefficients from the task. BAD_Y: null;
 * BAD_NY: below 1 or too many; BAD_YHINT; NO_MEMORY: the task may be left without functions. */
int ork_dDFEditFunctions(ork_df_task* task, int64_t ny, const double* y, int64_t yhint);
int ork_sDFEditFunctions(ork_df_task* task, int64_t ny, const float* y, int64_t yhint);

/* Names the spline: order, type (ORK_DF_TYPE_...), conditions at the ends and inside, and where
 * its coefficients are or shall be: ny rows of order times (nx - 1) values one behind the other
 * (Subbotin: order times nx), or with ORK_DF_ROWS_APART the first row. df.h tells which
 * conditions a kind takes and how many values they are; ork_dDFConstruct checks that.
 *
 * icType: 0 without icValues; 1 or 2 with nx - 2 derivatives of that order; for the Subbotin spline
 * ORK_DF_IC_SUBGRID with nx + 1 points, or null for the cells' middles, or
 * together with ORK_DF_IC_UNIFORM with two. coeffs null: those of the task stay if the new rows
 * are as long as the old ones, else it has none.
 *
 * BAD_ORDER: below 0, or rows too long; BAD_TYPE: not of the list; BAD_BC: negative;
 * BAD_BC_VALUES: null although the type needs them; BAD_IC, BAD_IC_VALUES; BAD_COEFF_HINT;
 * BAD_NY: coefficients of no functions; NO_MEMORY: the spline is named, without coefficients. */
int ork_dDFEditSpline(ork_df_task* task, int64_t order, int64_t type, int64_t bcType,
                      const double* bcValues, int64_t icType, const double* icValues,
                      double* coeffs, int64_t coeffHint);
int ork_sDFEditSpline(ork_df_task* task, int64_t order, int64_t type, int64_t bcType,
                      const float* bcValues, int64_t icType, const float* icValues, float* coeffs,
                      int64_t coeffHint);

/* The row of one function: ORK_DF_PTR_Y its nx values, ORK_DF_PTR_COEFFS its coefficients.
 * BAD_CODE; BAD_YHINT: the functions lie in columns; BAD_INDEX; BAD_Y or BAD_COEFFS: row null, or
 * no first row named by an edit of functions or spline. */
int ork_dDFEditRow(ork_df_task* task, int64_t code, int64_t index, double* row);
int ork_sDFEditRow(ork_df_task* task, int64_t code, int64_t index, float* row);

/* Releases *task, which may be null, and sets it to null. NULL_TASK: task itself is null. */
int ork_df_delete(ork_df_task** task);

/* Cells of the sites: the number of breakpoints at or below each, from 0 to nx. siteHint as in
 * ork_dDFInterpolate. BAD_NX: nsite below 0 or above 2^31 - 1; BAD_X: site null; BAD_XHINT:
 * siteHint; NULL_RESULT: cell null; NO_MEMORY. */
int ork_dDFSearch(const ork_df_task* task, int64_t nsite, const double* site, int64_t siteHint,
                  int32_t* cell, const ork_threader* threader);
int ork_sDFSearch(const ork_df_task* task, int64_t nsite, const float* site, int64_t siteHint,
                  int32_t* cell, const ork_threader* threader);

/* Derivatives of all functions at the sites: wanted[k] is 1 for the derivative of order k, 0 being
 * the value, else 0. With count orders wanted, the k-th of them of function f at site j is
 * result[(f * nsite + j) * count + k]; orders that the spline does not have are 0. None wanted:
 * nothing is written.
 *
 * BAD_NX as in ork_dDFInterpolate; BAD_ORDER: orders below 0, wanted null or neither 0 nor 1;
 * BAD_X, BAD_XHINT, NULL_RESULT, BAD_COEFFS, BAD_Y as there; BAD_TYPE: also of a task that was made
 * with 64-bit integers by an entry of df.h; LOOKUP_... of look-up splines; NO_MEMORY. */
int ork_dDFDerivatives(const ork_df_task* task, int64_t nsite, const double* site, int64_t siteHint,
                       int32_t orders, const int32_t* wanted, double* result,
                       const ork_threader* threader);
int ork_sDFDerivatives(const ork_df_task* task, int64_t nsite, const float* site, int64_t siteHint,
                       int32_t orders, const int32_t* wanted, float* result,
                       const ork_threader* threader);

#ifdef __cplusplus
}
#endif

#endif
