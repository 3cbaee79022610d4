// Gumbel: a + beta ln(e), e exponential.
#include "base/export.hpp"
#include "ork/rua_distributions.h"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/service/guard.hpp"

using namespace ork::rua;

namespace {

template <class R, class Exponential>
inline int32_t generate(Exponential exponential, RuaStream* stream, int32_t n, R* r, R a, R beta) {
  const CallbackGuard guard(least_ln<R>);
  const int32_t status = exponential(0, stream, n, r, 0, 1);
  if (status < 0) return status;
  apply(Tables<R>::ln, n, r);
  each(n, r, [=](auto x) { return x * beta + a; });
  return status;
}

}  // namespace

ORK_EXPORT int32_t _ruadRngGumbel(int32_t, RuaStream* stream, int32_t n, double* r, double a,
                                  double beta) {
  return generate(_ruadRngExponential, stream, n, r, a, beta);
}

ORK_EXPORT int32_t _ruasRngGumbel(int32_t, RuaStream* stream, int32_t n, float* r, float a,
                                  float beta) {
  return generate(_ruasRngExponential, stream, n, r, a, beta);
}
