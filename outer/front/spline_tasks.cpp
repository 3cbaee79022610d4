// Spline tasks behind checks: kernels store what they get, and trust it when they compute.
#include "ork/front.h"
#include "outer/export.hpp"
#include "outer/front/splines.hpp"

namespace {

using ork::df::Task;
using ork::front::can_hold;
using ork::front::check_task;

template <class T>
struct Kernels {
  static constexpr auto make = ork_df_kernel_dNewTask1D;
  static constexpr auto edit_spline = ork_df_kernel_dEditPPSpline1D;
  static constexpr auto edit_pointer = ork_df_kernel_dEditPtr;
  static constexpr auto edit_row = ork_df_kernel_dEditIdxPtr;
};
template <>
struct Kernels<float> {
  static constexpr auto make = ork_df_kernel_sNewTask1D;
  static constexpr auto edit_spline = ork_df_kernel_sEditPPSpline1D;
  static constexpr auto edit_pointer = ork_df_kernel_sEditPtr;
  static constexpr auto edit_row = ork_df_kernel_sEditIdxPtr;
};

bool is_layout(int64_t hint) {
  return hint == ORK_DF_ROWS_DEFAULT || hint == ORK_DF_ROWS || hint == ORK_DF_COLS ||
         hint == ORK_DF_ROWS_APART;
}
bool is_partition(int64_t hint) {
  return hint == ORK_DF_X_UNKNOWN || hint == ORK_DF_X_NON_UNIFORM ||
         hint == ORK_DF_X_QUASI_UNIFORM || hint == ORK_DF_X_UNIFORM;
}

// Without values the ends alone are stored for a uniform partition.
template <class T>
int check_partition(int64_t nx, const T* x, int64_t xhint) {
  if (nx < 2 || nx > INT32_MAX || (xhint != ORK_DF_X_UNIFORM && !can_hold<T>(nx)))
    return ORK_DF_BAD_NX;
  if (x == nullptr) return ORK_DF_BAD_X;
  return is_partition(xhint) ? ORK_DF_OK : ORK_DF_BAD_XHINT;
}

// Rows that were as long, or as many, as they no longer are: entries see that they miss.
void forget_rows(void** table, int rows) {
  for (int f = 0; table != nullptr && f < rows; ++f) table[f] = nullptr;
}
void forget_coefficients(Task* task) { forget_rows(task->coeffs, ork::df::functions(task)); }
void forget_functions(Task* task) {
  forget_rows(task->y, ork::df::column_storage(task) ? 1 : ork::df::functions(task));
}

int64_t row_length(int64_t order, int64_t type, int64_t nx) {
  return order * (type == ORK_DF_TYPE_SUBBOTIN ? nx : nx - 1);
}

template <class T>
int new_task(Task** task, int64_t nx, const T* x, int64_t xhint, int64_t ny, const T* y,
             int64_t yhint) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  *task = nullptr;
  if (const int code = check_partition(nx, x, xhint)) return code;
  if (ny != 0 && y == nullptr) return ORK_DF_BAD_Y;
  if (ny < 0 || (ny == 0 && y != nullptr) || (ny > 0 && !can_hold<T>(nx, ny))) return ORK_DF_BAD_NY;
  const int status = Kernels<T>::make(task, nx, x, xhint, ny, y, yhint, 0);
  if (status != ORK_DF_OK && *task != nullptr) ork_df_kernel_DeleteTask(task);
  return status;
}

template <class T>
int edit_partition(Task* task, int64_t nx, const T* x, int64_t xhint) {
  if (const int code = check_task<T>(task)) return code;
  if (const int code = check_partition(nx, x, xhint)) return code;
  if (nx != task->nx) {
    forget_functions(task);
    forget_coefficients(task);
    task->icType = 0;
    task->icValues = nullptr;
  }
  task->nx = nx;
  task->x = x;
  task->xhint = xhint;
  if (xhint == ORK_DF_X_UNIFORM) return ORK_DF_OK;
  // The search table follows where the hint is set to this value.
  const int status = ork_df_kernel_iEditVal(task, ORK_DF_VAL_XHINT, ORK_DF_X_NON_UNIFORM);
  task->xhint = xhint;
  return status;
}

template <class T>
int edit_functions(Task* task, int64_t ny, const T* y, int64_t yhint) {
  if (const int code = check_task<T>(task)) return code;
  if (y == nullptr) return ORK_DF_BAD_Y;
  if (ny < 1 || !can_hold<T>(task->nx, ny)) return ORK_DF_BAD_NY;
  if (!is_layout(yhint)) return ORK_DF_BAD_YHINT;
  const bool as_many = ny == task->ny;
  if (const int code = ork_df_kernel_iEditVal(task, ORK_DF_VAL_NY, ny)) return code;
  if (!as_many) forget_coefficients(task);
  forget_functions(task);
  if (const int code = ork_df_kernel_iEditVal(task, ORK_DF_VAL_YHINT, yhint)) return code;
  return Kernels<T>::edit_pointer(task, ORK_DF_PTR_Y, y);
}

