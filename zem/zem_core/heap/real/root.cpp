// Extended square root and absolute value.
#include "base/export.hpp"
#include "heap/real/extended.hpp"
#include "ork/zem_extended.h"

using namespace ork::extended;

// The instruction rounds once for every argument, denormals and special values included.
ORK_EXPORT long double ork_zem_kernel_sqrtl_scalar(long double x) { return square_root(x); }

ORK_EXPORT long double ork_zem_kernel_fabsl_scalar(long double x) {
  return is_nan(x) ? size(quieted(x)) : size(x);
}
