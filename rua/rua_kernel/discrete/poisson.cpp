// Poisson: the entry, and the method for small means, by a table of sums of probabilities.
#include "rua_kernel/discrete/poisson.hpp"

#include "base/export.hpp"
#include "rua_kernel/discrete/cumulative.hpp"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/service/guard.hpp"
#include "rua_kernel/service/kept.hpp"

using namespace ork::rua;

namespace {

constexpr PoissonKept kFresh = {{}, -1, {}};  // of no mean

constexpr int32_t kUniforms = 2024;  // that a round of any method draws

double next_probability(double lambda, double p, int32_t k) { return p * lambda / k; }

void set_up_sums(double* sums, int32_t size, double lambda) {
  double p = value(Tables<double>::exp, -lambda);
  sums[0] = p;
  for (int32_t k = 1; k < size; ++k) {
    p = next_probability(lambda, p, k);
    sums[k] = sums[k - 1] + p;
  }
}

int32_t by_sums(RuaStream* stream, int32_t n, int32_t* r, const double* sums, int32_t mode,
                double lambda) {
  const int32_t size = mode + PoissonKept::kBeyondMode;
  return by_table<kUniforms>(stream, n, r, {sums, size, mode}, [=](double u) {
    // Rare: the last probability of the table is found again.
    double p = sums[0];
    for (int32_t k = 1; k < size; ++k) p = next_probability(lambda, p, k);
    return go_on(sums[size - 1], p, size, u,
                 [=](double q, int32_t k) { return next_probability(lambda, q, k); });
  });
}

}  // namespace

ORK_EXPORT int32_t _ruaiRngPoisson(int32_t method, RuaStream* stream, int32_t n, int32_t* r,
                                   double lambda) {
  if (method == RUA_POISSON_POISNORM) return poisson_by_normal(stream, n, r, lambda);
  const CallbackGuard guard(least_ln_at_pole<float>);
  PoissonKept* kept;
  const int32_t found = find_or_make(stream, kept, kFresh);
  if (found < 0) return found;
  const bool by_hat = lambda >= PoissonKept::kLeastHat;
  const int32_t mode = int32_t(lambda);
  if (kept->mean != lambda) {
    if (by_hat)
      set_up(kept->hat, lambda);
    else
      set_up_sums(kept->sums, mode + PoissonKept::kBeyondMode, lambda);
    kept->mean = lambda;
  }
  return by_hat ? poisson_by_hat(stream, n, r, kept->hat, lambda)
                : by_sums(stream, n, r, kept->sums, mode, lambda);
}
