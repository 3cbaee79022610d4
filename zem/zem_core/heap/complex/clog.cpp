#include "heap/complex/clog.hpp"

#include "base/export.hpp"

namespace ork::complex_scalar {

Parts log_special(const double& x, const double& y) {
  const Part a(x), b(y);
  const auto angle = [&] { return ork_zem_kernel_atan2l_scalar(b.value, a.value); };
  if (a.finite() && b.finite()) {
    if (a.zero() && b.zero()) return {-pole(), angle()};
    return {log_modulus(a.value, b.value), angle()};
  }
  if (a.nan()) return {b.infinite() ? b.squared() : a.value * b.value, a.squared()};
  if (b.nan()) return {a.infinite() ? a.squared() : b.squared(), b.squared()};
  return {__builtin_infl(), angle()};
}

}  // namespace ork::complex_scalar

using namespace ork::complex_scalar;

ORK_EXPORT double* ork_zem_kernel_clog_scalar(double* r, double x, double y) {
  return store(r, log_parts(x, y));
}

namespace {

constexpr long double inverse_ln10 = 0xDE5BD8A937287195p-65L;  // 1/ln 10
constexpr long double quarter = 0xAEA3E26597DD0587p-64L;       // pi/(2 ln 10)

Parts log10_special(const Part& a, const Part& b) {
  if (a.nan()) {
    if (b.infinite()) return {b.squared(), a.squared()};
    return {a.value * b.value, a.value * b.value};
  }
  if (b.nan()) return {a.infinite() ? a.squared() : b.squared(), b.squared()};
  if (b.infinite()) {
    const long double t = !a.infinite() ? 1 : a.negative ? 1.5L : 0.5L;
    return {b.squared() + size(a.value), b.sign(quarter * t)};
  }
  if (a.infinite()) return {a.squared() + b.value, b.sign(a.negative ? 2 * quarter : 0)};
  return {-pole(), a.negative ? b.sign(2 * quarter) : b.value};
}

}  // namespace

ORK_EXPORT double* ork_zem_kernel_clog10_scalar(double* r, double x, double y) {
  const Part a(x), b(y);
  if (!a.finite() || !b.finite() || (a.zero() && b.zero())) return store(r, log10_special(a, b));
  const Parts z = log_parts(x, y);
  return store(r, {z.re * inverse_ln10, z.im * inverse_ln10});
}
