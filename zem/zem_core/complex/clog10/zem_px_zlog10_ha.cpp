#include "heap/complex/element.hpp"

namespace {

struct Log10 : ork::OfScalar<double, ork_zem_kernel_clog10_scalar, false> {
  static constexpr char name[] = "vzLog10";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_zLog10_PXHAynn(int n, const double* a, double* r) {
  ork::element<Log10>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
