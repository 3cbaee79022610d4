#include "complex/hyperbolic_single.hpp"

// Cos c: cos x cosh y - i sin x sinh y. Bound: 0.51 ulp a part.
ORK_INLINE ork::Planes<ork::f64x2> cos_parts(ork::Two h, ork::Two c) {
  return {h.c * c.c, -(h.s * c.s)};
}
ORK_HYPERBOLIC(Cos, cos_parts, ork_zem_kernel_ccos_scalar, true, true)
