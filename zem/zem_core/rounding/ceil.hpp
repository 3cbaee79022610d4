#pragma once
#include "rounding/whole.hpp"

namespace ork {

// Rounds up. A zero difference is +0 in this mode: negative x above -1 need their sign back.
template <class T>
struct Ceil : WholeCore<T> {
  using typename WholeCore<T>::vec;
  using typename WholeCore<T>::ivec;
  static constexpr unsigned rounding = 0x4000;

  static vec eval(vec x, u32x4& rare) {
    rare |= WholeCore<T>::large(x);
    const ivec sign = WholeCore<T>::sign_of(x);
    const vec s = or_bits(Whole<T>::big, sign);
    return or_bits((x + s) - s, sign);
  }
};

}  // namespace ork
