#pragma once
// The error of a result against its exact value.
#include <quadmath.h>

#include <cmath>

#include "accuracy/reference.hpp"

// The precision that exact values of an element type's functions are computed in.
template <class T>
struct Wide;
template <>
struct Wide<double> {
  using type = quad;
  static constexpr int digits = 53, min_exponent = -1022, max_exponent = 1023;
  static int exponent(quad x) { return ilogbq(x); }
  static quad scale(quad x, int e) { return scalbnq(x, e); }
  static quad call(const Reference& f, int output, quad a, quad b) {
    return (output ? f.wide2 : f.wide)(a, b);
  }
};
template <>
struct Wide<float> {
  using type = long double;
  static constexpr int digits = 24, min_exponent = -126, max_exponent = 127;
  static int exponent(long double x) { return ilogbl(x); }
  static long double scale(long double x, int e) { return scalbnl(x, e); }
  static long double call(const Reference& f, int output, long double a, long double b) {
    return (output ? f.extended2 : f.extended)(a, b);
  }
};

// In ulp or relative; infinite where one of the two is a NaN, or a finite value lies where an
// infinity is due.
template <class T>
double error_of(T got, typename Wide<T>::type exact, bool relative) {
  using W = Wide<T>;
  using R = typename W::type;
  const bool nan = exact != exact;
  if (std::isnan(got) || nan) return std::isnan(got) && nan ? 0 : INFINITY;
  const R top = W::scale(1, W::max_exponent + 1);
  R value = got;
  if (std::isinf(got)) {
    // Where the exact value rounds to an infinity there is no error in giving one.
    const R magnitude = exact < 0 ? -exact : exact;
    if ((got > 0) != (exact > 0)) return INFINITY;
    if (magnitude >= top - W::scale(1, W::max_exponent - W::digits)) return 0;
    value = got > 0 ? top : -top;
  } else if (exact > top * top || exact < -top * top) {
    return INFINITY;
  }
  R difference = value - exact;
  if (difference < 0) difference = -difference;
  if (difference == 0) return 0;
  int e = exact == 0 ? W::min_exponent : W::exponent(exact);
  if (e < W::min_exponent) e = W::min_exponent;
  if (relative) {
    R magnitude = exact < 0 ? -exact : exact;
    const R least = W::scale(1, W::min_exponent);
    return double(difference / (magnitude < least ? least : magnitude));
  }
  return double(W::scale(difference, W::digits - 1 - e));
}
