#pragma once
// The rare elements of the square roots: zeros, negative, tiny, infinite, NaN.
#include "base/image.hpp"
#include "frame/block.hpp"
#include "frame/level.hpp"

namespace ork {

// C's formula on one element.
template <class C>
ORK_INLINE typename C::type on_one(typename C::type x) {
  u32x4 rare{};
  return C{}.eval(splat(x), rare)[0];
}

// A denormal, or a tiny number, is brought into range by 2^54 and its root back by 2^-27; a large
// one, in double, by 2^-54.
template <class C, Level level>
int sqrt_scalar(const typename C::type* x, typename C::type* r) {
  using T = typename C::type;
  const bits_of<T> a = magnitude(x);
  if (*x == 0) {  // also a denormal that counts as zero
    *r = as<T>(sign(x));
  } else if (image(x) == infinity_bits<T>) {
    *r = *x;
  } else if (a > infinity_bits<T>) {
    *r = *x + *x;  // quiet
  } else if (sign(x)) {
    const bits_of<T> nan = domain_nan<T>;
    __builtin_memcpy(r, &nan, sizeof(T));
    return ZEM_STATUS_DOMAIN;
  } else if (level == Level::ep && *x == 4) {
    *r = 2;
  } else {
    const bool large = a > as<bits_of<T>>(T(1));
    *r = on_one<C>(*x * T(large ? 0x1p-54 : 0x1p54)) * T(large ? 0x1p27 : 0x1p-27);
  }
  return ZEM_STATUS_NONE;
}

}  // namespace ork
