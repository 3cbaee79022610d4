// Gamma of a shape below 1: two rejections from pairs of uniform numbers u, v.
//
// Near zero: y = x^alpha has the density exp(-y^(1/alpha)), which lies below 1 and below the
// exponential of its tangent at y = 1, exp(-(y - (1 - alpha))/alpha). The two bounds meet at
// y = 1 - alpha; before it y is u itself, behind it (1 - alpha) - alpha ln((1 - u)/alpha). A share
// of Gamma(1 + alpha) is accepted.
//
// From 0.6 on: a Weibull envelope, I. Vaduva, "On computer generation of gamma random variables
// by rejection and composition procedures", 1977. x is e^(1/alpha) with the exponential number
// e = -ln u.
#include "rua_kernel/continuous/gamma.hpp"
#include "rua_kernel/service/rejection.hpp"

namespace ork::rua {

template <class R>
int32_t gamma_near_zero(RuaStream* stream, int32_t n, R* r, R alpha) {
  using T = Tables<R>;
  using V = vec_of<R>;
  const R inverse = 1 / alpha, cut = 1 - alpha;
  return accept_in_rounds(stream, n, r, [=](int32_t m, R* u, R* v, R* scratch) {
    R *const tail = scratch, *const x = scratch + m;  // tail: all ones where u lies in it
    vectors<R>(m, [=](int32_t i) {
      const V ui = load(u + i);
      const auto in_tail = ui >= cut;
      store(tail + i, as<V>(in_tail));
      store(u + i, select(in_tail, (1 - ui) * inverse, ui));
    });
    apply(T::ln, 2 * m, u);  // and v behind it
    vectors<R>(m, [=](int32_t i) {
      const V y = cut - load(u + i) * alpha;
      store(x + i, select(load(tail + i), y, splat(R(1))));
    });
    apply(T::ln, m, x);
    vectors<R>(m, [=](int32_t i) {
      store(x + i, select(load(tail + i), load(x + i), load(u + i)) * inverse);
    });
    apply(T::exp, m, x);
    return [=](int32_t i) {
      const V xi = load(x + i);
      const V start = and_bits(load(u + i), as<typename simd<R>::ivec>(load(tail + i)));
      const V excess = (xi + start) + load(v + i);
      return candidates(xi, ~lanes(excess > 0));
    };
  });
}

template <class R>
int32_t gamma_below_one(RuaStream* stream, int32_t n, R* r, R alpha) {
  using T = Tables<R>;
  using V = vec_of<R>;
  const R inverse = 1 / alpha, cut = 1 - alpha;
  const R log = alpha / cut * value(T::ln, alpha), k = cut * value(T::exp, log);
  return accept_in_rounds(stream, n, r, [=](int32_t m, R* u, R* v, R* x) {
    apply(T::ln, 2 * m, u);  // and v behind it
    vectors<R>(m, [=](int32_t i) {
      const V ln_u = load(u + i);
      store(x + i, -ln_u);
      store(v + i, -((ln_u + k) + load(v + i)));
    });
    apply(T::ln, m, x);
    vectors<R>(m, [=](int32_t i) { store(x + i, load(x + i) * inverse); });
    apply(T::exp, m, x);
    return [=](int32_t i) {
      const V xi = load(x + i);
      return candidates(xi, ~lanes(xi > load(v + i)));
    };
  });
}

#define ORK_METHODS(R)                                          \
  template int32_t gamma_near_zero(RuaStream*, int32_t, R*, R); \
  template int32_t gamma_below_one(RuaStream*, int32_t, R*, R);
ORK_METHODS(double)
ORK_METHODS(float)
#undef ORK_METHODS

}  // namespace ork::rua