// The Subbotin spline reads icValues as points of its sub-grid, the others as derivatives: arrays
// of different lengths.
template <class T>
int check_inside(int64_t order, int64_t type, int64_t ic, const T* values) {
  if (ic == 0) return values == nullptr ? ORK_DF_OK : ORK_DF_BAD_IC;
  const bool on_grid = order == 3 && type == ORK_DF_TYPE_SUBBOTIN;
  if (on_grid ? (ic & ~int64_t{ORK_DF_IC_UNIFORM}) != ORK_DF_IC_SUBGRID : ic != 1 && ic != 2)
    return ORK_DF_BAD_IC;
  return values != nullptr || ic == ORK_DF_IC_SUBGRID ? ORK_DF_OK : ORK_DF_BAD_IC_VALUES;
}

template <class T>
int edit_spline(Task* task, int64_t order, int64_t type, int64_t bc, const T* bc_values, int64_t ic,
                const T* ic_values, T* coeffs, int64_t coeff_hint) {
  if (const int code = check_task<T>(task)) return code;
  if (order < 0 || !can_hold<T>(order, task->nx)) return ORK_DF_BAD_ORDER;
  if (type < ORK_DF_TYPE_DEFAULT || type > ORK_DF_TYPE_STEP_LEFT) return ORK_DF_BAD_TYPE;
  if (bc < 0) return ORK_DF_BAD_BC;
  const bool bare = bc == ORK_DF_BC_NOT_SET || bc == ORK_DF_BC_NOT_A_KNOT ||
                    bc == ORK_DF_BC_FREE_END || bc == ORK_DF_BC_PERIODIC;
  if (!bare && bc_values == nullptr) return ORK_DF_BAD_BC_VALUES;
  if (const int code = check_inside(order, type, ic, ic_values)) return code;
  if (!is_layout(coeff_hint)) return ORK_DF_BAD_COEFF_HINT;
  if (coeffs != nullptr && task->ny == 0) return ORK_DF_BAD_NY;
  if (row_length(order, type, task->nx) !=
      row_length(task->splineOrder, task->splineType, task->nx))
    forget_coefficients(task);
  const bool middles = ic != 0 && ic_values == nullptr;  // the kernel's editor knows them by value
  const int status = Kernels<T>::edit_spline(task, order, type, bc, bc_values, middles ? 0 : ic,
                                             ic_values, coeffs, coeff_hint);
  if (middles) task->icType = ic;
  return status;
}

template <class T>
int edit_row(Task* task, int64_t code, int64_t index, T* row) {
  if (const int status = check_task<T>(task)) return status;
  return Kernels<T>::edit_row(task, code, index, row);
}

}  // namespace

ORK_OUTER int ork_dDFNewTask(ork_df_task** task, int64_t nx, const double* x, int64_t xhint,
                             int64_t ny, const double* y, int64_t yhint) {
  return new_task(task, nx, x, xhint, ny, y, yhint);
}
ORK_OUTER int ork_sDFNewTask(ork_df_task** task, int64_t nx, const float* x, int64_t xhint,
                             int64_t ny, const float* y, int64_t yhint) {
  return new_task(task, nx, x, xhint, ny, y, yhint);
}

ORK_OUTER int ork_dDFEditPartition(ork_df_task* task, int64_t nx, const double* x, int64_t xhint) {
  return edit_partition(task, nx, x, xhint);
}
ORK_OUTER int ork_sDFEditPartition(ork_df_task* task, int64_t nx, const float* x, int64_t xhint) {
  return edit_partition(task, nx, x, xhint);
}

ORK_OUTER int ork_dDFEditFunctions(ork_df_task* task, int64_t ny, const double* y, int64_t yhint) {
  return edit_functions(task, ny, y, yhint);
}
ORK_OUTER int ork_sDFEditFunctions(ork_df_task* task, int64_t ny, const float* y, int64_t yhint) {
  return edit_functions(task, ny, y, yhint);
}

ORK_OUTER int ork_dDFEditSpline(ork_df_task* task, int64_t order, int64_t type, int64_t bcType,
                                const double* bcValues, int64_t icType, const double* icValues,
                                double* coeffs, int64_t coeffHint) {
  return edit_spline(task, order, type, bcType, bcValues, icType, icValues, coeffs, coeffHint);
}
ORK_OUTER int ork_sDFEditSpline(ork_df_task* task, int64_t order, int64_t type, int64_t bcType,
                                const float* bcValues, int64_t icType, const float* icValues,
                                float* coeffs, int64_t coeffHint) {
  return edit_spline(task, order, type, bcType, bcValues, icType, icValues, coeffs, coeffHint);
}

ORK_OUTER int ork_dDFEditRow(ork_df_task* task, int64_t code, int64_t index, double* row) {
  return edit_row(task, code, index, row);
}
ORK_OUTER int ork_sDFEditRow(ork_df_task* task, int64_t code, int64_t index, float* row) {
  return edit_row(task, code, index, row);
}

ORK_OUTER int ork_df_delete(ork_df_task** task) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  return *task != nullptr ? ork_df_kernel_DeleteTask(task) : ORK_DF_OK;
}
