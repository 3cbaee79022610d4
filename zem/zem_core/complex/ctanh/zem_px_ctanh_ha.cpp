#include "complex/hyperbolic_single.hpp"
#include "frame/block.hpp"

namespace ork {
namespace {

// see hyperbolic_single.hpp.
struct TanhParts {
  ORK_INLINE Planes<f64x2> of(Two h, Two c) { return tanh_parts(h, c); }
};
struct TanhS : HyperbolicS<TanhParts, ork_zem_kernel_ctanh_scalar, false, false> {
  static constexpr char name[] = "vcTanh";
};

}  // namespace
}  // namespace ork

// Tanh c, see hyperbolic_single.hpp. Bound: 0.51 ulp a part.
ORK_EXPORT void ork_zem_kernel_cTanh_PXHAynn(int n, const float* a, float* r) {
  ork::block<ork::TanhS>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
