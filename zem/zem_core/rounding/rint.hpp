#pragma once
#include "rounding/whole.hpp"

namespace ork {

// Rounds in the caller's mode: Rint and NearbyInt. A zero difference has the sign that the
// mode gives it, so the sign of x replaces it.
template <class T>
struct Rint : WholeCore<T> {
  using typename WholeCore<T>::vec;
  using typename WholeCore<T>::ivec;
  static constexpr Csr csr = Csr::untouched;

  static vec eval(vec x, u32x4& rare) {
    rare |= WholeCore<T>::large(x);
    const ivec sign = WholeCore<T>::sign_of(x);
    const vec s = or_bits(Whole<T>::big, sign);
    return or_bits(abs((x + s) - s), sign);
  }
};

}  // namespace ork
