#include "heap/complex/element.hpp"

namespace {

struct Acosh : ork::OfScalar<double, ork_zem_kernel_cacosh_scalar, false> {
  static constexpr char name[] = "vzAcosh";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_zAcosh_PXHAynn(int n, const double* a, double* r) {
  ork::element<Acosh>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
