#include "heap/complex/element.hpp"

namespace {

struct Acosh : ork::OfScalar<float, ork_zem_kernel_cacosh_scalar, false> {
  static constexpr char name[] = "vcAcosh";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_cAcosh_PXHAynn(int n, const float* a, float* r) {
  ork::element<Acosh>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
