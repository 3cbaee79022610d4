#include "heap/complex/element.hpp"

namespace {

struct Sin : ork::OfScalar<float, ork_zem_kernel_csin_scalar, true> {
  static constexpr char name[] = "vcSin";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_cSin_PXHAynn(int n, const float* a, float* r) {
  ork::element<Sin>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
