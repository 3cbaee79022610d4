#include "complex/hyperbolic_single.hpp"
#include "frame/block.hpp"

namespace ork {
namespace {

// sin x cosh y + i cos x sinh y.
struct SinParts {
  ORK_INLINE Planes<f64x2> of(Two h, Two c) { return {h.c * c.s, h.s * c.c}; }
};
struct SinS : HyperbolicS<SinParts, ork_zem_kernel_csin_scalar, true, true> {
  static constexpr char name[] = "vcSin";
};

}  // namespace
}  // namespace ork

// Sin c, see hyperbolic_single.hpp. Bound: 0.51 ulp a part.
ORK_EXPORT void ork_zem_kernel_cSin_PXHAynn(int n, const float* a, float* r) {
  ork::block<ork::SinS>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
