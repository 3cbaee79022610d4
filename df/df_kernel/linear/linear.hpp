// Linear spline: value and slope side by side for each cell.
#pragma once
#include "spline/layout.hpp"

namespace ork::df {

template <class T, class Y, class Grid>
struct Linear {
  static constexpr int block = 1024;  // cells of a task
  static constexpr int group = 4;     // functions of a task

  const Task* task;
  int n, ny;
  typename Grid::template View<T> x;
  T per_step;  // (nx - 1) / (x[1] - x[0]), uniform grid
  int blocks;

  void cells(int f, int first, int last) const {
    const auto y = Y::template view<T>(task, f);
    T* coeffs = coefficients<T>(task, f);
    sweep<T>(first, last, [&]<class V>(int i) {
      const V left = y.template lanes<V>(i), rise = y.template lanes<V>(i + 1) - left;
      V slope;
      if constexpr (Grid::uniform)
        slope = rise * per_step;
      else
        slope = rise / x.template lengths<V>(i);
      put_records(coeffs + 2 * static_cast<size_t>(i), left, slope);
    });
  }

  void serve(int item) const {
    const int first = item % blocks * block, f0 = item / blocks * group;
    const int last = n - 1 - first < block ? n - 1 : first + block;
    for (int f = f0; f < ny && f < f0 + group; ++f) cells(f, first, last);
  }

  static int build(const Task* task, const ork_threader* threader) {
    const int n = breakpoints(task), ny = functions(task);
    if (task->bcType == ORK_DF_BC_PERIODIC)
      for (int f = 0; f < ny; ++f)
        if (!closes<T, Y>(task, f)) return ORK_DF_NOT_PERIODIC;

    const T* ends = partition<T>(task);
    const Linear s{task,
                   n,
                   ny,
                   typename Grid::template View<T>(task),
                   static_cast<T>(n - 1) / (ends[1] - ends[0]),
                   (n - 2) / block + 1};
    const int tasks = s.blocks * ((ny - 1) / group + 1);
    if (static_cast<int64_t>(n) * ny < 128) {  // a small fit
      for (int f = 0; f < ny; ++f) s.cells(f, 0, n - 1);
    } else if (tasks < 5 || threader == nullptr) {
      for (int item = 0; item < tasks; ++item) s.serve(item);
    } else {
      launch_items(threader, tasks, thread_limit(threader, tasks),
                   [&](int item, int) { s.serve(item); });
    }
    return ORK_DF_OK;
  }
};

}  // namespace ork::df
