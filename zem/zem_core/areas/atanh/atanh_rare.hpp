#pragma once
// |x| >= 1 and NaNs, all levels.
#include "frame/kernel.hpp"

namespace ork {

template <class T>
int atanh_rare(const T* x, T* r) {
  if (*x != *x) {
    *r = *x + *x;
    return 0;
  }
  volatile T zero = 0;
  if (*x == 1 || *x == -1) {
    *r = *x / zero;
    return ZEM_STATUS_SINGULARITY;
  }
  *r = zero / zero;
  return ZEM_STATUS_DOMAIN;
}

}  // namespace ork
