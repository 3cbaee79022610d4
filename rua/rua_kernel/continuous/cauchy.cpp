// Cauchy: a + beta tan(u), u uniform from -pi/2 to pi/2.
#include "base/export.hpp"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/service/uniform.hpp"

using namespace ork::rua;

namespace {

template <class R>
constexpr R kHalfPi = 0x1.921fb54442d18p+0;
template <>
constexpr float kHalfPi<float> = 0x1.921fb6p+0f;

template <class R>
inline int32_t generate(RuaStream* stream, int32_t n, R* r, R a, R beta) {
  const int32_t status = uniform(stream, n, r, -kHalfPi<R>, kHalfPi<R>);
  if (status < 0) return status;
  apply(Tables<R>::tan, n, r);
  each(n, r, [=](auto x) { return x * beta + a; });
  return status;
}

}  // namespace

ORK_EXPORT int32_t _ruadRngCauchy(int32_t, RuaStream* stream, int32_t n, double* r, double a,
                                  double beta) {
  return generate(stream, n, r, a, beta);
}

ORK_EXPORT int32_t _ruasRngCauchy(int32_t, RuaStream* stream, int32_t n, float* r, float a,
                                  float beta) {
  return generate(stream, n, r, a, beta);
}
