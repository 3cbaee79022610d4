#include "heap/complex/element.hpp"

namespace {

struct Acos : ork::OfScalar<float, ork_zem_kernel_cacos_scalar, false> {
  static constexpr char name[] = "vcAcos";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_cAcos_PXHAynn(int n, const float* a, float* r) {
  ork::element<Acos>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
