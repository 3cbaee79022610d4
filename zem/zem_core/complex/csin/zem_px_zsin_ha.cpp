#include "heap/complex/element.hpp"

namespace {

struct Sin : ork::OfScalar<double, ork_zem_kernel_csin_scalar, true> {
  static constexpr char name[] = "vzSin";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_zSin_PXHAynn(int n, const double* a, double* r) {
  ork::element<Sin>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
