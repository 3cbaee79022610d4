#include "complex/hyperbolic_single.hpp"

// Cosh c: cosh x cos y + i sinh x sin y. Bound: 0.51 ulp a part.
ORK_INLINE ork::Planes<ork::f64x2> cosh_parts(ork::Two h, ork::Two c) {
  return {h.c * c.c, h.s * c.s};
}
ORK_HYPERBOLIC(Cosh, cosh_parts, ork_zem_kernel_ccosh_scalar, true, false)
