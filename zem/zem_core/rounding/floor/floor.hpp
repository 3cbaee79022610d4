#pragma once
#include "rounding/whole.hpp"

namespace ork {

// Rounds down. A zero difference is -0 in this mode: the AND leaves the sign only to negative x.
template <class T>
struct Floor : WholeCore<T> {
  using typename WholeCore<T>::vec;
  using typename WholeCore<T>::ivec;
  static constexpr unsigned rounding = 0x2000;

  static vec eval(vec x, u32x4& rare) {
    rare |= WholeCore<T>::large(x);
    const ivec g = as<ivec>(x) | ~Whole<T>::sign;
    const vec s = and_bits(-Whole<T>::big, g);  // 2^52 with the sign of x
    return and_bits((x + s) - s, g);
  }
};

}  // namespace ork
