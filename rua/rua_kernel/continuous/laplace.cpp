// Laplace: a +- beta ln(u), the sign from a second uniform number. Pairs are drawn by blocks:
// the magnitude first, the selector second.
#include "base/export.hpp"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/service/guard.hpp"
#include "rua_kernel/service/uniform.hpp"

using namespace ork::rua;

namespace {

constexpr int32_t kBlock = 1024;

// r <- (selector above 1/2 ? beta : -beta) r + a.
template <class R>
inline void sign_and_scale(int32_t n, const R* selector, R* r, R a, R beta) {
  constexpr int w = ork::simd<R>::width;
  const auto half = ork::splat(R(0.5)), plus = ork::splat(beta), minus = ork::splat(-beta);
  int32_t i = 0;
  for (; n - i >= w; i += w) {
    const auto scale = ork::load(selector + i) > half ? plus : minus;
    ork::store(r + i, ork::load(r + i) * scale + a);
  }
  for (; i < n; ++i) r[i] = r[i] * (selector[i] > R(0.5) ? beta : -beta) + a;
}

template <class R>
inline int32_t generate(RuaStream* stream, int32_t n, R* r, R a, R beta) {
  const CallbackGuard guard(least_ln<R>);
  alignas(64) R u[2 * kBlock];
  for (int32_t m; n > 0; n -= m, r += m) {
    m = n < kBlock ? n : kBlock;
    const int32_t status = uniform(stream, 2 * m, u, 0, 1);
    if (status < 0) return status;
    R* selector = u;
    split(m, u, r, selector, [](auto x) { return x; });
    apply(Tables<R>::ln, m, r);
    sign_and_scale(m, selector, r, a, beta);
  }
  return RUA_STATUS_OK;
}

}  // namespace

ORK_EXPORT int32_t _ruadRngLaplace(int32_t, RuaStream* stream, int32_t n, double* r, double a,
                                   double beta) {
  return generate(stream, n, r, a, beta);
}

ORK_EXPORT int32_t _ruasRngLaplace(int32_t, RuaStream* stream, int32_t n, float* r, float a,
                                   float beta) {
  return generate(stream, n, r, a, beta);
}
