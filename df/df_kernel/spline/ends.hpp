// Conditions at one end of a spline given by its slopes at the breakpoints.
//
// Both ends are told as the left one; the right end is its mirror image, in which only the
// sign of a prescribed second derivative changes.
#pragma once
#include "service/construct.hpp"

namespace ork::df {

enum class Condition { not_a_knot, free, slope, curvature, periodic, not_set };

constexpr Condition left_condition[] = {
    Condition::not_a_knot, Condition::free,      Condition::slope,    Condition::slope,
    Condition::curvature,  Condition::curvature, Condition::periodic, Condition::not_set};
constexpr Condition right_condition[] = {
    Condition::not_a_knot, Condition::free,      Condition::slope,    Condition::curvature,
    Condition::slope,      Condition::curvature, Condition::periodic, Condition::not_set};

template <class T>
struct End {
  Condition condition;
  T value;   // prescribed slope; second derivative, negated at the right end
  T h0, t0;  // length and divided difference of the end cell
  T h1, t1;  // and of the cell beside it
};

template <class T, class Grid, class Values>
End<T> left_end(int boundary, const T* bc, const Grid& x, const Values& y) {
  const Condition condition = left_condition[boundary];
  const bool given = condition == Condition::slope || condition == Condition::curvature;
  const T h0 = x.length(0), h1 = x.length(1);
  return {condition, given ? bc[0] : T(0), h0, (y[1] - y[0]) / h0, h1, (y[2] - y[1]) / h1};
}
template <class T, class Grid, class Values>
End<T> right_end(int boundary, const T* bc, const Grid& x, const Values& y, int n) {
  const Condition condition = right_condition[boundary];
  const T value = condition == Condition::slope       ? bc[1]
                  : condition == Condition::curvature ? -bc[1]
                                                      : T(0);
  const T h0 = x.length(n - 2), h1 = x.length(n - 3);
  return {condition, value, h0, (y[n - 1] - y[n - 2]) / h0, h1, (y[n - 2] - y[n - 3]) / h1};
}

// diagonal * d_0 + beside * d_1 = right
template <class T>
struct EndRow {
  T diagonal, beside, right;
};

// Not-a-knot: one cubic on the two end cells. The row is divided by the step when the grid
// is uniform, to match the rows 1 4 1 of the interior. Lengths meet as ratios: their squares
// leave the range first.
template <class T>
EndRow<T> end_row(const End<T>& e, bool uniform) {
  switch (e.condition) {
    case Condition::slope:
      return {1, 0, e.value};
    case Condition::curvature:
      return {2, 1, 3 * e.t0 - e.value * e.h0 / 2};
    case Condition::not_a_knot: {
      if (uniform) return {1, 2, (e.t1 + 5 * e.t0) / 2};
      const T H = e.h0 + e.h1;
      return {e.h1, H, e.h0 * (e.h0 / H) * e.t1 + (e.h0 + 2 * H) * (e.h1 / H) * e.t0};
    }
    default:
      return {2, 1, 3 * e.t0};  // free: no curvature
  }
}

// The slope at the end when the one beside it is known. Periodic ends are each kind's own.
template <class T>
T end_slope(const End<T>& e, T beside) {
  if (e.condition == Condition::slope) return e.value;
  if (e.condition == Condition::not_set) return (3 * e.t0 - e.t1) / 2;
  const EndRow<T> row = end_row(e, false);
  return (row.right - row.beside * beside) / row.diagonal;
}

}  // namespace ork::df
