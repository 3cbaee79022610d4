#include "roots/invsqrt/invsqrt_single.hpp"

int ork::invsqrt_rare(const float* x, float* r) {
  int status;
  if (!invsqrt_edge(x, r, &status)) *r = (float)(1 / __builtin_sqrtl((long double)*x));
  return status;
}
