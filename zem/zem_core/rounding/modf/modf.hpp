#pragma once
#include "rounding/whole.hpp"

namespace ork {

// Integer part and fraction, both with the sign of x. The difference is exact.
template <class T>
struct Modf : WholeCore<T, 2> {
  using Base = WholeCore<T, 2>;
  using typename Base::ivec;
  using typename Base::vec;
  static constexpr unsigned rounding = 0x6000;  // toward zero

  static vec eval(vec x, vec& fraction, u32x4& rare) {
    rare |= Base::large(x);
    const ivec sign = Base::sign_of(x);
    const vec a = abs(x);
    const vec t = (a + Whole<T>::big) - Whole<T>::big;
    fraction = or_bits(a - t, sign);
    return or_bits(t, sign);
  }
  static int special(const T* x, T* r, T* r2) {
    Base::special(x, r);
    *r2 = *r != *r ? *r : as<T>(sign(x));
    return ZEM_STATUS_NONE;
  }
};

}  // namespace ork
