// The sub-grid of the Subbotin spline: k_0 = x[0], one point k_i inside each cell
// x[i-1] .. x[i], k_nx = x[nx-1]. Piece i of the spline covers k_i .. k_(i+1), around
// breakpoint i.
#pragma once
#include "spline/layout.hpp"

namespace ork::df {

template <class T>
struct Subgrid {
  enum Form { middles, listed, even };  // even: k_1 .. k_(nx-1) equally spaced

  int n;
  Form form;
  const T* points;  // k_0 .. k_nx; even: k_1, k_(nx-1)
  T step;           // even

  explicit Subgrid(const Task* task)
      : Subgrid(breakpoints(task), task->icType, internal_values<T>(task)) {}
  Subgrid(int nx, int64_t ic_type, const T* values) : n(nx), points(values), step(0) {
    form = values == nullptr ? middles : ic_type & ORK_DF_IC_UNIFORM ? even : listed;
    if (form == even && n > 2) step = (points[1] - points[0]) / static_cast<T>(n - 2);
  }

  // k_i, for 1 <= i <= nx - 1, between the breakpoints `before` and `after`.
  T inner(int i, T before, T after) const {
    if (form == listed) return points[i];
    if (form == middles) return (before + after) / 2;
    return i == n - 1 ? points[1] : points[0] + static_cast<T>(i - 1) * step;
  }

  // Whether the given points fit the partition: the ends are its ends, and each other point
  // lies inside its cell. The ends of a uniform grid are computed, hence a tolerance.
  template <class Grid>
  bool fits(const Grid& x, bool uniform) const {
    if (form == middles) return true;
    if (form == listed) {
      const T tolerance = uniform ? T(0x1p-40) : T(0);
      const T left = points[0] - x.point(0), right = points[n] - x.point(n - 1);
      if (!(-tolerance <= left && left <= tolerance)) return false;
      if (!(-tolerance <= right && right <= tolerance)) return false;
    }
    for (int i = 1; i < n; ++i) {
      const T before = x.point(i - 1), after = x.point(i), k = inner(i, before, after);
      if (!(before < k && k < after)) return false;
    }
    return true;
  }
};

}  // namespace ork::df
