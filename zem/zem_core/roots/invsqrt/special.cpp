#include "roots/invsqrt/invsqrt_single.hpp"

int ork::_zemsInvSqrtSpec(const float* x, float* r) {
  int status;
  if (!invsqrt_edge(x, r, &status)) *r = (float)(1 / __builtin_sqrtl((long double)*x));
  return status;
}
