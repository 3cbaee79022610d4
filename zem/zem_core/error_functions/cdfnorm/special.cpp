// CdfNorm of one element at or below the limit of the fast range.
#include "base/image.hpp"
#include "error_functions/cdfnorm/cdfnorm.hpp"

namespace ork {
namespace {

template <class T>
int rare(const T* a, T* r, T limit, T smallest) {
  if (magnitude(a) == infinity_bits<T>) {
    *r = 0;
    return ZEM_STATUS_NONE;
  }
  if (magnitude(a) > infinity_bits<T>) {
    *r = *a * *a;
    return ZEM_STATUS_NONE;
  }
  if (*a < limit) {
    volatile T tiny = smallest;
    *r = tiny * tiny;
    return ZEM_STATUS_UNDERFLOW;
  }
  *r = as<T>(bits_of<T>(1));  // at the limit: the smallest denormal, by a hair
  return ZEM_STATUS_NONE;
}

}  // namespace

int cdfnorm_rare(const double* a, double* r) { return rare(a, r, cdfnorm_limit_d, __DBL_MIN__); }
int cdfnorm_rare(const float* a, float* r) { return rare(a, r, cdfnorm_limit_s, __FLT_MIN__); }

}  // namespace ork
