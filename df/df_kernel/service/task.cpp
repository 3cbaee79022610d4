// Creating, editing, querying and deleting a task.
#include <string.h>

#include "service/buckets.hpp"
#include "service/construct.hpp"

namespace ork::df {
namespace {

bool valid_grid(int64_t hint) {
  return hint == ORK_DF_X_UNKNOWN || hint == ORK_DF_X_NON_UNIFORM ||
         hint == ORK_DF_X_QUASI_UNIFORM || hint == ORK_DF_X_UNIFORM;
}

// A pointer table of `rows` entries: row f at base + f * stride when the rows lie together,
// else the first row only and null for the others. Null without memory.
template <class T>
void** make_table(const T* base, int64_t rows, int64_t stride, bool together) {
  if (rows < 1) rows = 1;
  if (rows > INT32_MAX / 4) return nullptr;
  const size_t count = static_cast<size_t>(rows);
  auto** table = static_cast<void**>(ork_serv_allocate(count * sizeof(void*), 128));
  if (table == nullptr) return nullptr;
  table[0] = const_cast<T*>(base);
  for (size_t f = 1; f < count; ++f)
    table[f] = together ? const_cast<T*>(base) + f * static_cast<size_t>(stride) : nullptr;
  return table;
}

// Puts a new table in the place of an old one; without memory the place is left null.
template <class Make>
int replace_table(void**& table, Make make) {
  if (table != nullptr) ork_serv_deallocate(table);
  table = make();
  return table != nullptr ? ORK_DF_OK : ORK_DF_NO_MEMORY;
}

// A table for more rows: those it has, which rows set one by one may have moved, then new ones as
// make_table lays them. Without memory the old table stays.
int grow_table(void**& table, int64_t has, int64_t rows, int64_t row_bytes, bool together) {
  if (table == nullptr || rows <= has) return ORK_DF_OK;
  void** longer = make_table(static_cast<const char*>(table[0]), rows, row_bytes, together);
  if (longer == nullptr) return ORK_DF_NO_MEMORY;
  memcpy(longer, table, static_cast<size_t>(has) * sizeof(void*));
  ork_serv_deallocate(table);
  table = longer;
  return ORK_DF_OK;
}

// Rows in the table of functions. Coefficients have one for each, whatever the hint.
int64_t table_rows(int64_t ny, int64_t yhint) { return yhint == ORK_DF_COLS || ny < 1 ? 1 : ny; }

template <class T>
void** function_table(const T* y, int64_t ny, int64_t nx, int64_t yhint) {
  return make_table(y, table_rows(ny, yhint), nx, (yhint & ORK_DF_ROWS_APART) == 0);
}

// Coefficients of a row, by the order and type of the task.
int64_t row_of_coefficients(const Task* task) {
  const int64_t pieces = task->splineType == ORK_DF_TYPE_SUBBOTIN ? task->nx : task->nx - 1;
  return task->splineOrder * pieces;
}
template <class T>
int set_coefficients(Task* task, const T* coeffs, int64_t hint) {
  if (task->ny == 0) return ORK_DF_BAD_NY;
  return replace_table(task->coeffs, [&] {
    return make_table(coeffs, task->ny, row_of_coefficients(task), (hint & ORK_DF_ROWS_APART) == 0);
  });
}

// Both tables long enough for so many functions under that hint: entries read as many rows as the
// task says.
int hold_functions(Task* task, int64_t ny, int64_t yhint) {
  const int64_t bytes = task->precisionFlag ? sizeof(double) : sizeof(float);
  const int status = grow_table(task->y, table_rows(task->ny, task->yhint), table_rows(ny, yhint),
                                task->nx * bytes, (yhint & ORK_DF_ROWS_APART) == 0);
  if (status != ORK_DF_OK) return status;
  return grow_table(task->coeffs, table_rows(task->ny, 0), ny, row_of_coefficients(task) * bytes,
                    (task->coeffHint & ORK_DF_ROWS_APART) == 0);
}

template <class T>
int new_task(Task** out, int64_t nx, const T* x, int64_t xhint, int64_t ny, const T* y,
             int64_t yhint, int32_t width_flag) {
  if (out == nullptr) return ORK_DF_NULL_TASK;
  if (nx < 2) return ORK_DF_BAD_NX;
  if (x == nullptr) return ORK_DF_BAD_X;
  if (!valid_grid(xhint)) return ORK_DF_BAD_XHINT;
  if (ny != 0 && y == nullptr) return ORK_DF_BAD_Y;
  if (ny == 0 && y != nullptr) return ORK_DF_BAD_NY;
  if (!valid_storage(yhint)) return ORK_DF_BAD_YHINT;

  auto* task = static_cast<Task*>(ork_serv_allocate(sizeof(Task), 128));
  *out = task;
  if (task == nullptr) return ORK_DF_NO_MEMORY;
  memset(task, 0, sizeof *task);
  task->nx = nx;
  task->x = x;
  task->xhint = xhint;
  if (y != nullptr) {
    task->y = function_table(y, ny, nx, yhint);
    if (task->y == nullptr) return ORK_DF_NO_MEMORY;
  }
  task->ny = ny;
  task->yhint = yhint;
  task->widthFlag = width_flag;
  task->tag = 4;
  task->precisionFlag = sizeof(T) == sizeof(double);
  task->dimension = 1;
  if (xhint != ORK_DF_X_UNIFORM) return build_buckets(task);
  // The table of a uniform partition is only room for a later change of the hint.
  task->buckets = static_cast<Bucket*>(ork_serv_allocate(max_buckets * sizeof(Bucket), 128));
  return task->buckets != nullptr ? ORK_DF_OK : ORK_DF_NO_MEMORY;
}

template <class T>
int edit_spline(Task* task, int64_t order, int64_t type, int64_t bc, const T* bc_values, int64_t ic,
                const T* ic_values, const T* coeffs, int64_t coeff_hint) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  if (order < 0) return ORK_DF_BAD_ORDER;
  if (type < 0) return ORK_DF_BAD_TYPE;
  task->splineOrder = order;
  task->splineType = type;
  const bool bare = bc == ORK_DF_BC_NOT_SET || bc == ORK_DF_BC_NOT_A_KNOT ||
                    bc == ORK_DF_BC_FREE_END || bc == ORK_DF_BC_PERIODIC;
  if (!bare && bc_values == nullptr) return ORK_DF_BAD_BC_VALUES;
  task->bcType = bc;
  task->bcValues = bc_values;
  if (ic != 0 && ic_values == nullptr) return ORK_DF_BAD_IC_VALUES;
  if (ic == 0 && ic_values != nullptr) return ORK_DF_BAD_IC;
  task->icType = ic;
  task->icValues = ic_values;
  if (coeffs != nullptr) {
    const int status = set_coefficients(task, coeffs, coeff_hint);
    if (status != ORK_DF_OK) return status;
  }
  task->coeffHint = coeff_hint;
  return ORK_DF_OK;
}

template <class T>
int edit_pointer(Task* task, int64_t code, const T* pointer) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  if (task->dimension != 1) return ORK_DF_OK;
  switch (code) {
    case ORK_DF_PTR_X:
      if (pointer == nullptr) return ORK_DF_BAD_X;
      task->x = pointer;
      return ORK_DF_OK;
    case ORK_DF_PTR_Y:
      if (pointer == nullptr) return ORK_DF_BAD_Y;
      return replace_table(
          task->y, [&] { return function_table(pointer, task->ny, task->nx, task->yhint); });
    case ORK_DF_PTR_IC:
      if (pointer == nullptr) return ORK_DF_BAD_IC_VALUES;
      task->icValues = pointer;
      return ORK_DF_OK;
    case ORK_DF_PTR_BC:
      if (pointer == nullptr) return ORK_DF_BAD_BC_VALUES;
      task->bcValues = pointer;
      return ORK_DF_OK;
    case ORK_DF_PTR_COEFFS:
      if (pointer == nullptr) return ORK_DF_BAD_COEFFS;
      return set_coefficients(task, pointer, task->coeffHint);
    default:
      return ORK_DF_BAD_CODE;
  }
}

