#pragma once
// exp(x + iy) = exp x (cos y + i sin y).
#include "heap/complex/parts.hpp"
#include "heap/real/exp.hpp"
#include "heap/real/trig.hpp"

namespace ork::complex_scalar {

struct Exp {
  static constexpr int limit = 1034;  // from 2048 on the power is beyond the extended format
  ORK_INLINE Parts general(const Usual& a, const Usual& b) {
    const long double power = exp_moderate(a.value);
    const SinCos turn = sin_cos(b.value);
    return {power * turn.cos, power * turn.sin};
  }
  static Parts special(const Part& a, const Part& b);
};

}  // namespace ork::complex_scalar
