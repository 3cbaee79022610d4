#pragma once
// One element through a scalar routine, any argument: the body of the exported _SC forms and
// the `special` of the kernels. Returns the status: 1 for an infinity.
#include "base/control.hpp"
#include "ork/zem.h"
#include "ork/zem_scalar.h"

namespace ork::trig {

ORK_INLINE int status_of(double x) {
  return __builtin_isinf(x) ? ZEM_STATUS_DOMAIN : ZEM_STATUS_NONE;
}

template <double (*f)(double), class T>
inline int scalar(const T* x, T* r) {
  const X87Guard<x87_double> x87;
  const double value = *x;
  *r = (T)f(value);
  return status_of(value);
}

template <class T>
inline int scalar_sincos(const T* x, T* r, T* r2) {
  const X87Guard<x87_double> x87;
  const double value = *x;
  double sine, cosine;
  _dSinCos(value, &sine, &cosine);
  *r = (T)sine;
  *r2 = (T)cosine;
  return status_of(value);
}

}  // namespace ork::trig
