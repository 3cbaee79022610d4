#include "arithmetic/reciprocal.hpp"

void ork::divide_single(const float* a, const float* b, float* r) {
  *r = (float)((long double)*a / (long double)*b);
}
