#include "rua_kernel/ss/robust/tbs.hpp"

#include "base/threads.hpp"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/ss/moments/basic.hpp"
#include "rua_kernel/ss/robust/mahalanobis.hpp"
#include "rua_kernel/ss/robust/sums.hpp"
#include "rua_kernel/ss/service/math.hpp"
#include "rua_kernel/ss/service/private_task.hpp"

namespace ork::ss {
namespace {

template <class R>
int layout_of(const Data<R>& data) {
  return data.rows ? ORK_SS_ROWS : ORK_SS_COLUMNS;
}

// Distances of all observations, in equal shares.
template <class R>
int32_t distances(const Data<R>& data, const Estimate<R>& estimate, R* d,
                  const ork_threader* threader) {
  constexpr uint64_t few = 10000;  // values, which are not worth a launch
  const int n = data.n;
  const int threads = uint64_t(n) * data.p < few ? 1 : thread_limit(threader, n);
  SharedStatus status;
  run_team(threader, threads, [&](int thread, int team) {
    const int64_t each = (int64_t{n} + team - 1) / team, end = each * (thread + 1);
    const int32_t first = int32_t(end - each), last = int32_t(end < n ? end : n);
    if (end - each >= n) return;
    PrivateTask<R> task(data.p, n, layout_of(data), data.x);
    task->mahFirst = &first;
    task->mahLast = &last;
    task->mahMean = estimate.mean;
    task->mahInverseCov = estimate.v;
    task->mahDistances = d + first;
    status.put(mahalanobis(*task));
  });
  return status.get();
}

// What the new weights add up to.
struct Sums {
  double w, wd2, change;  // weights, times squared distances, squared differences to those before
};

// d <- the distances in units that put as many as are to be good below the quantile of their
// share; w <- their weights.
template <class R>
Sums weigh(const Biweight& biweight, int n, R scale, R* d, R* w) {
  double sums[3] = {};
  const R m = R(biweight.m), c = R(biweight.c);
  const auto take = [&](auto weight) {
    add_up<R, 3>(n, sums, [&]<class V>(int i, V* to) {
      const V x = get<V>(d + i) * all<V>(scale), now = weight(x), moved = now - get<V>(w + i);
      put(d + i, x);
      put(w + i, now);
      to[0] += now;
      to[1] += now * (x * x);
      to[2] += moved * moved;
    });
  };
  if (c > 0) {
    const R inverse = 1 / c;
    take([=]<class V>(V x) {
      const V part = rua::at_least(R(0), (x - all<V>(m)) * all<V>(inverse));
      const V rest = rua::at_least(R(0), all<V>(R(1)) - part * part);
      return rest * rest;
    });
  } else {
    take([=]<class V>(V x) { return x < m ? all<V>(R(1)) : V{}; });
  }
  return {sums[0], sums[1], sums[2]};
}

}  // namespace

template <class R>
int32_t weighted_moments(const Data<R>& data, const R* w, R divisor, const Estimate<R>& to,
                         const ork_threader* threader) {
  const int p = data.p;
  R accumulated[2] = {0, 0};
  PrivateTask<R> task(p, data.n, layout_of(data), data.x, w);
  task->moments[kMean] = to.mean;
  task->crossProduct = to.v;
  task->accumulatedWeight = accumulated;
  if (const int32_t status = basic(*task, ORK_SS_CROSS_PRODUCT, ORK_SS_ONE_PASS, threader))
    return status;
  const R factor = 1 / divisor;
  for (size_t k = 0; k < size_t(p) * p; ++k) to.v[k] *= factor;
  return ORK_SS_OK;
}

template <class R>
int32_t iterate(const Data<R>& data, const Biweight& biweight, R tolerance, int steps, R* d, R* w,
                R* scratch, const Estimate<R>& estimate, const ork_threader* threader) {
  const int n = data.n, p = data.p;
  const int good = int((int64_t{n} + p + 1) / 2);
  const double quantile = __ruadSqrt(__ruadChi2ICDF(p, good / (n + 1.)));
  const double enough = double(tolerance) * tolerance;
  for (int i = 0; i < n; ++i) w[i] = 1;
  double change = 2 * enough;
  for (int step = 0; step < steps && change > enough; ++step) {
    if (const int32_t status = Math<R>::test_rank(p, estimate.v)) return status;
    if (const int32_t status = Math<R>::invert(p, estimate.v)) return status;
    if (const int32_t status = distances(data, estimate, d, threader)) return status;
    memcpy(scratch, d, size_t(n) * sizeof(R));
    const R scale = R(quantile) / Math<R>::select(n, scratch, good - 1);
    const Sums sums = weigh(biweight, n, scale, d, w);
    if (sums.w <= 0) return ORK_SS_TOO_FEW_GOOD;
    if (const int32_t status = weighted_moments(data, w, R(sums.wd2 / p), estimate, threader))
      return status;
    change = sums.change;
  }
  return ORK_SS_OK;
}

template int32_t weighted_moments(const Data<double>&, const double*, double,
                                  const Estimate<double>&, const ork_threader*);
template int32_t weighted_moments(const Data<float>&, const float*, float, const Estimate<float>&,
                                  const ork_threader*);
template int32_t iterate(const Data<double>&, const Biweight&, double, int, double*, double*,
                         double*, const Estimate<double>&, const ork_threader*);
template int32_t iterate(const Data<float>&, const Biweight&, float, int, float*, float*, float*,
                         const Estimate<float>&, const ork_threader*);

}  // namespace ork::ss
