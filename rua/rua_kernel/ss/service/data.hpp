// The observation matrix as computations read it.
#pragma once
#include <string.h>

#include "rua_kernel/ss/service/task.hpp"

namespace ork::ss {

// Reals at equal distances: the observations of a variable.
template <class R>
struct Series {
  const R* x;
  size_t step;

  const R& operator[](int i) const { return x[i * step]; }
  // Observations [first, first + count), side by side.
  void copy(int first, int count, R* to) const {
    if (step == 1)
      memcpy(to, x + first, size_t(count) * sizeof(R));
    else
      for (int i = 0; i < count; ++i) to[i] = (*this)[first + i];
  }
};

template <class R>
struct Data {
  int n, p;
  const R *x, *w;  // w null: all 1
  // Each variable's observations stand side by side. A single variable's do in either layout.
  bool rows;

  Series<R> variable(int j) const {
    return rows ? Series<R>{x + size_t(j) * n, 1} : Series<R>{x + j, size_t(p)};
  }
};

template <class R>
inline Data<R> data_of(const Task<R>& t) {
  const int p = t.p();
  return {t.n(), p, t.observations, t.weights, t.rows() || p == 1};
}

}  // namespace ork::ss
