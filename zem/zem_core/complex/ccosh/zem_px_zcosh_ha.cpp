#include "heap/complex/element.hpp"

namespace {

struct Cosh : ork::OfScalar<double, ork_zem_kernel_ccosh_scalar, true> {
  static constexpr char name[] = "vzCosh";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_zCosh_PXHAynn(int n, const double* a, double* r) {
  ork::element<Cosh>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
