// The fitting task and what every kernel of this domain reads from it.
//
// A spline's directory holds its kernels, its dispatch tables and its exported construction
// entries; the checks that the entries share are in construct.hpp.
#pragma once
#include <stddef.h>
#include <stdint.h>

#include "base/export.hpp"
#include "base/scratch.hpp"
#include "base/threads.hpp"
#include "ork/df.h"
#include "ork/serv.h"

namespace ork::df {

// A bracket of breakpoint indices: any site of the bucket lies in a cell from lo to hi.
struct Bucket {
  int32_t lo, hi;
};
constexpr int max_buckets = 1024;

}  // namespace ork::df

// The layout is part of the interface: callers of the outer layer read fields of it.
struct ork_df_task {
  int32_t widthFlag;
  uint8_t tag;            // 4
  int32_t precisionFlag;  // 1 double, 0 float
  int32_t dimension;      // 1
  int64_t nx;
  const void* x;
  int64_t xhint;
  int64_t ny;
  void** y;
  int64_t yhint;
  int64_t splineOrder;
  int64_t splineType;
  int64_t icType;
  const void* icValues;
  int64_t bcType;
  const void* bcValues;
  void** coeffs;
  int64_t coeffHint;
  int32_t extensionFlag;
  int64_t bucketCount;
  ork::df::Bucket* buckets;
  union {
    double d;
    float s;
  } inverseBucketWidth;
};
static_assert(offsetof(ork_df_task, nx) == 16 && offsetof(ork_df_task, coeffs) == 96 &&
              sizeof(ork_df_task) == 132);

namespace ork::df {

using Task = ork_df_task;

inline int breakpoints(const Task* task) { return static_cast<int32_t>(task->nx); }
inline int functions(const Task* task) {
  const int ny = static_cast<int32_t>(task->ny);
  return ny < 1 ? 1 : ny;
}
inline bool uniform_grid(const Task* task) { return (task->xhint & ORK_DF_X_UNIFORM) != 0; }
inline bool column_storage(const Task* task) { return task->yhint == ORK_DF_COLS; }

template <class T>
const T* partition(const Task* task) {
  return static_cast<const T*>(task->x);
}
template <class T>
const T* internal_values(const Task* task) {
  return static_cast<const T*>(task->icValues);
}
template <class T>
const T* boundary_values(const Task* task) {
  return static_cast<const T*>(task->bcValues);
}
template <class T>
T* coefficients(const Task* task, int f) {
  return static_cast<T*>(task->coeffs[f]);
}

// Step of a uniform partition.
template <class T>
T grid_step(const Task* task) {
  const T* x = partition<T>(task);
  return (x[1] - x[0]) / static_cast<T>(breakpoints(task) - 1);
}

// Function f at breakpoint i is values[i * stride], for both ways of storage.
template <class T>
struct Samples {
  const T* values;
  int stride;
  T operator[](int i) const { return values[static_cast<ptrdiff_t>(i) * stride]; }
};
template <class T>
Samples<T> samples(const Task* task, int f) {
  if (column_storage(task)) return {static_cast<const T*>(task->y[0]) + f, functions(task)};
  return {static_cast<const T*>(task->y[f]), 1};
}

// Whether every row of functions, or of coefficients, is there. Rows apart are set one by one, so
// that row 0 says nothing of the others.
inline bool all_rows(void* const* table, int rows) {
  if (table == nullptr) return false;
  for (int f = 0; f < rows; ++f)
    if (table[f] == nullptr) return false;
  return true;
}
inline bool has_functions(const Task* task) {
  return all_rows(task->y, column_storage(task) ? 1 : functions(task));
}
inline bool has_coefficients(const Task* task) { return all_rows(task->coeffs, functions(task)); }

// Scratch that cannot be had: the caller answers ORK_DF_NO_MEMORY.
using ork::Scratch;
using ork::thread_limit;

}  // namespace ork::df
