#pragma once
#include "rint/whole.hpp"

namespace ork {

// Rounds toward zero.
template <class T> struct Trunc : WholeCore<T> {
  using typename WholeCore<T>::vec;
  using typename WholeCore<T>::ivec;
  static constexpr unsigned rounding = 0x6000;

  static vec eval(vec x, u32x4& rare) {
    rare |= WholeCore<T>::large(x);
    const ivec sign = WholeCore<T>::sign_of(x);
    const vec s = or_bits(Whole<T>::big, sign);
    return or_bits((x + s) - s, sign);
  }
};

}  // namespace ork
