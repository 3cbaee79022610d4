#include "complex/hyperbolic_single.hpp"

// Sinh c: sinh x cos y + i cosh x sin y. Bound: 0.51 ulp a part.
ORK_INLINE ork::Planes<ork::f64x2> sinh_parts(ork::Two h, ork::Two c) {
  return {h.s * c.c, h.c * c.s};
}
ORK_HYPERBOLIC(Sinh, sinh_parts, ork_zem_kernel_csinh_scalar, true, false)
