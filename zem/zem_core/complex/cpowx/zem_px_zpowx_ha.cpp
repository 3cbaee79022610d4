#include "heap/complex/element.hpp"
#include "ork/zem_kernels.h"

namespace {

using Element = ork::Complex<double>;

struct Powx : ork::Core<Element> {
  static constexpr char name[] = "vzPowx";
  static constexpr ork::Csr csr = ork::Csr::untouched;
  static constexpr unsigned x87 = ork::x87_extended;
  Element b;
  explicit Powx(ork_z exponent) : b{exponent.re, exponent.im} {}
  const Element* second(const Element*, int index) const { return ork::array_with(&b, index); }
  int special(const Element* a, Element* r) const { return ork::power_element(*a, b, r); }
};

}  // namespace

ORK_EXPORT void ork_zem_kernel_zPowx_PXHAynn(int n, const double* a, ork_z b, double* r) {
  ork::element<Powx>(n, {{ork::pairs(a)}, {ork::pairs(r)}}, Powx(b));
}
