#include "complex/hyperbolic_single.hpp"

// Sin c: sin x cosh y + i cos x sinh y. Bound: 0.51 ulp a part.
ORK_INLINE ork::Planes<ork::f64x2> sin_parts(ork::Two h, ork::Two c) {
  return {h.c * c.s, h.s * c.c};
}
ORK_HYPERBOLIC(Sin, sin_parts, ork_zem_kernel_csin_scalar, true, true)
