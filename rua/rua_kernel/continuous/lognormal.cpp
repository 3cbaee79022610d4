// Lognormal: b + beta exp(g), g Gaussian.
#include "base/export.hpp"
#include "ork/rua_distributions.h"
#include "rua_kernel/service/elementwise.hpp"

using namespace ork::rua;

namespace {

template <class R, class Gaussian>
inline int32_t generate(Gaussian gaussian, int32_t method, RuaStream* stream, int32_t n, R* r, R a,
                        R sigma, R b, R beta) {
  const int32_t by = method == 0 ? RUA_GAUSSIAN_BOXMULLER2 : RUA_GAUSSIAN_ICDF;
  const int32_t status = gaussian(by, stream, n, r, a, sigma);
  if (status < 0) return status;
  apply(Tables<R>::exp, n, r);
  each(n, r, [=](auto x) { return at_least(b, x * beta + b); });
  return status;
}

}  // namespace

ORK_EXPORT int32_t _ruadRngLognormal(int32_t method, RuaStream* stream, int32_t n, double* r,
                                     double a, double sigma, double b, double beta) {
  return generate(_ruadRngGaussian, method, stream, n, r, a, sigma, b, beta);
}

ORK_EXPORT int32_t _ruasRngLognormal(int32_t method, RuaStream* stream, int32_t n, float* r,
                                     float a, float sigma, float b, float beta) {
  return generate(_ruasRngGaussian, method, stream, n, r, a, sigma, b, beta);
}
