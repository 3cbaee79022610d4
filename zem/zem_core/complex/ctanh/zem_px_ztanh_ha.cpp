#include "heap/complex/element.hpp"

namespace {

struct Tanh : ork::OfScalar<double, ork_zem_kernel_ctanh_scalar, false> {
  static constexpr char name[] = "vzTanh";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_zTanh_PXHAynn(int n, const double* a, double* r) {
  ork::element<Tanh>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
