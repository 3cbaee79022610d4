#include "heap/complex/element.hpp"

namespace {

struct Tan : ork::OfScalar<float, ork_zem_kernel_ctan_scalar, false> {
  static constexpr char name[] = "vcTan";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_cTan_PXHAynn(int n, const float* a, float* r) {
  ork::element<Tan>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
