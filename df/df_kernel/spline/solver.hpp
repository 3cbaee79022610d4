// The tridiagonal solvers of the dense layer. lower and upper hold n - 1 values.
#pragma once
#include "base/dense.hpp"

namespace ork::df {

// Solves for one right side; overwrites the matrix. False: the matrix is singular.
template <class T>
bool solve(int n, T* lower, T* diagonal, T* upper, T* b) {
  int one = 1, info = 0;
  ork::Dense<T>::dtsvb(&n, &one, lower, diagonal, upper, b, &n, &info);
  return info == 0;
}

// Factors in place.
template <class T>
bool factor(int n, T* lower, T* diagonal, T* upper) {
  int info = 0;
  ork::Dense<T>::dttrfb(&n, lower, diagonal, upper, &info);
  return info == 0;
}

// Solves with the factors, for `count` right sides of n values one after the other.
template <class T>
bool solve_factored(int n, int count, const T* lower, const T* diagonal, const T* upper, T* b) {
  int info = 0;
  ork::Dense<T>::dttrsb("N", &n, &count, lower, diagonal, upper, b, &n, &info);
  return info == 0;
}

}  // namespace ork::df
