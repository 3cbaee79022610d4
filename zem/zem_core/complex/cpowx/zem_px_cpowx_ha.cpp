#include "heap/complex/element.hpp"
#include "ork/zem_kernels.h"

namespace {

using Element = ork::Complex<float>;

struct Powx : ork::Core<Element> {
  static constexpr char name[] = "vcPowx";
  static constexpr ork::Csr csr = ork::Csr::untouched;
  static constexpr unsigned x87 = ork::x87_extended;
  Element b;
  explicit Powx(ork_c exponent) : b{exponent.re, exponent.im} {}
  const Element* second(const Element*, int index) const { return ork::array_with(&b, index); }
  int special(const Element* a, Element* r) const { return ork::power_element(*a, b, r); }
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_cPowx_PXHAynn(int n, const float* a, ork_c b, float* r) {
  ork::element<Powx>(n, {{ork::pairs(a)}, {ork::pairs(r)}}, Powx(b));
}
