// Natural cubic spline: the slopes d at the breakpoints make the second derivative
// continuous, which is one tridiagonal system with the same matrix for every function.
//
//   h[i] d[i-1] + 2 (h[i-1] + h[i]) d[i] + h[i-1] d[i+1] = 3 (h[i] t[i-1] + h[i-1] t[i])
//
// with cell lengths h and divided differences t; divided by h on a uniform grid. A single
// function is solved in one call. Otherwise the matrix is factored once; the functions are
// then solved together, or one by one on several threads with the same bits.
//
// A periodic spline makes the system cyclic: A = T + u v', T tridiagonal, v zero but for a
// one in rows 0 and n - 2. With T z = u and T w = right side, d = w - z (v'w) / (1 + v'z).
#pragma once
#include "spline/cubic.hpp"
#include "spline/ends.hpp"
#include "spline/layout.hpp"
#include "spline/solver.hpp"

namespace ork::df {

template <class T, class Y, class Grid>
struct Natural {
  const Task* task;
  int boundary;
  int n;
  typename Grid::template View<T> x;
  T *h, *r;                     // lengths and reciprocals; not used on a uniform grid
  T *lower, *diagonal, *upper;  // the matrix, then its factors
  T* z;                         // T z = u, periodic
  T* columns;                   // right sides, then slopes: n values each
  T* differences;               // t: n - 1 values each

  bool is_periodic() const { return boundary == periodic; }
  T* column(int k) const { return columns + static_cast<size_t>(k) * n; }
  T* difference(int k) const { return differences + static_cast<size_t>(k) * (n - 1); }

  template <class V>
  V reciprocals(int i) const {
    if constexpr (Grid::uniform)
      return all<V>(r[0]);
    else
      return get<V>(r + i);
  }

  void matrix() const {
    if constexpr (Grid::uniform) {
      r[0] = 1 / x.length(0);
      for (int i = 0; i < n - 1; ++i) lower[i] = upper[i] = 1, diagonal[i] = 4;
      diagonal[n - 1] = 4;
    } else {
      sweep<T>(0, n - 1, [&]<class V>(int i) {
        const V length = x.template lengths<V>(i);
        put(h + i, length);
        put(r + i, T(1) / length);
      });
      sweep<T>(1, n - 1, [&]<class V>(int i) {
        const V before = get<V>(h + i - 1), after = get<V>(h + i);
        put(lower + i - 1, after);
        put(diagonal + i, T(2) * (before + after));
        put(upper + i, before);
      });
    }
    is_periodic() ? cyclic_rows() : end_rows();
  }

  // Three points hold one parabola, and the two not-a-knot rows then say the same: the
  // right one gives way to "no third derivative in the last cell".
  bool parabola() const { return boundary == not_a_knot && n == 3; }

  void end_rows() const {
    const auto y = Y::template view<T>(task, 0);  // the matrix does not depend on it
    const T* bc = boundary_values<T>(task);
    const auto left = end_row(left_end(boundary, bc, x, y), Grid::uniform);
    const auto right = end_row(right_end(boundary, bc, x, y, n), Grid::uniform);
    diagonal[0] = left.diagonal, upper[0] = left.beside;
    diagonal[n - 1] = right.diagonal, lower[n - 2] = right.beside;
    if (parabola()) diagonal[2] = lower[1] = 1;
  }

  void cyclic_rows() const {
    const T first = Grid::uniform ? 1 : h[0], last = Grid::uniform ? 1 : h[n - 2];
    const T before_last = Grid::uniform ? 1 : h[n - 3];
    diagonal[0] = first + 2 * last, upper[0] = last;
    lower[n - 3] = last, diagonal[n - 2] = 2 * last + before_last;
    upper[n - 2] = lower[n - 2] = 0, diagonal[n - 1] = 1;  // d[n - 1] is d[0]
    for (int i = 0; i < n; ++i) z[i] = 0;
    z[0] = first, z[n - 2] = before_last;
  }

