#include "heap/complex/element.hpp"

namespace {

struct Atan : ork::OfScalar<float, ork_zem_kernel_catan_scalar, false> {
  static constexpr char name[] = "vcAtan";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_cAtan_PXHAynn(int n, const float* a, float* r) {
  ork::element<Atan>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
