#pragma once
#include "rounding/whole.hpp"

namespace ork {

// Rounds to nearest, ties away from zero: to even first, then the ties that went down are
// raised. The difference of the two is exact.
template <class T>
struct Round : WholeCore<T> {
  using typename WholeCore<T>::vec;
  using typename WholeCore<T>::ivec;

  static vec eval(vec x, u32x4& rare) {
    rare |= WholeCore<T>::large(x);
    const vec a = abs(x);
    const vec t = (a + Whole<T>::big) - Whole<T>::big;
    const vec lowered = (vec)(a - t == splat(T(0.5)));
    return or_bits(t + and_bits(splat(T(1)), as<ivec>(lowered)), WholeCore<T>::sign_of(x));
  }
};

}  // namespace ork
