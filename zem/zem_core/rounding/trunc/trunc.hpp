#pragma once
#include "rounding/ceil.hpp"

namespace ork {

// Rounds toward zero: the sum of Ceil in another mode.
template <class T>
struct Trunc : Ceil<T> {
  static constexpr unsigned rounding = 0x6000;
};

}  // namespace ork
