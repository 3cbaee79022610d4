#include "heap/complex/element.hpp"

namespace {

struct Cosh : ork::OfScalar<float, ork_zem_kernel_ccosh_scalar, true> {
  static constexpr char name[] = "vcCosh";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_cCosh_PXHAynn(int n, const float* a, float* r) {
  ork::element<Cosh>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
