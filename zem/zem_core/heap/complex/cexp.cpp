#include "heap/complex/cexp.hpp"

#include "base/export.hpp"
#include "ork/zem_extended.h"

namespace ork::complex_scalar {

Parts Exp::special(const Part& a, const Part& b) {
  const auto power = [&] { return ork_zem_kernel_expl_scalar(a.value); };
  const auto sine = [&] { return ork_zem_kernel_sinl_scalar(b.value); };
  const auto cosine = [&] { return ork_zem_kernel_cosl_scalar(b.value); };
  if (a.ordinary() && b.ordinary()) {
    const long double root = opaque(a.negative ? 0x1p-16382L : 0x1p16383L), huge = root * root;
    return {huge * cosine(), huge * (b.denormal() ? b.value : sine())};
  }
  if (b.zero()) return {power(), b.value};
  if (!b.finite()) {
    if (a.finite()) return {sine(), sine()};
    if (a.nan()) return {a.squared(), a.squared() * b.value};
    if (!a.negative) return {power(), sine()};
    return {0, b.infinite() ? b.sign(0) : 0};
  }
  const long double e = power();
  return {e * cosine(), e * (!a.zero() && b.denormal() ? b.value : sine())};
}

}  // namespace ork::complex_scalar

ORK_EXPORT double* ork_zem_kernel_cexp_scalar(double* r, double x, double y) {
  using namespace ork::complex_scalar;
  return store_flagged(r, apply<Exp>(x, y));
}
