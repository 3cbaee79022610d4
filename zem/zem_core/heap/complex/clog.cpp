#include "heap/complex/clog.hpp"

#include "base/export.hpp"

namespace ork::complex_scalar {

Parts Log::special(const Part& a, const Part& b) {
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
  return store(r, apply<Log>(x, y));
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

// The finite case is that of the natural logarithm but for two zeros.
struct Log10 {
  static constexpr int limit = no_limit;
  ORK_INLINE Parts scaled(Parts z) { return {z.re * inverse_ln10, z.im * inverse_ln10}; }
  ORK_INLINE Parts general(const Usual& a, const Usual& b) { return scaled(Log::general(a, b)); }
  static Parts special(const Part& a, const Part& b) {
    if (!a.finite() || !b.finite() || (a.zero() && b.zero())) return log10_special(a, b);
    return scaled(Log::special(a, b));
  }
};

}  // namespace

ORK_EXPORT double* ork_zem_kernel_clog10_scalar(double* r, double x, double y) {
  return store(r, apply<Log10>(x, y));
}
