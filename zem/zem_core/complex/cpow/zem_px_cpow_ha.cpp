#include "heap/complex/element.hpp"

namespace {

using Element = ork::Complex<float>;

struct Pow : ork::Core<Element, 2> {
  static constexpr char name[] = "vcPow";
  static constexpr ork::Csr csr = ork::Csr::untouched;
  static constexpr unsigned x87 = ork::x87_extended;
  static int special(const Element* a, const Element* b, Element* r) {
    return ork::power_element(*a, *b, r);
  }
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_cPow_PXHAynn(int n, const float* a, const float* b, float* r) {
  ork::element<Pow>(n, {{ork::pairs(a), ork::pairs(b)}, {ork::pairs(r)}});
}
