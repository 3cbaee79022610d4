// Integrals of one spline between pairs of limits.
//
// With F_i the integral of piece i from its breakpoint, the integral from a in piece p to b in
// piece q is F_p(b) - F_p(a) when p = q, else (F_p(its end) - F_p(a)) + the whole pieces
// between + (F_q(b) - F_q(its start)); negated when b < a.
#pragma once
#include "interp1d/evaluate.hpp"

namespace ork::df {

// Integrals between the breakpoints cut[0], .., cut[3], known beforehand: three a function.
template <class T>
struct Middles {
  const T* value;  // null: none
  int cut[4];
};

template <class T>
struct Integrator {
  int (*locate)(const Fit<T>&, int n, const T* limit, const int32_t* cell, Located<T>&);
  // Pair j goes to result[j * stride].
  void (*integrate)(const Fit<T>&, int n, const T* left, const Located<T>& from, const T* right,
                    const Located<T>& to, int f, const Middles<T>&, T* result, ptrdiff_t stride);
};
// From a dispatch table in the order of Kind; the look-up spline has none.
template <class T>
Integrator<T> integrator(int kind);

}  // namespace ork::df
