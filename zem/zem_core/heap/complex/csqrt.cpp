#include "base/export.hpp"
#include "heap/complex/parts.hpp"

using namespace ork::complex_scalar;

namespace {

struct Sqrt {
  static constexpr int limit = no_limit;
  // The larger of the parts by a root of a sum, the other by division.
  ORK_INLINE Parts general(const Usual& a, const Usual& b) {
    const long double x = a.value, y = b.value, modulus = square_root(x * x + y * y);
    const long double t = square_root((modulus + size(x)) * 0.5L), other = size(0.5L * y / t);
    return a.negative() ? Parts{other, b.sign(t)} : Parts{t, b.sign(other)};
  }
  static Parts special(const Part& a, const Part& b);
};

Parts Sqrt::special(const Part& a, const Part& b) {
  const long double infinity = __builtin_infl();
  if (b.infinite()) return {infinity, b.value};
  if (a.nan() || b.nan()) {
    if (!a.infinite()) return {a.value * b.value, a.value * b.value};
    return a.negative ? Parts{b.squared(), infinity} : Parts{infinity, b.squared()};
  }
  if (a.infinite()) return a.negative ? Parts{0, b.sign(infinity)} : Parts{infinity, b.sign(0)};
  if (a.zero()) {
    const long double t = square_root(size(b.value) * 0.5L);
    return {t, b.sign(t)};
  }
  const long double t = square_root(size(a.value));
  return a.negative ? Parts{0, b.sign(t)} : Parts{t, b.value};
}

}  // namespace

ORK_EXPORT double* ork_zem_kernel_csqrt_scalar(double* r, double x, double y) {
  return store_flagged(r, apply<Sqrt>(x, y));
}
