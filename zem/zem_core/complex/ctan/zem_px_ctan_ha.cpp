#include "complex/hyperbolic_single.hpp"
#include "frame/block.hpp"

namespace ork {
namespace {

// tanh of iz, turned back.
struct TanParts {
  ORK_INLINE Planes<f64x2> of(Two h, Two c) {
    const Planes<f64x2> z = tanh_parts(h, c);
    return {z.im, z.re};
  }
};
struct TanS : HyperbolicS<TanParts, ork_zem_kernel_ctan_scalar, false, true> {
  static constexpr char name[] = "vcTan";
};

}  // namespace
}  // namespace ork

// Tan c, see hyperbolic_single.hpp. Bound: 0.51 ulp a part.
ORK_EXPORT void ork_zem_kernel_cTan_PXHAynn(int n, const float* a, float* r) {
  ork::block<ork::TanS>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
