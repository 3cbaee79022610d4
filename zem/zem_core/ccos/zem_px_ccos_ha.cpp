#include "heap/complex/element.hpp"

namespace {

struct Cos : ork::OfScalar<float, ork_zem_kernel_ccos_scalar, true> {
  static constexpr char name[] = "vcCos";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_cCos_PXHAynn(int n, const float* a, float* r) {
  ork::element<Cos>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
