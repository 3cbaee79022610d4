#include "heap/complex/element.hpp"

namespace {

struct Atan : ork::OfScalar<double, ork_zem_kernel_catan_scalar, false> {
  static constexpr char name[] = "vzAtan";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_zAtan_PXHAynn(int n, const double* a, double* r) {
  ork::element<Atan>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
