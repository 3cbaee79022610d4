#include "heap/complex/element.hpp"

namespace {

struct Atanh : ork::OfScalar<float, ork_zem_kernel_catanh_scalar, false> {
  static constexpr char name[] = "vcAtanh";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_cAtanh_PXHAynn(int n, const float* a, float* r) {
  ork::element<Atanh>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
