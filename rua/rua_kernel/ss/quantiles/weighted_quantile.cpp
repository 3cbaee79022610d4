// The weighted quantile: where the running sum of weights, along the sorted values, crosses the
// order's share of the whole.
#include "base/scratch.hpp"
#include "rua_kernel/ss/quantiles/between.hpp"
#include "rua_kernel/ss/quantiles/quantiles.hpp"
#include "rua_kernel/ss/service/data.hpp"
#include "rua_kernel/ss/service/math.hpp"

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
    return between(v[at], x, (target - before) / w[k]);
  }
  if (odd || k == n - 1) return x;
  int next = k + 1;
  while (next < n - 1 && !(w[next] > 0)) ++next;
  return between(x, v[next], R(0.5));
}

}  // namespace

template <class R>
int32_t weighted_quantiles(const Task<R>& t) {
  const Data<R> data = data_of(t);
  const int n = data.n;
  const Scratch<R> scratch(2 * uint64_t(n));
  if (!scratch) return ORK_SS_NO_MEMORY;
  R *values = scratch.get(), *weights = values + n;
  R total = 0;
  for (int i = 0; i < n; ++i) total += data.w[i];
  for (int j = 0; j < data.p; ++j) {
    data.variable(j).copy(0, n, values);
    Series<R>{data.w, 1}.copy(0, n, weights);
    Math<R>::sort_pairs(n, values, weights);
    t.quantiles[j] = weighted_quantile(values, weights, n, total, t.quantileOrders[0]);
  }
  return ORK_SS_OK;
}

template int32_t weighted_quantiles(const Task<double>&);
template int32_t weighted_quantiles(const Task<float>&);

#define ORK_WMEDIAN(t, R)                                    \
  ORK_EXPORT int32_t _rua##t##SSWMedian(ork_ss_task* task) { \
    return weighted_quantiles(record_of<R>(task));           \
  }
ORK_TWINS(ORK_WMEDIAN)

}  // namespace ork::ss