  // t and the right side of function f.
  int right_side(int f, T* t, T* b) const {
    if (is_periodic() && !closes<T, Y>(task, f)) return ORK_DF_NOT_PERIODIC;
    const auto y = Y::template view<T>(task, f);
    sweep<T>(0, n - 1, [&]<class V>(int i) {
      put(t + i, (y.template lanes<V>(i + 1) - y.template lanes<V>(i)) * reciprocals<V>(i));
    });
    sweep<T>(1, n - 1, [&]<class V>(int i) {
      V before = get<V>(t + i - 1), after = get<V>(t + i);
      if constexpr (!Grid::uniform) before *= get<V>(h + i), after *= get<V>(h + i - 1);
      put(b + i, T(3) * (before + after));
    });
    if (is_periodic()) {
      b[0] = Grid::uniform ? 3 * (t[0] + t[n - 2]) : 3 * (h[n - 2] * t[0] + h[0] * t[n - 2]);
      b[n - 1] = 0;
    } else {
      const T* bc = boundary_values<T>(task);
      b[0] = end_row(left_end(boundary, bc, x, y), Grid::uniform).right;
      b[n - 1] = end_row(right_end(boundary, bc, x, y, n), Grid::uniform).right;
      if (parabola()) b[2] = 2 * t[1];
    }
    return ORK_DF_OK;
  }

  // From the solution d of function f, which is corrected in place when periodic.
  void write(int f, const T* t, T* d) const {
    if (is_periodic()) {
      const T scale = (d[0] + d[n - 2]) / (1 + z[0] + z[n - 2]);
      sweep<T>(0, n - 1,
               [&]<class V>(int i) { put(d + i, get<V>(d + i) - get<V>(z + i) * scale); });
      d[n - 1] = d[0];
    }
    const auto y = Y::template view<T>(task, f);
    T* coeffs = coefficients<T>(task, f);
    sweep<T>(0, n - 1, [&]<class V>(int i) {
      put_cubic(coeffs + 4 * static_cast<size_t>(i), y.template lanes<V>(i), get<V>(d + i),
                get<V>(d + i + 1), get<V>(t + i), reciprocals<V>(i));
    });
  }

  int one_function() const {
    if (const int code = right_side(0, difference(0), column(0))) return code;
    if (!solve(n, lower, diagonal, upper, column(0))) return ORK_DF_SOLVER_FAILED;
    write(0, difference(0), column(0));
    return ORK_DF_OK;
  }

  // The periodic column u stands after the functions' right sides.
  int together(int ny) const {
    for (int f = 0; f < ny; ++f)
      if (const int code = right_side(f, difference(f), column(f))) return code;
    if (!solve_factored(n, ny + is_periodic(), lower, diagonal, upper, columns))
      return ORK_DF_SOLVER_FAILED;
    for (int f = 0; f < ny; ++f) write(f, difference(f), column(f));
    return ORK_DF_OK;
  }

  // Function f in a thread's own column.
  int apart(int f, int thread) const {
    T *t = difference(thread), *b = column(thread);
    if (const int code = right_side(f, t, b)) return code;
    if (!solve_factored(n, 1, lower, diagonal, upper, b)) return ORK_DF_SOLVER_FAILED;
    write(f, t, b);
    return ORK_DF_OK;
  }
  int spread(int ny, int threads, const ork_threader* threader) const {
    if (is_periodic() && !solve_factored(n, 1, lower, diagonal, upper, z))
      return ORK_DF_SOLVER_FAILED;
    const Scratch<int32_t> status(ny);
    if (!status) return ORK_DF_NO_MEMORY;
    launch_items(threader, ny, threads, [&](int f, int thread) { status[f] = apart(f, thread); });
    for (int f = 0; f < ny; ++f)
      if (status[f] != ORK_DF_OK) return status[f];
    return ORK_DF_OK;
  }

  static int build(const Task* task, int boundary, const ork_threader* threader) {
    const int n = breakpoints(task), ny = functions(task);
    const int threads = thread_limit(threader, ny);
    const bool parallel = ny > 1 && threads > 1 && n >= 300 && (n >= 600 || threads >= 8);
    const bool factored = ny > 1 || boundary == periodic;

    // h, r, three diagonals; right sides for each function or thread; z, which is the next
    // right side of a joint solve; t for each function or thread.
    const uint64_t held = parallel ? threads : ny;
    const Scratch<T> work((2 * held + 6) * static_cast<uint64_t>(n));
    if (!work) return ORK_DF_NO_MEMORY;
    const auto part = [&](uint64_t k) { return work.get() + static_cast<size_t>(k * n); };
    const Natural s{task,    boundary,       n,       typename Grid::template View<T>(task),
                    part(0), part(1),        part(2), part(3),
                    part(4), part(5 + held), part(5), part(6 + held)};
    s.matrix();
    if (!factored) return s.one_function();
    if (!factor(n, s.lower, s.diagonal, s.upper)) return ORK_DF_SOLVER_FAILED;
    return parallel ? s.spread(ny, threads, threader) : s.together(ny);
  }
};

}  // namespace ork::df
