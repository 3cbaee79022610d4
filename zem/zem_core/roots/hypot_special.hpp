#pragma once
#include "base/image.hpp"
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {

// The rare elements, decided by bits; `finite` gives those with no infinity and no NaN.
template <class T, class Finite>
ORK_INLINE int hypot_scalar(const T* a, const T* b, T* r, Finite finite) {
  const bits_of<T> x = magnitude(a), y = magnitude(b);
  if (x == infinity_bits<T> || y == infinity_bits<T>)
    *r = as<T>(infinity_bits<T>);
  else if (x > infinity_bits<T> || y > infinity_bits<T>)
    *r = *a * *b;
  else if (*a == 0 && *b == 0)  // also denormals that count as zeros
    *r = 0;
  else
    *r = x > y ? finite(*a, *b) : finite(*b, *a);
  return ZEM_STATUS_NONE;
}

}  // namespace ork
