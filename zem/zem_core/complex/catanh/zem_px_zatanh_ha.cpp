#include "heap/complex/element.hpp"

namespace {

struct Atanh : ork::OfScalar<double, ork_zem_kernel_catanh_scalar, false> {
  static constexpr char name[] = "vzAtanh";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_zAtanh_PXHAynn(int n, const double* a, double* r) {
  ork::element<Atanh>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
