#include "heap/complex/element.hpp"

namespace {

struct Asinh : ork::OfScalar<double, ork_zem_kernel_casinh_scalar, false> {
  static constexpr char name[] = "vzAsinh";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_zAsinh_PXHAynn(int n, const double* a, double* r) {
  ork::element<Asinh>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
