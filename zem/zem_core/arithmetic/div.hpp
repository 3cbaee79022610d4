#pragma once
// Division and reciprocal by the divide instruction, correctly rounded.
#include "base/image.hpp"
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {

// The event of a division by zero. In double an infinite numerator reports nothing, in single it
// does; a NaN never.
template <class T>
ORK_INLINE int division_status(const T* a, const T* b) {
  const bool reported =
      sizeof(T) == 8 ? magnitude(a) < infinity_bits<T> : magnitude(a) <= infinity_bits<T>;
  return magnitude(b) == 0 && reported ? ZEM_STATUS_SINGULARITY : ZEM_STATUS_NONE;
}

// HA. a / b; rare are the zeros of b.
template <class T>
struct DivHa : Core<T, 2> {
  using vec = vec_of<T>;
  static constexpr char name[] = {'v', sizeof(T) == 8 ? 'd' : 's', 'D', 'i', 'v', 0};
  static vec eval(vec a, vec b, u32x4& rare) {
    rare |= as<u32x4>(b == splat(T(0)));
    return a / b;
  }
  static int special(const T* a, const T* b, T* r) {
    *r = *a / *b;
    return division_status(a, b);
  }
};

}  // namespace ork
