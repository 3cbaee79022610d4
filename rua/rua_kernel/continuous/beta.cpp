// Beta: a method by the shapes p and q, then a + beta x, kept within a and a + beta.
#include "rua_kernel/continuous/beta.hpp"

#include "base/export.hpp"
#include "ork/rua_distributions.h"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/service/guard.hpp"
#include "rua_kernel/service/uniform.hpp"

using namespace ork::rua;

namespace {

// For p and q below 1 Johnk's method is taken where p^2 B1 + q + B2 is not above 0.
template <class R>
constexpr R kB1 = 0x1.b45acbbf56123p-1;
template <>
constexpr float kB1<float> = 0x1.b45accp-1f;
template <class R>
constexpr R kB2 = -0x1.e9986aa60216p-1;
template <>
constexpr float kB2<float> = -0x1.e9986ap-1f;

// u^(1/shape).
template <class R>
inline int32_t beta_power(RuaStream* stream, int32_t n, R* r, R shape) {
  const int32_t status = uniform(stream, n, r, 0, 1);
  if (status < 0) return status;
  apply(Tables<R>::ln, n, r);
  const R inverse = 1 / shape;
  each(n, r, [=](auto x) { return x * inverse; });
  apply(Tables<R>::exp, n, r);
  return status;
}

// The numbers are x, or with the shapes exchanged 1 - x.
template <class R>
struct Standard {
  int32_t status;
  bool mirrored;
};

template <class R>
inline Standard<R> standard(RuaStream* stream, int32_t n, R* r, R p, R q) {
  if (p < 1 && q < 1) {
    const bool switching = p * p * kB1<R> + q + kB2<R> > 0;
    return {(switching ? beta_switching<R> : beta_johnk<R>)(stream, n, r, p, q), false};
  }
  if (p < 1 && q > 1) return {beta_switching_mixed(stream, n, r, p, q), false};
  if (p > 1 && q < 1) return {beta_switching_mixed(stream, n, r, q, p), true};
  if (p > 1 && q > 1) return {beta_cheng(stream, n, r, p, q), false};
  if (p == 1) return {beta_power(stream, n, r, q), true};
  return {beta_power(stream, n, r, p), false};
}

// A shape that is no number leaves the uniform distribution.
template <class R, class Uniform>
inline int32_t generate(Uniform uniform, int32_t method, RuaStream* stream, int32_t n, R* r, R p,
                        R q, R a, R beta) {
  const CallbackGuard guard(least_ln_at_pole<R>);
  const R b = a + beta;
  if (p != 1 && q != 1 && (p != p || q != q))
    return uniform(method & RUA_METHOD_ACCURATE, stream, n, r, a, b);
  const auto [status, mirrored] = standard(stream, n, r, p, q);
  if (status < 0) return status;
  if (mirrored)
    each(n, r, [=](auto x) { return at_most(b, at_least(a, (1 - x) * beta + a)); });
  else
    each(n, r, [=](auto x) { return at_most(b, at_least(a, x * beta + a)); });
  return status;
}

}  // namespace

ORK_EXPORT int32_t _ruadRngBeta(int32_t method, RuaStream* stream, int32_t n, double* r, double p,
                                double q, double a, double beta) {
  return generate(_ruadRngUniform, method, stream, n, r, p, q, a, beta);
}

ORK_EXPORT int32_t _ruasRngBeta(int32_t method, RuaStream* stream, int32_t n, float* r, float p,
                                float q, float a, float beta) {
  return generate(_ruasRngUniform, method, stream, n, r, p, q, a, beta);
}
