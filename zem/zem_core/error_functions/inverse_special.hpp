#pragma once
// The rare element of ErfcInv (ends 0 and 2, middle 1) and of CdfNormInv (0, 1, 0.5): the
// statuses in their order, and the tail.
#include "base/image.hpp"
#include "ork/zem.h"
#include "ork/zem_erf_scalar.h"

namespace ork {

// `at_zero` is the sign of the infinity at 0; the other end has the opposite one.
template <class T>
inline int inverse_special(const T* a, T* r, T end, double (*inside)(double), double at_zero) {
  const T x = *a;
  if (magnitude(a) > infinity_bits<T>) {
    *r = x * x;
    return ZEM_STATUS_NONE;
  }
  if (x > 0 && x < end) {
    *r = x == end / 2 ? T(0) : (T)inside(x);
    return ZEM_STATUS_NONE;
  }
  if (x == 0 || x == end) {
    volatile T zero = 0;
    *r = T(x == 0 ? at_zero : -at_zero) / zero;
    return ZEM_STATUS_SINGULARITY;
  }
  volatile T zero = 0;
  *r = zero * as<T>(infinity_bits<T>);
  return ZEM_STATUS_DOMAIN;
}

}  // namespace ork