bool has_function(const Task* task, int64_t index) { return index >= 0 && index < task->ny; }

template <class T>
int edit_row(Task* task, int64_t code, int64_t index, const T* pointer) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  if (task->dimension != 1) return ORK_DF_OK;
  if (code != ORK_DF_PTR_Y && code != ORK_DF_PTR_COEFFS) return ORK_DF_BAD_CODE;
  const bool of_y = code == ORK_DF_PTR_Y;
  if (of_y && task->yhint == ORK_DF_COLS) return ORK_DF_BAD_YHINT;
  if (!has_function(task, index)) return ORK_DF_BAD_INDEX;
  void** table = of_y ? task->y : task->coeffs;
  if (pointer == nullptr || table == nullptr) return of_y ? ORK_DF_BAD_Y : ORK_DF_BAD_COEFFS;
  table[index] = const_cast<T*>(pointer);
  return ORK_DF_OK;
}

template <class T>
int query_pointer(const Task* task, int64_t code, T** out) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  if (out == nullptr) return ORK_DF_NULL_RESULT;
  if (task->dimension != 1) return ORK_DF_OK;
  const void* found = nullptr;
  switch (code) {
    case ORK_DF_PTR_X:
      found = task->x;
      break;
    case ORK_DF_PTR_Y:
      found = task->y != nullptr ? task->y[0] : nullptr;
      break;
    case ORK_DF_PTR_IC:
      found = task->icValues;
      break;
    case ORK_DF_PTR_BC:
      found = task->bcValues;
      break;
    case ORK_DF_PTR_COEFFS:
      found = task->coeffs != nullptr ? task->coeffs[0] : nullptr;
      break;
    default:
      return ORK_DF_BAD_CODE;
  }
  *out = static_cast<T*>(const_cast<void*>(found));
  return ORK_DF_OK;
}

