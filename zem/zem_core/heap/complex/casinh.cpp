#include "base/export.hpp"
#include "heap/complex/cinverse.hpp"

using namespace ork::complex_scalar;

namespace {

Parts asinh_special(const Part& a, const Part& b) {
  if (b.zero()) return {ork_zem_kernel_asinhl_scalar(a.value), b.value};
  if (a.zero() && !b.nan()) {
    if (b.below_one()) return {a.value, ork_zem_kernel_asinl_scalar(b.value)};
    return {a.sign(ork_zem_kernel_acoshl_scalar(size(b.value))), arc(b, half_pi_double)};
  }
  if (a.nan()) {
    if (b.nan()) return {a.squared(), b.squared()};
    return {b.infinite() ? b.squared() : a.squared(), a.squared()};
  }
  if (b.nan()) return {a.infinite() ? a.value : b.squared(), b.squared()};
  if (!a.infinite()) return {a.sign(__builtin_infl()), arc(b, half_pi_double)};
  return {a.value, arc(b, b.infinite() ? quarter_pi_double : 0)};
}

struct Asinh {
  static constexpr int limit = no_limit;
  ORK_INLINE Parts general(const Usual& a, const Usual& b) {
    const Quadrant q(size(b.value), size(a.value));
    return {a.sign(q.log_part()), b.sign(q.sine_angle())};
  }
  static Parts special(const Part& a, const Part& b) { return asinh_special(a, b); }
};

}  // namespace

ORK_EXPORT double* ork_zem_kernel_casinh_scalar(double* r, double x, double y) {
  return store_flagged(r, apply<Asinh>(x, y));
}
ORK_EXPORT double* ork_zem_kernel_casin_scalar(double* r, double x, double y) {
  return store_flagged(r, turned_back(apply<Asinh, true>(x, y)));
}
