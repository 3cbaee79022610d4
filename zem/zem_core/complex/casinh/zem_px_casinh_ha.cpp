#include "heap/complex/element.hpp"

namespace {

struct Asinh : ork::OfScalar<float, ork_zem_kernel_casinh_scalar, false> {
  static constexpr char name[] = "vcAsinh";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_cAsinh_PXHAynn(int n, const float* a, float* r) {
  ork::element<Asinh>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
