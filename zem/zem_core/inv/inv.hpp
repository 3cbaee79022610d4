#pragma once
#include "div/div.hpp"

namespace ork {

template <class T> inline constexpr char inv_name[] = "vdInv";
template <> inline constexpr char inv_name<float>[] = "vsInv";

// HA, and LA in double. 1 / x; rare are the zeros.
template <class T> struct InvHa : Core<T> {
  using vec = vec_of<T>;
  static constexpr auto& name = inv_name<T>;
  static vec eval(vec x, u32x4& rare) {
    rare |= as<u32x4>(x == splat(T(0)));
    return splat(T(1)) / x;
  }
  static int special(const T* x, T* r) {
    *r = T(1) / *x;
    return magnitude(x) == 0 ? ZEM_STATUS_SINGULARITY : ZEM_STATUS_NONE;
  }
};

}  // namespace ork
