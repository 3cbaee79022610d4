#include "heap/complex/element.hpp"

namespace {

struct Acos : ork::OfScalar<double, ork_zem_kernel_cacos_scalar, false> {
  static constexpr char name[] = "vzAcos";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_zAcos_PXHAynn(int n, const double* a, double* r) {
  ork::element<Acos>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
