#include "complex/hyperbolic_single.hpp"

// Tanh c: (sinh x cosh x + i sin y cos y) / (sinh^2 x + cos^2 y). Bound: 0.51 ulp a part.
ORK_HYPERBOLIC(Tanh, ork::tanh_parts, ork_zem_kernel_ctanh_scalar, false, false)
