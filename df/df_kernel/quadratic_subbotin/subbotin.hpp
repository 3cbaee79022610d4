// Subbotin quadratic spline: one parabola around each breakpoint, joined with continuous
// value and slope at the points of a sub-grid between the breakpoints.
//
// On k_i .. k_(i+1) the spline is y[i] + z[i] (s - x[i]) + c[i] (s - x[i])^2. With
// a[i] = k_(i+1) - x[i], b[i] = x[i+1] - k_(i+1), h = a + b, D[i] = y[i+1] - y[i], the slopes
// z solve a tridiagonal system; row i of the interior, with H = x[i+1] - x[i-1], is
//
//   l z[i-1] + (2 + l + u) z[i] + u z[i+1]
//       = 2 (D[i-1] h[i] / (H b[i-1]) + D[i] h[i-1] / (H a[i])),
//   l = a[i-1] h[i] / (H b[i-1]),  u = b[i] h[i-1] / (H a[i]).
#pragma once
#include "quadratic_subbotin/subgrid.hpp"
#include "spline/ends.hpp"
#include "spline/solver.hpp"

namespace ork::df {

template <class T, class Y, class Grid>
struct Subbotin {
  const Task* task;
  int n;
  T *a, *b;  // of the cells
  T *lower, *diagonal, *upper, *z;
  bool left_known, right_known;  // the slope at that end is given

  T length(int i) const { return a[i] + b[i]; }

  // The cells' parts on both sides of their sub-grid point.
  void split(const typename Grid::template View<T>& x, const Subgrid<T>& k) const {
    for (int i = 1; i < n; ++i) {
      const T before = x.point(i - 1), after = x.point(i), point = k.inner(i, before, after);
      a[i - 1] = point - before, b[i - 1] = after - point;
    }
  }

  // Rows of all breakpoints, then the known slopes move to the right side.
  void system(const typename Y::template View<T>& y, const T* bc) const {
    for (int i = 1; i < n - 1; ++i) {
      const T before = length(i - 1), after = length(i), H = before + after;
      const T to_left = after / H / b[i - 1], to_right = before / H / a[i];
      lower[i - 1] = a[i - 1] * to_left, upper[i] = b[i] * to_right;
      diagonal[i] = 2 + lower[i - 1] + upper[i];
      z[i] = 2 * ((y[i] - y[i - 1]) * to_left + (y[i + 1] - y[i]) * to_right);
    }
    const int m = n - 2;  // the last cell
    const T h = length(0), g = length(m);
    diagonal[0] = 1 + a[0] / h, upper[0] = b[0] / h;
    lower[m] = a[m] / g, diagonal[m + 1] = 1 + b[m] / g;
    z[0] = left_known ? bc[0] : 2 * (y[1] - y[0]) / h - bc[0] * a[0];
    z[m + 1] = right_known ? bc[1] : 2 * (y[m + 1] - y[m]) / g + bc[1] * b[m];
    if (left_known) z[1] -= right_known && n == 2 ? 0 : lower[0] * z[0];
    if (right_known) z[m] -= left_known && n == 2 ? 0 : upper[m] * z[m + 1];
  }

  bool slopes() const {
    const int first = left_known, unknown = n - left_known - right_known;
    return unknown == 0 ||
           solve(unknown, lower + first, diagonal + first, upper + first, z + first);
  }

  // The second-order coefficients but the last come from the slopes at the two ends of
  // their cell, the last one or two from the value at the sub-grid point before them.
  void write(const typename Y::template View<T>& y, T* coeffs) const {
    T c = 0;
    for (int i = 0; i < n; ++i) {
      if (i < n - 2 || i == 0)
        c = (2 * (y[i + 1] - y[i]) - length(i) * (z[i] + z[i + 1])) / (2 * a[i]) / length(i) +
            (z[i + 1] - z[i]) / (2 * length(i));
      else
        c -= (y[i] - y[i - 1] - length(i - 1) * (z[i - 1] + z[i]) / 2) / a[i - 1] / b[i - 1];
      put_records(coeffs + 3 * static_cast<size_t>(i), y[i], z[i], c);
    }
  }

  static int build(const Task* task, int boundary) {
    const int n = breakpoints(task);
    const typename Grid::template View<T> x(task);
    const Subgrid<T> k(task);
    if (!k.fits(x, Grid::uniform)) return ORK_DF_BAD_IC_VALUES;

    const Scratch<T> work(8 * (static_cast<uint64_t>(n) + 1));
    if (!work) return ORK_DF_NO_MEMORY;
    const auto part = [&](int i) { return work.get() + static_cast<size_t>(i) * n; };
    const Subbotin s{task,
                     n,
                     part(0),
                     part(1),
                     part(2),
                     part(3),
                     part(4),
                     part(5),
                     left_condition[boundary] == Condition::slope,
                     right_condition[boundary] == Condition::slope};
    s.split(x, k);
    for (int f = 0; f < functions(task); ++f) {
      const auto y = Y::template view<T>(task, f);
      s.system(y, boundary_values<T>(task));
      if (!s.slopes()) return ORK_DF_SOLVER_FAILED;
      s.write(y, coefficients<T>(task, f));
    }
    return ORK_DF_OK;
  }
};

}  // namespace ork::df
