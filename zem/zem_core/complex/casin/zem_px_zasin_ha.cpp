#include "heap/complex/element.hpp"

namespace {

struct Asin : ork::OfScalar<double, ork_zem_kernel_casin_scalar, false> {
  static constexpr char name[] = "vzAsin";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_zAsin_PXHAynn(int n, const double* a, double* r) {
  ork::element<Asin>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
