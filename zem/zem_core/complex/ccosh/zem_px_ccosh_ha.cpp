#include "complex/hyperbolic_single.hpp"
#include "frame/block.hpp"

namespace ork {
namespace {

// cosh x cos y + i sinh x sin y.
struct CoshParts {
  ORK_INLINE Planes<f64x2> of(Two h, Two c) { return {h.c * c.c, h.s * c.s}; }
};
struct CoshS : HyperbolicS<CoshParts, ork_zem_kernel_ccosh_scalar, true, false> {
  static constexpr char name[] = "vcCosh";
};

}  // namespace
}  // namespace ork

// Cosh c, see hyperbolic_single.hpp. Bound: 0.51 ulp a part.
ORK_EXPORT void ork_zem_kernel_cCosh_PXHAynn(int n, const float* a, float* r) {
  ork::block<ork::CoshS>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
