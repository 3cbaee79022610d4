// Rayleigh: a + beta sqrt(-ln(u)).
#include "base/export.hpp"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/service/guard.hpp"
#include "rua_kernel/service/uniform.hpp"

using namespace ork::rua;

namespace {

template <class R>
inline int32_t generate(RuaStream* stream, int32_t n, R* r, R a, R beta) {
  const CallbackGuard guard(least_ln_at_pole<R>);
  const int32_t status = uniform(stream, n, r, 0, 1);
  if (status < 0) return status;
  apply(Tables<R>::ln, n, r);
  each(n, r, [](auto x) { return -x; });
  apply(Tables<R>::sqrt, n, r);
  each(n, r, [=](auto x) { return at_least(a, x * beta + a); });
  return status;
}

}  // namespace

ORK_EXPORT int32_t _ruadRngRayleigh(int32_t, RuaStream* stream, int32_t n, double* r, double a,
                                    double beta) {
  return generate(stream, n, r, a, beta);
}

ORK_EXPORT int32_t _ruasRngRayleigh(int32_t, RuaStream* stream, int32_t n, float* r, float a,
                                    float beta) {
  return generate(stream, n, r, a, beta);
}
