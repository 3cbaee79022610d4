#include "base/export.hpp"
#include "heap/complex/cinverse.hpp"

using namespace ork::complex_scalar;

namespace {

// The angle of cacos and cacosh, from 0 to pi.
ORK_INLINE long double whole_angle(const Quadrant& q, const Usual& a) {
  const long double angle = q.cosine_angle();
  return a.negative() ? ork::extended::pi.high - angle : angle;
}

long double inexact_arc(double x) {
  raise_inexact();
  return x;
}

Parts acos_special(const Part& a, const Part& b) {
  const long double y = b.value, x = a.value;
  if (a.zero()) return {inexact_arc(half_pi_double), -ork_zem_kernel_asinhl_scalar(y)};
  if (a.nan()) {
    if (b.infinite()) return {x + opaque(0.0L), -y};
    return {a.squared(), b.nan() ? b.squared() : a.squared()};
  }
  if (b.nan()) return {b.squared(), a.infinite() ? a.squared() : b.squared()};
  if (b.infinite()) {
    if (a.infinite()) return {a.negative ? three_quarters_pi_double : quarter_pi_double, -y};
    return {inexact_arc(half_pi_double), -y};
  }
  if (b.zero() && a.below_one()) return {ork_zem_kernel_acosl_scalar(x), -y};
  const long double real = a.negative ? inexact_arc(pi_double) : 0;
  return {real, -b.sign(a.infinite() ? __builtin_infl() : ork_zem_kernel_acoshl_scalar(size(x)))};
}

Parts acosh_special(const Part& a, const Part& b) {
  const long double x = a.value, y = b.value;
  if (b.zero() && !a.nan()) {
    if (a.below_one()) return {0, b.sign(ork_zem_kernel_acosl_scalar(x))};
    return {ork_zem_kernel_acoshl_scalar(size(x)), a.negative ? arc(b, pi_double) : b.value};
  }
  if (a.zero() && !b.nan())
    return {ork_zem_kernel_asinhl_scalar(size(y)), ork_zem_kernel_atan2l_scalar(y, x)};
  if (a.nan()) {
    if (b.nan()) return {a.squared(), b.squared()};
    if (b.infinite()) return {b.squared(), x + opaque(0.0L)};
    return {a.squared(), a.squared()};
  }
  if (b.nan()) return {a.infinite() ? a.squared() : b.squared(), b.squared()};
  if (!a.infinite()) return {b.squared(), arc(b, half_pi_double)};
  if (b.infinite())
    return {a.squared(), b.sign(a.negative ? three_quarters_pi_double : quarter_pi_double)};
  return {a.squared(), a.negative ? arc(b, pi_double) : b.sign(0)};
}

struct Acos {
  static constexpr int limit = no_limit;
  ORK_INLINE Parts general(const Usual& a, const Usual& b) {
    const Quadrant q(size(a.value), size(b.value));
    const long double log = q.log_part();
    return {whole_angle(q, a), b.negative() ? log : -log};
  }
  static Parts special(const Part& a, const Part& b) { return acos_special(a, b); }
};
struct Acosh {
  static constexpr int limit = no_limit;
  ORK_INLINE Parts general(const Usual& a, const Usual& b) {
    const Quadrant q(size(a.value), size(b.value));
    return {q.log_part(), b.sign(whole_angle(q, a))};
  }
  static Parts special(const Part& a, const Part& b) { return acosh_special(a, b); }
};

}  // namespace

ORK_EXPORT double* ork_zem_kernel_cacos_scalar(double* r, double x, double y) {
  return store_flagged(r, apply<Acos>(x, y));
}
ORK_EXPORT double* ork_zem_kernel_cacosh_scalar(double* r, double x, double y) {
  return store_flagged(r, apply<Acosh>(x, y));
}
