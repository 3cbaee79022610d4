#include "heap/complex/element.hpp"

namespace {

struct Tan : ork::OfScalar<double, ork_zem_kernel_ctan_scalar, false> {
  static constexpr char name[] = "vzTan";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_zTan_PXHAynn(int n, const double* a, double* r) {
  ork::element<Tan>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
