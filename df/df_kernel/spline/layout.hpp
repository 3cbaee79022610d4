// How a kernel reads the partition and the functions: the two choices that, with the type,
// make the instances of every construction.
#pragma once
#include "base/lanes.hpp"
#include "service/construct.hpp"

namespace ork::df {

// Function f is a row of its own.
struct YRows {
  static constexpr bool columns = false;
  template <class T>
  struct View {
    const T* y;
    T operator[](int i) const { return y[i]; }
    template <class V>
    V lanes(int i) const {
      return get<V>(y + i);
    }
  };
  template <class T>
  static View<T> view(const Task* task, int f) {
    return {static_cast<const T*>(task->y[f])};
  }
};

// The functions' values at one breakpoint lie side by side.
struct YCols {
  static constexpr bool columns = true;
  template <class T>
  struct View {
    const T* y;
    ptrdiff_t stride;
    T operator[](int i) const { return y[i * stride]; }
    template <class V>
    V lanes(int i) const {
      const T* p = y + i * stride;
      if constexpr (sizeof(V) == sizeof(T))
        return *p;
      else if constexpr (sizeof(T) == 8)
        return V{p[0], p[stride]};
      else
        return V{p[0], p[stride], p[2 * stride], p[3 * stride]};
    }
  };
  template <class T>
  static View<T> view(const Task* task, int f) {
    return {static_cast<const T*>(task->y[0]) + f, functions(task)};
  }
};

// Breakpoints one by one.
struct NoUniformGrid {
  static constexpr bool uniform = false;
  template <class T>
  struct View {
    const T* x;
    explicit View(const Task* task) : x(partition<T>(task)) {}
    T point(int i) const { return x[i]; }
    T length(int i) const { return x[i + 1] - x[i]; }
    template <class V>
    V lengths(int i) const {
      return get<V>(x + i + 1) - get<V>(x + i);
    }
  };
};

// The two ends and a constant step.
struct UniformGrid {
  static constexpr bool uniform = true;
  template <class T>
  struct View {
    T left, step;
    explicit View(const Task* task) : left(partition<T>(task)[0]), step(grid_step<T>(task)) {}
    T point(int i) const { return left + T(i) * step; }
    T length(int) const { return step; }
    template <class V>
    V lengths(int) const {
      return all<V>(step);
    }
  };
};

// f<Y, Grid>() for the task's storage and partition.
template <class F>
int for_layout(const Task* task, F f) {
  if (column_storage(task))
    return uniform_grid(task) ? f.template operator()<YCols, UniformGrid>()
                              : f.template operator()<YCols, NoUniformGrid>();
  return uniform_grid(task) ? f.template operator()<YRows, UniformGrid>()
                            : f.template operator()<YRows, NoUniformGrid>();
}

// What a construction reads and writes must be there. 0 or a code.
inline int check_arrays(const Task* task) {
  if (!has_functions(task)) return ORK_DF_BAD_Y;
  if (!has_coefficients(task)) return ORK_DF_BAD_COEFFS;
  return ORK_DF_OK;
}

// A NaN at either end fails, too.
template <class T, class Y>
bool closes(const Task* task, int f) {
  const auto y = Y::template view<T>(task, f);
  return y[0] == y[breakpoints(task) - 1];
}

}  // namespace ork::df
