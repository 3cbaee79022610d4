// The tridiagonal solvers of the dense layer, by type. lower and upper hold n - 1 values.
#pragma once
#include "ork/dense.h"

namespace df {

// Solves for one right side; overwrites the matrix. False: the matrix is singular.
inline bool solve(int n, double* lower, double* diagonal, double* upper, double* b) {
  int one = 1, info = 0;
  ddtsvb_4dfl(&n, &one, lower, diagonal, upper, b, &n, &info);
  return info == 0;
}
inline bool solve(int n, float* lower, float* diagonal, float* upper, float* b) {
  int one = 1, info = 0;
  sdtsvb_4dfl(&n, &one, lower, diagonal, upper, b, &n, &info);
  return info == 0;
}

// Factors in place.
inline bool factor(int n, double* lower, double* diagonal, double* upper) {
  int info = 0;
  ddttrfb_4dfl(&n, lower, diagonal, upper, &info);
  return info == 0;
}
inline bool factor(int n, float* lower, float* diagonal, float* upper) {
  int info = 0;
  sdttrfb_4dfl(&n, lower, diagonal, upper, &info);
  return info == 0;
}

// Solves with the factors, for `count` right sides of n values one behind the other.
inline bool solve_factored(int n, int count, const double* lower, const double* diagonal,
                           const double* upper, double* b) {
  int info = 0;
  ddttrsb_4dfl("N", &n, &count, lower, diagonal, upper, b, &n, &info);
  return info == 0;
}
inline bool solve_factored(int n, int count, const float* lower, const float* diagonal,
                           const float* upper, float* b) {
  int info = 0;
  sdttrsb_4dfl("N", &n, &count, lower, diagonal, upper, b, &n, &info);
  return info == 0;
}

}  // namespace df
