#include "heap/complex/element.hpp"

namespace {

struct Asin : ork::OfScalar<float, ork_zem_kernel_casin_scalar, false> {
  static constexpr char name[] = "vcAsin";
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_cAsin_PXHAynn(int n, const float* a, float* r) {
  ork::element<Asin>(n, {{ork::pairs(a)}, {ork::pairs(r)}});
}
