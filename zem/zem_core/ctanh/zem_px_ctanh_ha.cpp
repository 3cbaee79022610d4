#include "heap/complex/element.hpp"

namespace {

struct Tanh : ork::OfScalar<float, ork_zem_kernel_ctanh_scalar, false> {
  static constexpr char name[] = "vcTanh";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_cTanh_PXHAynn(int n, const float* a, float* r) {
  ork::element<Tanh>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
