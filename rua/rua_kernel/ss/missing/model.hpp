// What expectation-maximisation and the chain share: the parameters, the sums that no step changes,
// and those of the step at hand.
#pragma once
#include <algorithm>

#include "base/dense.hpp"
#include "base/scratch.hpp"
#include "rua_kernel/ss/missing/patterns.hpp"
#include "rua_kernel/ss/missing/sums.hpp"

namespace ork::ss {

// Whether about half of p variables are missing: then nearly a quarter of all products of two
// variables are of a missing and an observed one, and the dense layer does all of them faster.
inline bool near_half(int gaps, int p) {
  const int away = gaps - p / 2;
  return -away < p / 4 && away < p / 4;
}

// A place in a block that may have found no memory.
template <class T>
T* place(const Scratch<T>& block, uint64_t offset) {
  return block ? block.get() + offset : nullptr;
}

template <class R>
struct Model {
  const int p, d;
  Scratch<R> reals;
  Scratch<int32_t> numbers;
  SweepForm<R> theta;     // the parameters, swept to the pattern at hand
  SweepForm<R> constant;  // products of what is there, over all observations; upper triangle
  SweepForm<R> sums;      // constant, and what a step adds for missing entries
  SweepForm<R> other;     // parameters before a step, completed data behind one
  R* row;                 // d reals

  explicit Model(int variables)
      : p(variables),
        d(variables + 1),
        reals(4 * square() + d),
        numbers(2 * uint64_t(variables)),
        theta{reals.get(), d},
        constant{place(reals, square()), d},
        sums{place(reals, 2 * square()), d},
        other{place(reals, 3 * square()), d},
        row(place(reals, 4 * square())) {}
  explicit operator bool() const { return reals && numbers; }

  uint64_t square() const { return uint64_t(d) * d; }

  void set_constant(const Patterns<R>& patterns) {
    const int n = patterns.n;
    const R one = 1;
    const R* const x = patterns.rows(patterns[0]);
    std::fill_n(constant.a, square(), R(0));
    constant[0][0] = R(n);
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < p; ++j) constant[0][j + 1] += x[size_t(i) * p + j];
    Dense<R>::syrk("L", "N", &p, &n, &one, x, &p, &one, constant[1] + 1, &d);
  }

  // Sweeps theta to pattern k, from wherever it is, and lists its members. A zero diagonal is left
  // alone.
  Members sweep_to(const Patterns<R>& patterns, int k) {
    int32_t *const missing = numbers.get(), *const present = missing + p;
    const int gaps = patterns[k].gaps;
    patterns.members(k, missing, present);
    for (int j = 0; j < p; ++j) {
      const R pivot = theta[j + 1][j + 1];
      if (patterns.has(k, j) ? pivot > 0 : pivot < 0) theta.sweep(j + 1, row);
    }
    return {gaps, missing, present};
  }

  // Estimates as callers have them: means, then the rows of the covariance's upper triangle.
  // The parameters are about the centre of the data.
  void get_estimates(const R* centre, R* to) const {
    for (int j = 0; j < p; ++j) *to++ = theta[0][j + 1] + centre[j];
    for (int i = 1; i < d; ++i)
      for (int j = i; j < d; ++j) *to++ = theta[i][j];
  }
  void set_estimates(const R* centre, const R* from) {
    theta[0][0] = -1;
    for (int j = 0; j < p; ++j) theta[j + 1][0] = *from++ - centre[j];
    for (int i = 1; i < d; ++i)
      for (int j = i; j < d; ++j) theta[j][i] = *from++;
    theta.mirror();
  }
};

}  // namespace ork::ss
