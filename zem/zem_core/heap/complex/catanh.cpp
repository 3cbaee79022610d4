#include "base/export.hpp"
#include "heap/complex/clog.hpp"

using namespace ork::complex_scalar;

namespace {

// A quarter of ln(P/Q), the squared distances from -1 and 1, P - Q = 4x: of |x|, as log1p(4|x|/Q),
// which is right near 0, too.
ORK_INLINE long double real_part(long double x, long double y) {
  const long double a = size(x), gap = a - 1, q = gap * gap + y * y;
  return with_sign(0.25L * log1p_finite(4 * a / q), ork::extended::negative(x));
}
ORK_INLINE long double imaginary_part(long double x, long double y) {
  const long double t = 1 - x * x - y * y;
  if (__builtin_expect(size(t) >= 0.03L, 1))
    return 0.5L * with_sign(angle_scaled(size(2 * y), t), ork::extended::negative(y));
  return 0.5L * (ork_zem_kernel_atan2l_scalar(y, 1 + x) - ork_zem_kernel_atan2l_scalar(-y, 1 - x));
}

long double half_turn(const Part& b) {
  raise_inexact();
  return b.sign(0x1.921fb54442d18p0L);
}

Parts atanh_special(const Part& a, const Part& b) {
  const long double fourth = a.squared() * a.squared();
  if (a.nan()) {
    if (b.infinite()) return {0, half_turn(b)};
    return {fourth, b.nan() ? b.squared() : fourth};
  }
  if (b.nan() && a.ordinary()) return {b.squared(), b.squared()};
  if (!b.finite() || a.zero()) return {a.sign(0), ork_zem_kernel_atanl_scalar(b.value)};
  if (a.infinite()) return {a.sign(0), half_turn(b)};
  if (size(a.value) <= 1) return {ork_zem_kernel_atanhl_scalar(a.value), b.value};
  return {real_part(a.value, 0), half_turn(b)};
}

struct Atanh {
  static constexpr int limit = no_limit;
  ORK_INLINE Parts general(const Usual& a, const Usual& b) {
    return {real_part(a.value, b.value), imaginary_part(a.value, b.value)};
  }
  static Parts special(const Part& a, const Part& b) { return atanh_special(a, b); }
};

}  // namespace

ORK_EXPORT double* ork_zem_kernel_catanh_scalar(double* r, double x, double y) {
  return store_flagged(r, apply<Atanh>(x, y));
}
ORK_EXPORT double* ork_zem_kernel_catan_scalar(double* r, double x, double y) {
  return store_flagged(r, turned_back(apply<Atanh, true>(x, y)));
}
