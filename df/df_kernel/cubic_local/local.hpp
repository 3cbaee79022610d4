// Cubic splines whose slope at a breakpoint is a local matter: one frame for the Hermite,
// Bessel and Akima kinds, which bring the slopes.
//
// Cells are worked in short runs, with the run's divided differences, reciprocals and
// slopes in arrays of a few values. A slope depends on its neighbourhood alone, so every
// division of the cells gives the same bits.
#pragma once
#include "spline/cubic.hpp"
#include "spline/ends.hpp"
#include "spline/layout.hpp"

namespace ork::df {

// The arrays of one run. Index 0 is breakpoint or cell `origin` of the spline; there are
// `cells` cells, and one breakpoint more.
template <class T>
struct Window {
  int origin, cells;
  T *t, *w, *d;  // divided differences, weights (Akima), slopes
  T *h, *r;      // lengths and reciprocals; not used on a uniform grid
  T* gathered;   // function values, column storage only
};

// A kind of spline, Rule, provides
//   run, reach     cells of a run, and cells read beyond it on each side
//   least_nx, may_be_unset
//   check(task)    0 or a code
//   slopes<T, Grid>(task, window, first, last)
//                  d at the breakpoints first .. last of the window, no end among them
//   closed(task, left, right)
//                  the slope at the two ends of a periodic spline
template <class T, class Rule, class Y, class Grid>
struct Local {
  static constexpr int block = 2048;                                // interior cells of a task
  static constexpr int group = 4;                                   // functions of a task
  static constexpr int margin = Rule::reach > 1 ? Rule::reach : 1;  // cells that are not interior
  static constexpr int held = Rule::run + 2 * Rule::reach + 1;
  static constexpr int arrays = (Grid::uniform ? 3 : 5) + Y::columns;

  const Task* task;
  int boundary, n, ny;
  typename Grid::template View<T> x;
  T step_reciprocal;  // uniform grid
  int blocks;
  T* work;

  Window<T> window(int thread, int first, int last) const {
    const int origin = first > Rule::reach ? first - Rule::reach : 0;
    const int end = last < n - 1 - Rule::reach ? last + Rule::reach : n - 1;
    T* slice = work + static_cast<size_t>(thread) * (arrays * held);
    const auto array = [&](bool there, int k) { return there ? slice + k * held : nullptr; };
    return {origin,
            end - origin,
            slice,
            slice + held,
            slice + 2 * held,
            array(!Grid::uniform, 3),
            array(!Grid::uniform, 4),
            array(Y::columns, arrays - 1)};
  }
  template <class V>
  V reciprocals(const Window<T>& s, int i) const {
    if constexpr (Grid::uniform)
      return all<V>(step_reciprocal);
    else
      return get<V>(s.r + i);
  }

  T end(bool right, int f, T beside) const {
    const auto y = Y::template view<T>(task, f);
    const T* bc = boundary_values<T>(task);
    const End<T> first = left_end(boundary, bc, x, y), last = right_end(boundary, bc, x, y, n);
    return boundary == periodic ? Rule::closed(task, first, last)
                                : end_slope(right ? last : first, beside);
  }

  // Cells first .. last - 1, at most a run of them, for functions f0 .. f1 - 1.
  void cells(int thread, int first, int last, int f0, int f1) const {
    const Window<T> s = window(thread, first, last);
    const int begin = first - s.origin, end_of_run = last - s.origin;
    if constexpr (!Grid::uniform)
      sweep<T>(0, s.cells, [&]<class V>(int i) {
        const V length = x.template lengths<V>(s.origin + i);
        put(s.h + i, length);
        put(s.r + i, T(1) / length);
      });
    for (int f = f0; f < f1; ++f) {
      const auto view = Y::template view<T>(task, f);
      const T* y;
      if constexpr (Y::columns) {
        for (int i = 0; i <= s.cells; ++i) s.gathered[i] = view[s.origin + i];
        y = s.gathered;
      } else {
        y = view.y + s.origin;
      }
      sweep<T>(0, s.cells, [&]<class V>(int i) {
        put(s.t + i, (get<V>(y + i + 1) - get<V>(y + i)) * reciprocals<V>(s, i));
      });
      const bool at_left = first == 0, at_right = last == n - 1;
      Rule::template slopes<T, Grid>(task, s, begin + at_left, end_of_run - at_right);
      if (at_left) s.d[0] = end(false, f, s.d[1]);
      if (at_right) s.d[s.cells] = end(true, f, s.d[s.cells - 1]);
      T* coeffs = coefficients<T>(task, f) + 4 * static_cast<size_t>(first) - 4 * begin;
      sweep<T>(begin, end_of_run, [&]<class V>(int i) {
        put_cubic(coeffs + 4 * i, get<V>(y + i), get<V>(s.d + i), get<V>(s.d + i + 1),
                  get<V>(s.t + i), reciprocals<V>(s, i));
      });
    }
  }

  // A block of cells and a group of functions. The first and the last block take the
  // spline's end cells along.
  void serve(int item, int thread) const {
    const int at = item % blocks, f0 = item / blocks * group;
    const int f1 = ny - f0 < group ? ny : f0 + group;
    const int begin = at == 0 ? 0 : margin + at * block;
    const int end = at == blocks - 1 ? n - 1 : margin + (at + 1) * block;
    for (int i = begin; i < end; i += Rule::run)
      cells(thread, i, end - i < Rule::run ? end : i + Rule::run, f0, f1);
  }

  static int build(const Task* task, int boundary, const ork_threader* threader) {
    const int n = breakpoints(task), ny = functions(task);
    if (boundary == periodic)
      for (int f = 0; f < ny; ++f)
        if (!closes<T, Y>(task, f)) return ORK_DF_NOT_PERIODIC;

    const int interior = n - 1 - 2 * margin;
    const int blocks = interior > block ? (interior - 1) / block + 1 : 1;
    const int tasks = blocks * ((ny - 1) / group + 1);
    const bool launched = threader != nullptr && static_cast<int64_t>(n) * ny >= 512;
    const int threads = launched ? thread_limit(threader, tasks) : 1;
    const Scratch<T> work(static_cast<uint64_t>(threads) * (arrays * held));
    if (!work) return ORK_DF_NO_MEMORY;

    const typename Grid::template View<T> x(task);
    const Local s{task, boundary, n, ny, x, 1 / x.length(0), blocks, work.get()};
    if (launched)
      launch_items(threader, tasks, threads, [&](int item, int thread) { s.serve(item, thread); });
    else
      for (int item = 0; item < tasks; ++item) s.serve(item, 0);
    return ORK_DF_OK;
  }
};

template <class T, class Rule>
int construct_local(const Task* task, const ork_threader* threader) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  if (const int code = check_shape(task, Rule::least_nx)) return code;
  const int boundary = check_cubic_boundary(task, Rule::may_be_unset);
  if (boundary < 0) return boundary;
  if (const int code = Rule::check(task)) return code;
  if (const int code = check_arrays(task)) return code;
  return for_layout(task, [&]<class Y, class Grid>() {
    return Local<T, Rule, Y, Grid>::build(task, boundary, threader);
  });
}

}  // namespace ork::df
