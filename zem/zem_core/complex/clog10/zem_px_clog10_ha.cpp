#include "heap/complex/element.hpp"

namespace {

struct Log10 : ork::OfScalar<float, ork_zem_kernel_clog10_scalar, false> {
  static constexpr char name[] = "vcLog10";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_cLog10_PXHAynn(int n, const float* a, float* r) {
  ork::element<Log10>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
