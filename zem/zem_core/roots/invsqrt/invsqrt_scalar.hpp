#pragma once
// The rare elements of the reciprocal square roots.
#include "roots/sqrt_scalar.hpp"

namespace ork {

// All elements but positive finite ones. False if x is none of these.
template <class T>
bool invsqrt_edge(const T* x, T* r, int* status) {
  const bits_of<T> a = magnitude(x);
  *status = ZEM_STATUS_NONE;
  bits_of<T> y;
  if (*x == 0) {  // also a denormal that counts as zero
    y = infinity_bits<T> | sign(x);
    *status = ZEM_STATUS_SINGULARITY;
  } else if (a > infinity_bits<T>) {
    *r = *x + *x;  // quiet
    return true;
  } else if (sign(x)) {
    y = domain_nan<T>;
    *status = ZEM_STATUS_DOMAIN;
  } else if (a == infinity_bits<T>) {
    y = 0;
  } else {
    return false;
  }
  __builtin_memcpy(r, &y, sizeof(T));
  return true;
}

}  // namespace ork
