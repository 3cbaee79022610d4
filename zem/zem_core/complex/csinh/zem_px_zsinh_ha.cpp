#include "heap/complex/element.hpp"

namespace {

struct Sinh : ork::OfScalar<double, ork_zem_kernel_csinh_scalar, true> {
  static constexpr char name[] = "vzSinh";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_zSinh_PXHAynn(int n, const double* a, double* r) {
  ork::element<Sinh>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