template <class T>
int query_row(const Task* task, int64_t code, int64_t index, T** out) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  if (out == nullptr) return ORK_DF_NULL_RESULT;
  if (task->dimension != 1) return ORK_DF_OK;
  if (!has_function(task, index)) return ORK_DF_BAD_INDEX;
  if (code != ORK_DF_PTR_Y && code != ORK_DF_PTR_COEFFS) return ORK_DF_BAD_CODE;
  if (code == ORK_DF_PTR_Y && task->yhint == ORK_DF_COLS) return ORK_DF_BAD_YHINT;
  void* const* table = code == ORK_DF_PTR_Y ? task->y : task->coeffs;
  *out = table != nullptr ? static_cast<T*>(table[index]) : nullptr;
  return ORK_DF_OK;
}

int edit_value(Task* task, int64_t code, int64_t value) {
  // A field, whether it takes the value, and the answer if not.
  const auto store = [value](int64_t& field, bool taken, int refusal) -> int {
    if (!taken) return refusal;
    field = value;
    return ORK_DF_OK;
  };
  switch (code) {
    case ORK_DF_VAL_NX:
      return store(task->nx, value >= 2, ORK_DF_BAD_NX);
    case ORK_DF_VAL_XHINT: {
      const int status = store(task->xhint, valid_grid(value), ORK_DF_BAD_XHINT);
      const bool build =
          value == ORK_DF_X_NON_UNIFORM || (value != ORK_DF_X_UNIFORM && task->bucketCount == 0);
      return status == ORK_DF_OK && build ? build_buckets(task) : status;
    }
    case ORK_DF_VAL_NY: {
      const int status = value >= 1 ? hold_functions(task, value, task->yhint) : ORK_DF_BAD_NY;
      return store(task->ny, status == ORK_DF_OK, status);
    }
    case ORK_DF_VAL_YHINT: {
      const int status =
          valid_storage(value) ? hold_functions(task, task->ny, value) : ORK_DF_BAD_YHINT;
      return store(task->yhint, status == ORK_DF_OK, status);
    }
    case ORK_DF_VAL_ORDER:
      return store(task->splineOrder, value >= 0, ORK_DF_BAD_ORDER);
    case ORK_DF_VAL_TYPE:
      return store(task->splineType, value >= 0 && value <= 5, ORK_DF_BAD_TYPE);
    case ORK_DF_VAL_IC:
      return store(task->icType, (value >= 0 && value <= 2) || (value & ORK_DF_IC_SUBGRID) != 0,
                   ORK_DF_BAD_IC);
    case ORK_DF_VAL_BC:
      return store(task->bcType, value >= 0, ORK_DF_BAD_BC);
    case ORK_DF_VAL_COEFF_HINT:
      return store(task->coeffHint, valid_storage(value), ORK_DF_BAD_COEFF_HINT);
    case ORK_DF_VAL_EXTENSION:
      if (value != 0 && value != 1) return ORK_DF_BAD_EXTENSION;
      task->extensionFlag = static_cast<int32_t>(value);
      return ORK_DF_OK;
    default:
      return ORK_DF_BAD_CODE;
  }
}

int query_value(const Task* task, int64_t code, void* out) {
  int64_t value;
  switch (code) {
    case ORK_DF_VAL_NX:
      value = task->nx;
      break;
    case ORK_DF_VAL_XHINT:
      value = task->xhint;
      break;
    case ORK_DF_VAL_NY:
      value = task->ny;
      break;
    case ORK_DF_VAL_YHINT:
      value = task->yhint;
      break;
    case ORK_DF_VAL_ORDER:
      value = task->splineOrder;
      break;
    case ORK_DF_VAL_TYPE:
      value = task->splineType;
      break;
    case ORK_DF_VAL_IC:
      value = task->icType;
      break;
    case ORK_DF_VAL_BC:
      value = task->bcType;
      break;
    case ORK_DF_VAL_COEFF_HINT:
      value = task->coeffHint;
      break;
    case ORK_DF_VAL_EXTENSION:
      value = task->extensionFlag;
      break;
    default:
      return ORK_DF_BAD_CODE;
  }
  const int32_t low = static_cast<int32_t>(value);
  if (task->widthFlag != 0)
    memcpy(out, &value, sizeof value);
  else
    memcpy(out, &low, sizeof low);
  return ORK_DF_OK;
}

}  // namespace
}  // namespace ork::df

