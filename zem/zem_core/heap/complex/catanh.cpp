#include "base/export.hpp"
#include "heap/complex/clog.hpp"

using namespace ork::complex_scalar;

namespace {

// Real part of the general case: a quarter of ln(P/Q) where that isn't near 0.
long double real_part(long double x, long double y) {
  const long double more = 1 + x, less = x - 1, y2 = y * y;
  const long double p = more * more + y2, q = less * less + y2;
  if (0.03L * q >= size(p - q))
    return 0.5L * ork_zem_kernel_atanhl_scalar(2 * x / (x * x + 1 + y2));
  // Below ln 2 by P - Q = 4x, which is exact.
  if (p < q && q <= 2 * p) return -0.25L * ork_zem_kernel_log1pl_scalar(-4 * x / p);
  if (p >= q && p <= 2 * q) return 0.25L * ork_zem_kernel_log1pl_scalar(4 * x / q);
  return 0.25L * ork_zem_kernel_logl_scalar(p / q);
}
long double imaginary_part(long double x, long double y) {
  const long double t = 1 - x * x - y * y;
  if (size(t) >= 0.03L) return 0.5L * ork_zem_kernel_atan2l_scalar(2 * y, t);
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

}  // namespace

ORK_EXPORT double* ork_zem_kernel_catanh_scalar(double* r, double x, double y) {
  const Part a(x), b(y);
  if (!(a.ordinary() && b.ordinary())) return store_flagged(r, atanh_special(a, b));
  return store_flagged(r, {real_part(a.value, b.value), imaginary_part(a.value, b.value)});
}
ORK_EXPORT double* ork_zem_kernel_catan_scalar(double* r, double x, double y) {
  double g[2];
  ork_zem_kernel_catanh_scalar(g, opposite(y), x);
  r[0] = g[1];
  r[1] = opposite(g[0]);
  return r;
}
