// The weighted quantile: where the running sum of weights, along the sorted values, crosses the
// order's share of the whole.
#include "base/scratch.hpp"
#include "rua_kernel/ss/quantiles/sorts.hpp"
#include "rua_kernel/ss/service/task.hpp"

namespace ork::ss {
namespace {

// v ascending, w its weights, total their sum.
template <class R>
R weighted_quantile(const R* v, const R* w, int n, R total, R q) {
  const R target = q * total;
  R reached = 0;
  int k = 0;
  for (;; ++k) {
    reached += w[k];
    if (reached >= target || k == n - 1) break;
  }
  const R x = v[k];
  const bool odd = n & 1;
  if (reached > target) {
    const R before = reached - w[k];
    if (before <= 0) return x;
    int at = k - 1;
    while (at > 0 && !(w[at] > 0)) --at;
    if (odd && before == (total - w[k]) * q) return x;
    return v[at] + (target - before) / w[k] * (x - v[at]);
  }
  if (odd || k == n - 1) return x;
  int next = k + 1;
  while (next < n - 1 && !(w[next] > 0)) ++next;
  return (x + v[next]) * R(0.5);
}

template <class R>
int32_t weighted_quantiles(const Task<R>& t) {
  const int p = t.p(), n = t.n();
  const Scratch<R> scratch(2 * uint64_t(n));
  if (!scratch) return ORK_SS_NO_MEMORY;
  R *values = scratch.get(), *weights = values + n;
  R total = 0;
  for (int i = 0; i < n; ++i) total += t.weights[i];
  for (int j = 0; j < p; ++j) {
    const R* x = t.observations + (t.rows() ? size_t(j) * n : size_t(j));
    const size_t step = t.rows() ? 1 : p;
    for (int i = 0; i < n; ++i) {
      values[i] = x[i * step];
      weights[i] = t.weights[i];
    }
    Sort<R>::pairs(n, values, weights);
    t.quantiles[j] = weighted_quantile(values, weights, n, total, t.quantileOrders[0]);
  }
  return ORK_SS_OK;
}

}  // namespace

ORK_EXPORT int32_t _ruadSSWMedian(ork_ss_task* task) {
  return weighted_quantiles(record_of<double>(task));
}
ORK_EXPORT int32_t _ruasSSWMedian(ork_ss_task* task) {
  return weighted_quantiles(record_of<float>(task));
}

}  // namespace ork::ss
