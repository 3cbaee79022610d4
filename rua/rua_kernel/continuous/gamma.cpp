// Gamma: a method by the shape, then a + beta x.
#include "rua_kernel/continuous/gamma.hpp"

#include "base/export.hpp"
#include "ork/rua_distributions.h"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/service/guard.hpp"

using namespace ork::rua;

namespace {

// From this shape on the Weibull envelope accepts more.
template <class R>
constexpr R kWeibullFrom = 0.6;
template <>
constexpr float kWeibullFrom<float> = 0.6f;

template <class R, class Exponential>
inline int32_t standard(Exponential exponential, RuaStream* stream, int32_t n, R* r, R alpha) {
  if (alpha > 1) return gamma_above_one(stream, n, r, alpha);
  if (alpha == 1) return exponential(0, stream, n, r, 0, 1);
  if (alpha < kWeibullFrom<R>) return gamma_near_zero(stream, n, r, alpha);
  return gamma_below_one(stream, n, r, alpha);
}

template <class R, class Exponential>
inline int32_t generate(Exponential exponential, RuaStream* stream, int32_t n, R* r, R alpha, R a,
                        R beta) {
  const CallbackGuard guard(least_ln_at_pole<R>);
  const int32_t status = standard(exponential, stream, n, r, alpha);
  if (status >= 0) each(n, r, [=](auto x) { return at_least(a, x * beta + a); });
  return status;
}

}  // namespace

ORK_EXPORT int32_t _ruadRngGamma(int32_t, RuaStream* stream, int32_t n, double* r, double alpha,
                                 double a, double beta) {
  return generate(_ruadRngExponential, stream, n, r, alpha, a, beta);
}

ORK_EXPORT int32_t _ruasRngGamma(int32_t, RuaStream* stream, int32_t n, float* r, float alpha,
                                 float a, float beta) {
  return generate(_ruasRngExponential, stream, n, r, alpha, a, beta);
}
