#include "heap/complex/element.hpp"

namespace {

struct Sinh : ork::OfScalar<float, ork_zem_kernel_csinh_scalar, true> {
  static constexpr char name[] = "vcSinh";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_cSinh_PXHAynn(int n, const float* a, float* r) {
  ork::element<Sinh>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
