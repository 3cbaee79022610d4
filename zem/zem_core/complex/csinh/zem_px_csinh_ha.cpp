#include "complex/hyperbolic_single.hpp"
#include "frame/block.hpp"

namespace ork {
namespace {

// sinh x cos y + i cosh x sin y.
struct SinhParts {
  ORK_INLINE Planes<f64x2> of(Two h, Two c) { return {h.s * c.c, h.c * c.s}; }
};
struct SinhS : HyperbolicS<SinhParts, ork_zem_kernel_csinh_scalar, true, false> {
  static constexpr char name[] = "vcSinh";
};

}  // namespace
}  // namespace ork

// Sinh c, see hyperbolic_single.hpp. Bound: 0.51 ulp a part.
ORK_EXPORT void ork_zem_kernel_cSinh_PXHAynn(int n, const float* a, float* r) {
  ork::block<ork::SinhS>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
