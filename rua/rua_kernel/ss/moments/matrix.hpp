// Symmetric matrices of the caller, and their working form: sums of cross-products about the
// mean, in the lower triangle of s, row after row.
#pragma once
#include <stddef.h>

#include "rua_kernel/ss/moments/kernel.hpp"

namespace ork::ss {

template <class R>
struct Symmetric {
  R* a;
  int p;
  int code;

  bool full() const { return !(code & 3); }
  // Element (i, j), j <= i.
  R& at(int i, int j) const {
    if (code & 1) return a[size_t(i) * (i + 1) / 2 + j];
    if (code & 2) return a[size_t(j) * (2 * size_t(p) - j - 1) / 2 + i];
    return a[size_t(i) * p + j];
  }
  void set(int i, int j, R value) const {
    at(i, j) = value;
    if (full()) a[size_t(j) * p + i] = value;
  }
};

enum class Form { kCrossProduct, kCovariance, kCorrelation };

// f is the divisor of a covariance: W - W2 / W. s may be the matrix itself, when that is full.
template <class R>
void to_working(const Symmetric<R>& from, Form form, R f, R* s) {
  const int p = from.p;
  const R factor = form == Form::kCrossProduct ? R(1) : f;
  for (int i = 0; i < p; ++i)
    for (int j = 0; j < i; ++j) {
      R value = from.at(i, j);
      if (form == Form::kCorrelation) value *= __builtin_sqrt(from.at(i, i) * from.at(j, j));
      s[size_t(i) * p + j] = value * factor;
    }
  for (int i = 0; i < p; ++i) s[size_t(i) * p + i] = from.at(i, i) * factor;
}

template <class R>
void from_working(const Task<R>& t, const R* s, Form form, R f, const Symmetric<R>& to) {
  const int p = to.p;
  const auto at = [&](int i, int j) { return s[size_t(i) * p + j]; };
  const R factor = form == Form::kCrossProduct ? R(1) : 1 / f;
  // The diagonal last: s may be the matrix that is written.
  for (int i = 0; i < p; ++i)
    for (int j = 0; j < i; ++j)
      if (t.selected(i) && t.selected(j))
        to.set(i, j,
               form == Form::kCorrelation ? at(i, j) / R(__builtin_sqrt(at(i, i) * at(j, j)))
                                          : factor * at(i, j));
  for (int i = 0; i < p; ++i)
    if (t.selected(i)) to.set(i, i, factor * at(i, i));
}

}  // namespace ork::ss
