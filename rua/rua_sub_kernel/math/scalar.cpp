// Scalar functions under their exported names.
#include "base/export.hpp"
#include "ork/ss_math.h"
#include "rua_sub_kernel/math/ln.hpp"

namespace ork {

ORK_EXPORT double __ruadSqrt(double x) { return __builtin_sqrt(x); }

// From 2^52 on every value is an integer; below, adding 2^52 drops the fraction, upwards or
// downwards by the rounding mode at hand.
ORK_EXPORT double __ruadFloor(double x) {
  if (!(__builtin_fabs(x) < 0x1p52)) return x;
  const double big = __builtin_copysign(0x1p52, x);
  double whole = (x + big) - big;
  if (whole > x) whole -= 1;
  return __builtin_copysign(whole, x);
}

ORK_EXPORT double __ruadLn(double x) { return ln(x); }
ORK_EXPORT float __ruasLn(float x) { return float(ln(x)); }

}  // namespace ork
