// Evaluation of one spline at a block of sites, in two steps: locate finds each site's piece
// and its distance from the piece's breakpoint, once for all functions; fill evaluates one
// function there.
#pragma once
#include "quadratic_subbotin/subgrid.hpp"
#include "service/task.hpp"

namespace ork::df {

enum Kind {
  linear_kind,
  quadratic_kind,
  cubic_kind,
  subbotin_kind,
  arbitrary_kind,
  step_left_kind,
  step_right_kind,
  look_up_kind,
  kinds
};

constexpr int block = 64;  // sites evaluated at a time

// What an evaluator reads of a task.
template <class T>
struct Fit {
  int nx;
  const T* x;
  bool uniform;
  T step;  // of a uniform partition
  int64_t icType;
  const T* icValues;
  int ny;
  void* const* y;
  bool columns;
  int order;
  void* const* coeffs;

  explicit Fit(const Task* task)
      : nx(breakpoints(task)),
        x(partition<T>(task)),
        uniform(uniform_grid(task)),
        step(uniform ? grid_step<T>(task) : T(0)),
        icType(task->icType),
        icValues(internal_values<T>(task)),
        ny(functions(task)),
        y(task->y),
        columns(column_storage(task)),
        order(static_cast<int32_t>(task->splineOrder)),
        coeffs(task->coeffs) {}
  Fit() = default;
  // From the arguments of an export that takes the parts of a task one by one.
  template <class Arguments>
  static Fit of(const Arguments& a) {
    Fit fit;
    fit.nx = static_cast<int32_t>(a.nx);
    fit.x = a.x;
    fit.uniform = (a.xhint & ORK_DF_X_UNIFORM) != 0;
    fit.step = a.step;
    fit.icType = a.ic_type;
    fit.icValues = a.ic_values;
    fit.ny = a.ny < 1 ? 1 : static_cast<int32_t>(a.ny);
    fit.y = reinterpret_cast<void* const*>(a.y);
    fit.columns = a.yhint == ORK_DF_COLS;
    fit.order = static_cast<int32_t>(a.order);
    fit.coeffs = reinterpret_cast<void* const*>(a.coeffs);
    return fit;
  }

  T right_end() const { return x[uniform ? 1 : nx - 1]; }
  T point(int i) const { return uniform ? static_cast<T>(i) * step + x[0] : x[i]; }
  const T* row(int f) const { return static_cast<const T*>(coeffs[f]); }
  Samples<T> function(int f) const {
    if (columns) return {static_cast<const T*>(y[0]) + f, ny};
    return {static_cast<const T*>(y[f]), 1};
  }
  // Point c of the Subbotin sub-grid, 1 <= c <= nx - 1.
  T inner(const Subgrid<T>& grid, int c) const {
    // The middle from one rounding of the product, where the breakpoints are computed.
    if (uniform && grid.form == Subgrid<T>::middles)
      return (static_cast<T>(c) - T(0.5)) * step + x[0];
    return grid.inner(c, point(c - 1), point(c));
  }
};

constexpr int last_piece(int kind, int nx) { return kind == subbotin_kind ? nx - 1 : nx - 2; }
constexpr int piece_of_cell(int cell, int last) {
  return cell < 1 ? 0 : cell - 1 < last ? cell - 1 : last;
}

// Which derivatives are asked for.
struct Request {
  int count;     // outputs of a site
  int place[4];  // output of orders 0 to 3, or -1
  int flags;     // entries of the flag array
  const void* flag;
  bool wide;  // entries are 64 bits wide

  bool asks(int order) const {
    if (order < 4) return place[order] >= 0;
    return order < flags && (wide ? static_cast<const int64_t*>(flag)[order] != 0
                                  : static_cast<const int32_t*>(flag)[order] != 0);
  }
};
Request read_request(int64_t flags, const void* flag, bool wide);

// Output k of the block's site j goes to base[place(j) * site + k * order].
template <class T>
struct Output {
  T* base;
  ptrdiff_t site, order;
  const int32_t* position;  // places of the sites, or null: in order

  T* at(int j, int k) const {
    return base + (position != nullptr ? position[j] : j) * site + k * order;
  }
};

// Pieces and distances of a block, with room to read whole registers past its end.
template <class T>
struct Located {
  alignas(16) int32_t piece[block + 4];
  alignas(16) T distance[block + 4];
};

template <class T>
struct Evaluator {
  int (*locate)(const Fit<T>&, int n, const T* site, const int32_t* cell, Located<T>&);
  int (*fill)(const Fit<T>&, const Request&, int n, const Located<T>&, int f, const Output<T>&);
};
template <class T>
const Evaluator<T>& evaluator(int kind);  // from a dispatch table in the order of Kind

// The kind that serves order and type, or ORK_DF_BAD_TYPE. Order 0 without values of its own
// needs callbacks for every site.
inline int kind_of(int64_t order, int64_t type, bool all_callbacks) {
  if (order == 2) return linear_kind;
  if (order == 3 && type == ORK_DF_TYPE_DEFAULT) return quadratic_kind;
  if (order == 3 && type == ORK_DF_TYPE_SUBBOTIN) return subbotin_kind;
  if (order == 4 && (type == 0 || (type >= 2 && type <= 5))) return cubic_kind;
  if (order > 4) return arbitrary_kind;
  if (order == 0) {
    if (type == ORK_DF_TYPE_STEP_LEFT) return step_left_kind;
    if (type == ORK_DF_TYPE_STEP_RIGHT) return step_right_kind;
    if (type == ORK_DF_TYPE_LOOKUP) return look_up_kind;
    if (all_callbacks) return arbitrary_kind;
  }
  return ORK_DF_BAD_TYPE;
}

// Whether the task lends what the kind reads: functions, or coefficients.
inline bool has_data(const Task* task, int kind) {
  return kind >= step_left_kind ? has_functions(task) : has_coefficients(task);
}

}  // namespace ork::df
