// The working form of symmetric matrices: sums of cross-products about the mean, in the lower
// triangle of s, row after row.
#pragma once
#include "rua_kernel/ss/service/symmetric.hpp"

namespace ork::ss {

enum class Form { kCrossProduct, kCovariance, kCorrelation };

// sqrt(a b) in extended precision, where the product of two variances stays in range and that of
// equal ones has itself as its root.
inline long double root_of_product(long double a, long double b) { return __builtin_sqrtl(a * b); }

// f is the divisor of a covariance: W - W2 / W. s may be the matrix itself, when that is full.
template <class R>
void to_working(const Symmetric<R>& from, Form form, R f, R* s) {
  const int p = from.p;
  const R factor = form == Form::kCrossProduct ? R(1) : f;
  for (int i = 0; i < p; ++i)
    for (int j = 0; j < i; ++j) {
      R value = from.at(i, j);
      if (form == Form::kCorrelation) value *= R(root_of_product(from.at(i, i), from.at(j, j)));
      s[size_t(i) * p + j] = value * factor;
    }
  for (int i = 0; i < p; ++i) s[size_t(i) * p + i] = from.at(i, i) * factor;
}

template <class R>
void from_working(const Task<R>& t, const R* s, Form form, R f, bool own_mean,
                  const Symmetric<R>& to) {
  const auto at = [&](int i, int j) { return s[size_t(i) * to.p + j]; };
  const R factor = form == Form::kCrossProduct ? R(1) : 1 / f;
  // Of one observation, about its own mean, nothing but rounding is left: blocks go on from zeros.
  const auto is_nothing = [&](R sum) {
    return f == 0 && form != Form::kCrossProduct && (own_mean || sum == 0);
  };
  put_matrix(t, to, [&](int i, int j) {
    if (is_nothing(at(i, j))) return R(0);
    return form == Form::kCorrelation && i != j ? R(at(i, j) / root_of_product(at(i, i), at(j, j)))
                                                : factor * at(i, j);
  });
}

}  // namespace ork::ss
