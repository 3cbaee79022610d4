#pragma once
// exp(x + iy) = exp x (cos y + i sin y).
#include "heap/complex/parts.hpp"
#include "heap/real/exp.hpp"
#include "heap/real/trig.hpp"

namespace ork::complex_scalar {

// Arguments that are special, or so large that the power is beyond the extended format's use.
Parts exp_special(const double& x, const double& y);

ORK_INLINE Parts exp_parts(const double& x, const double& y) {
  const Part a(x), b(y);
  if (__builtin_expect(!(a.ordinary() && b.ordinary() && a.exponent() < 1034), 0))
    return exp_special(x, y);
  const long double power = exp_moderate(a.value);
  const SinCos turn = sin_cos(b.value);
  return {power * turn.cos, power * turn.sin};
}

}  // namespace ork::complex_scalar
