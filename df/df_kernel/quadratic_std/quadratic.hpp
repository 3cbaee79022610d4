// Quadratic spline with its pieces on the cells: continuous slope at the breakpoints, and
// one free parameter, the value at the middle of the first cell.
//
// The value m at the middle of a cell fixes its parabola, and equal slopes at the breakpoint
// between two cells carry m from one to the next.
#pragma once
#include "spline/layout.hpp"

namespace ork::df {

template <class T, class Y, class Grid>
struct Quadratic {
  static constexpr int on_stack = 4094;  // breakpoints that need no allocation

  static void middles(const typename Grid::template View<T>& x,
                      const typename Y::template View<T>& y, int n, T first, T* m) {
    m[0] = first;
    for (int i = 0; i < n - 2; ++i) {
      if constexpr (Grid::uniform) {
        m[i + 1] = T(1.5) * y[i + 1] + T(0.25) * (y[i] + y[i + 2]) - m[i];
      } else {
        const T h = x.length(i), next = x.length(i + 1), peak = 3 * y[i + 1];
        m[i + 1] = next / 4 * ((y[i] + peak) / h + (peak + y[i + 2]) / next) - next / h * m[i];
      }
    }
  }

  static void construct(const Task* task, T* m) {
    const int n = breakpoints(task);
    const typename Grid::template View<T> x(task);
    for (int f = 0; f < functions(task); ++f) {
      const auto y = Y::template view<T>(task, f);
      middles(x, y, n, boundary_values<T>(task)[0], m);
      T* coeffs = coefficients<T>(task, f);
      sweep<T>(0, n - 1, [&]<class V>(int i) {
        const V left = y.template lanes<V>(i), right = y.template lanes<V>(i + 1);
        // By the reciprocal of half the length, whose square may be out of range.
        const V middle = get<V>(m + i), r = T(2) / x.template lengths<V>(i);
        const V bend = (left + right - T(2) * middle) * T(0.5) * r;
        put_records(coeffs + 3 * static_cast<size_t>(i), left, (middle - left) * r - bend,
                    bend * r);
      });
    }
  }

  static __attribute__((noinline)) int construct_on_stack(const Task* task) {
    T m[on_stack + 2];
    construct(task, m);
    return ORK_DF_OK;
  }
  static int build(const Task* task) {
    if (breakpoints(task) <= on_stack) return construct_on_stack(task);
    const Scratch<T> m(static_cast<uint64_t>(breakpoints(task)) + 1);
    if (!m) return ORK_DF_NO_MEMORY;
    construct(task, m.get());
    return ORK_DF_OK;
  }
};

}  // namespace ork::df