using ork_task = ork_df_task;

ORK_EXPORT int ork_df_kernel_dNewTask1D(ork_task** task, int64_t nx, const double* x, int64_t xhint,
                                        int64_t ny, const double* y, int64_t yhint,
                                        int32_t widthFlag) {
  return ork::df::new_task(task, nx, x, xhint, ny, y, yhint, widthFlag);
}
ORK_EXPORT int ork_df_kernel_sNewTask1D(ork_task** task, int64_t nx, const float* x, int64_t xhint,
                                        int64_t ny, const float* y, int64_t yhint,
                                        int32_t widthFlag) {
  return ork::df::new_task(task, nx, x, xhint, ny, y, yhint, widthFlag);
}

ORK_EXPORT int ork_df_kernel_DeleteTask(ork_task** task) {
  if (task == nullptr || *task == nullptr) return ORK_DF_NULL_TASK;
  if ((*task)->y != nullptr) ork_serv_deallocate((*task)->y);
  if ((*task)->coeffs != nullptr) ork_serv_deallocate((*task)->coeffs);
  if ((*task)->buckets != nullptr) ork_serv_deallocate((*task)->buckets);
  ork_serv_deallocate(*task);
  *task = nullptr;
  return ORK_DF_OK;
}

ORK_EXPORT int ork_df_kernel_dEditPPSpline1D(ork_task* task, int64_t splineOrder,
                                             int64_t splineType, int64_t bcType,
                                             const double* bcValues, int64_t icType,
                                             const double* icValues, double* coeffs,
                                             int64_t coeffHint) {
  return ork::df::edit_spline(task, splineOrder, splineType, bcType, bcValues, icType, icValues,
                              coeffs, coeffHint);
}
ORK_EXPORT int ork_df_kernel_sEditPPSpline1D(ork_task* task, int64_t splineOrder,
                                             int64_t splineType, int64_t bcType,
                                             const float* bcValues, int64_t icType,
                                             const float* icValues, float* coeffs,
                                             int64_t coeffHint) {
  return ork::df::edit_spline(task, splineOrder, splineType, bcType, bcValues, icType, icValues,
                              coeffs, coeffHint);
}

ORK_EXPORT int ork_df_kernel_dEditPtr(ork_task* task, int64_t code, const double* pointer) {
  return ork::df::edit_pointer(task, code, pointer);
}
ORK_EXPORT int ork_df_kernel_sEditPtr(ork_task* task, int64_t code, const float* pointer) {
  return ork::df::edit_pointer(task, code, pointer);
}
ORK_EXPORT int ork_df_kernel_dEditIdxPtr(ork_task* task, int64_t code, int64_t index,
                                         const double* pointer) {
  return ork::df::edit_row(task, code, index, pointer);
}
ORK_EXPORT int ork_df_kernel_sEditIdxPtr(ork_task* task, int64_t code, int64_t index,
                                         const float* pointer) {
  return ork::df::edit_row(task, code, index, pointer);
}
ORK_EXPORT int ork_df_kernel_dQueryPtr(const ork_task* task, int64_t code, double** pointer) {
  return ork::df::query_pointer(task, code, pointer);
}
ORK_EXPORT int ork_df_kernel_sQueryPtr(const ork_task* task, int64_t code, float** pointer) {
  return ork::df::query_pointer(task, code, pointer);
}
ORK_EXPORT int ork_df_kernel_dQueryIdxPtr(const ork_task* task, int64_t code, int64_t index,
                                          double** pointer) {
  return ork::df::query_row(task, code, index, pointer);
}
ORK_EXPORT int ork_df_kernel_sQueryIdxPtr(const ork_task* task, int64_t code, int64_t index,
                                          float** pointer) {
  return ork::df::query_row(task, code, index, pointer);
}

ORK_EXPORT int ork_df_kernel_iEditVal(ork_task* task, int64_t code, int64_t value) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  return task->dimension == 1 ? ork::df::edit_value(task, code, value) : ORK_DF_OK;
}
ORK_EXPORT int ork_df_kernel_iQueryVal(const ork_task* task, int64_t code, void* value) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  if (value == nullptr) return ORK_DF_NULL_RESULT;
  return task->dimension == 1 ? ork::df::query_value(task, code, value) : ORK_DF_OK;
}
