#include "complex/hyperbolic_single.hpp"
#include "frame/block.hpp"

namespace ork {
namespace {

// cos x cosh y - i sin x sinh y.
struct CosParts {
  ORK_INLINE Planes<f64x2> of(Two h, Two c) { return {h.c * c.c, -(h.s * c.s)}; }
};
struct CosS : HyperbolicS<CosParts, ork_zem_kernel_ccos_scalar, true, true> {
  static constexpr char name[] = "vcCos";
};

}  // namespace
}  // namespace ork

// Cos c, see hyperbolic_single.hpp. Bound: 0.51 ulp a part.
ORK_EXPORT void ork_zem_kernel_cCos_PXHAynn(int n, const float* a, float* r) {
  ork::block<ork::CosS>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
