#pragma once
#include "arithmetic/div.hpp"

namespace ork {

// HA, and LA in double. 1 / x; rare are the zeros.
template <class T>
struct InvHa : Core<T> {
  using vec = vec_of<T>;
  static constexpr char name[] = {'v', sizeof(T) == 8 ? 'd' : 's', 'I', 'n', 'v', 0};
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
