// Beta of two shapes above 1: R. C. H. Cheng, "Generating beta variates with nonintegral shape
// parameters", 1978, from a log-logistic envelope and without a squeeze.
#include "rua_kernel/continuous/beta.hpp"
#include "rua_kernel/service/rejection.hpp"

namespace ork::rua {

namespace {

template <class R>
constexpr R kLn4 = 0x1.62e42fefa39efp+0;
template <>
constexpr float kLn4<float> = 0x1.62e43p+0f;

}  // namespace

template <class R>
int32_t beta_cheng(RuaStream* stream, int32_t n, R* r, R p, R q) {
  using T = Tables<R>;
  using V = vec_of<R>;
  const R s = p + q, lambda = value(T::sqrt, (s - 2) / ((p + p) * q - s)), gamma = 1 / lambda + p,
          c = s * value(T::ln, s) - kLn4<R>;
  alignas(64) R odds[kRound], weight[kRound];
  R *const v_log = odds, *const w = weight;
  return accept_in_rounds(stream, n, r, [=](int32_t m, R* u, R* v, R* scratch) {
    R *const other = scratch, *const e = scratch + m;
    vectors<R>(m, [=](int32_t i) { store(other + i, 1 - load(u + i)); });
    apply(T::ln, 2 * m, u);  // and v behind it
    apply(T::ln, m, other);
    // V = lambda ln(u/(1 - u)), w = exp(V); Z = ln(u^2 v) in the place of v.
    vectors<R>(m, [=](int32_t i) {
      const V ln_u = load(u + i);
      store(v_log + i, (ln_u - load(other + i)) * lambda);
      store(v + i, ln_u + ln_u + load(v + i));
    });
    apply(T::exp, m, v_log, w);
    vectors<R>(m, [=](int32_t i) { store(e + i, load(w + i) * p + q); });
    apply(T::ln, m, e);
    return [=](int32_t i) {
      const V test = ((load(v_log + i) * gamma - load(e + i) * s) - load(v + i)) + c;
      const V y = load(w + i) * p;
      return candidates(V(y / (q + y)), ~lanes(test < 0));
    };
  });
}

template int32_t beta_cheng(RuaStream*, int32_t, double*, double, double);
template int32_t beta_cheng(RuaStream*, int32_t, float*, float, float);

}  // namespace ork::rua
