// The working form of symmetric matrices: sums of cross-products about the mean, in the lower
// triangle of s, row after row.
#pragma once
#include "rua_kernel/ss/service/symmetric.hpp"

namespace ork::ss {

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
  const auto at = [&](int i, int j) { return s[size_t(i) * to.p + j]; };
  const R factor = form == Form::kCrossProduct ? R(1) : 1 / f;
  put_matrix(t, to, [&](int i, int j) {
    return form == Form::kCorrelation && i != j ? at(i, j) / R(__builtin_sqrt(at(i, i) * at(j, j)))
                                                : factor * at(i, j);
  });
}

}  // namespace ork::ss
