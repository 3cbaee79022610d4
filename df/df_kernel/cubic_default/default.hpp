// Default cubic spline: every cell comes from the second derivatives M at its two ends.
//
//   c1 = t - (M[i+1] + 2 M[i]) h / 6   c2 = M[i] / 2   c3 = (M[i+1] - M[i]) / (6 h)
//
// M is given at the interior breakpoints, one set for all functions; a boundary condition
// stands for the missing one of an end cell.
#pragma once
#include "spline/ends.hpp"
#include "spline/layout.hpp"

namespace ork::df {

template <class T>
struct Cubic {
  T c0, c1, c2, c3;
};

// The cubic through the cell's two values that has the given upper coefficients.
template <class T>
Cubic<T> through(T y, T h, T t, T c2, T c3) {
  return {y, t - (c2 + c3 * h) * h, c2, c3};
}

// m is the second derivative at the inner end, c3 the third-order coefficient of the cell
// beside. Without a cell beside it whose coefficient is known (three breakpoints), not-a-knot
// takes 0.
template <class T>
Cubic<T> first_cell(int boundary, const T* bc, T y, T h, T t, T m, T c3) {
  switch (left_condition[boundary]) {
    case Condition::not_a_knot:
      return through(y, h, t, m / 2 - 3 * h * c3, c3);
    case Condition::free:
      return through(y, h, t, T(0), m / (6 * h));
    case Condition::slope: {
      const T third = ((bc[0] - t) / h + m / 2) / (2 * h);
      return {y, bc[0], m / 2 - 3 * h * third, third};
    }
    default:
      return through(y, h, t, bc[0] / 2, (m - bc[0]) / (6 * h));  // curvature, periodic
  }
}
template <class T>
Cubic<T> last_cell(int boundary, const T* bc, T y, T h, T t, T m, T c3) {
  const T c2 = m / 2;
  switch (right_condition[boundary]) {
    case Condition::not_a_knot:
      return through(y, h, t, c2, c3);
    case Condition::free:
      return through(y, h, t, c2, -m / (6 * h));
    case Condition::slope:
      return through(y, h, t, c2, ((bc[1] - t) / h - c2) / (2 * h));
    case Condition::periodic:
      return through(y, h, t, c2, (bc[0] - m) / (6 * h));
    default:
      return through(y, h, t, c2, (bc[1] - m) / (6 * h));  // curvature
  }
}

template <class T, class Y, class Grid>
struct DefaultCubic {
  // Lengths h, reciprocals r and third-order coefficients of the cells serve all functions.
  static int build(const Task* task, int boundary) {
    const int n = breakpoints(task), last = n - 2;
    const typename Grid::template View<T> x(task);
    const T* M = internal_values<T>(task) - 1;  // M[i] belongs to breakpoint i
    const T* bc = boundary_values<T>(task);

    const Scratch<T> work(3 * static_cast<uint64_t>(n));
    if (!work) return ORK_DF_NO_MEMORY;
    T *h = work.get(), *r = h + n, *c3 = r + n;
    sweep<T>(0, n - 1, [&]<class V>(int i) {
      const V length = x.template lengths<V>(i);
      put(h + i, length);
      put(r + i, T(1) / length);
    });
    sweep<T>(1, last, [&]<class V>(int i) {
      put(c3 + i, (get<V>(M + i + 1) - get<V>(M + i)) * get<V>(r + i) / T(6));
    });
    if (last == 1) c3[1] = c3[0] = 0;

    for (int f = 0; f < functions(task); ++f) {
      if (boundary == periodic && !closes<T, Y>(task, f)) return ORK_DF_NOT_PERIODIC;
      const auto y = Y::template view<T>(task, f);
      T* coeffs = coefficients<T>(task, f);
      const auto store = [&](int i, Cubic<T> c) {
        put_records(coeffs + 4 * static_cast<size_t>(i), c.c0, c.c1, c.c2, c.c3);
      };
      const auto difference = [&](int i) { return (y[i + 1] - y[i]) * r[i]; };
      store(0, first_cell(boundary, bc, y[0], h[0], difference(0), M[1], c3[1]));
      sweep<T>(1, last, [&]<class V>(int i) {
        const V left = y.template lanes<V>(i), length = get<V>(h + i), third = get<V>(c3 + i);
        const V t = (y.template lanes<V>(i + 1) - left) * get<V>(r + i), c2 = get<V>(M + i) / T(2);
        put_records(coeffs + 4 * static_cast<size_t>(i), left, t - (c2 + third * length) * length,
                    c2, third);
      });
      store(last,
            last_cell(boundary, bc, y[last], h[last], difference(last), M[last], c3[last - 1]));
    }
    return ORK_DF_OK;
  }
};

}  // namespace ork::df
