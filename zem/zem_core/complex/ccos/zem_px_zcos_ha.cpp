#include "heap/complex/element.hpp"

namespace {

struct Cos : ork::OfScalar<double, ork_zem_kernel_ccos_scalar, true> {
  static constexpr char name[] = "vzCos";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_zCos_PXHAynn(int n, const double* a, double* r) {
  ork::element<Cos>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
