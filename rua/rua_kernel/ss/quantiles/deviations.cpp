// Median and mean of the distances from the median and the mean.
#include "base/scratch.hpp"
#include "base/threads.hpp"
#include "rua_kernel/ss/moments/basic.hpp"
#include "rua_kernel/ss/quantiles/quantiles.hpp"
#include "rua_kernel/ss/service/computation.hpp"
#include "rua_kernel/ss/service/data.hpp"
#include "rua_kernel/ss/service/private_task.hpp"

namespace ork::ss {
namespace {

template <class R>
int32_t mean(const R* x, int n, R* to, const ork_threader* threader) {
  PrivateTask<R> task(1, n, ORK_SS_ROWS, x);
  task->moments[kMean] = to;
  return basic(*task, ORK_SS_MEAN, ORK_SS_FAST, threader);
}

// For each selected variable the centre of the distances from its centre, or from the one in
// `around`. centre(x, n, result, threader) computes it.
template <class R, class Centre>
int32_t estimate(const Task<R>& t, const R* around, R* results, const ork_threader* threader,
                 Centre centre) {
  const Data<R> data = data_of(t);
  const int n = data.n, threads = thread_limit(threader, data.p);
  const Scratch<R> scratch(uint64_t(n) * threads);
  if (!scratch) return ORK_SS_NO_MEMORY;
  SharedStatus status;
  run_items(threader, data.p, threads, [&](int variable, int thread) {
    if (!t.selected(variable)) return;
    R* const distances = scratch.get() + size_t(thread) * n;
    const R* x = data.variable(variable).x;
    if (!data.rows) {
      data.variable(variable).copy(0, n, distances);
      x = distances;
    }
    R from = around ? around[variable] : R(0);
    if (!around)
      if (const int32_t failure = centre(x, n, &from, threader)) return status.put(failure);
    for (int i = 0; i < n; ++i) {
      const R d = x[i] - from;
      distances[i] = d < 0 ? -d : d;
    }
    status.put(centre(distances, n, results + variable, threader));
  });
  return status.get();
}

template <class R>
int32_t deviations(const Task<R>& t, uint64_t estimates, uint64_t method,
                   const ork_threader* threader) {
  if (!t.dimension || t.integer(t.dimension) < 1) return ORK_SS_BAD_DIMENSION;
  if (!t.observationCount || t.integer(t.observationCount) < 1) return ORK_SS_BAD_OBSERVATION_COUNT;
  if (!t.storageFormat) return ORK_SS_NULL_STORAGE;
  const int64_t layout = t.integer(t.storageFormat);
  if (layout != ORK_SS_ROWS && layout != ORK_SS_COLUMNS) return ORK_SS_BAD_STORAGE;
  const bool medians = estimates & ORK_SS_MEDIAN_ABS_DEV, means = estimates & ORK_SS_MEAN_ABS_DEV;
  const bool supplied_mean = method & ORK_SS_TWO_PASS;
  if (medians) {
    if (!t.medianAbsDev) return ORK_SS_NULL_MEDIAN_ABS_DEV;
    if (!(method & ORK_SS_FAST)) return ORK_SS_BAD_METHOD;
  }
  if (means) {
    if (!t.meanAbsDev) return ORK_SS_NULL_MEAN_ABS_DEV;
    if (!(method & (ORK_SS_FAST | ORK_SS_TWO_PASS))) return ORK_SS_BAD_METHOD;
    if (supplied_mean && !t.mean()) return ORK_SS_NULL_MEAN;
  }
  int32_t first = ORK_SS_OK;
  if (medians) first = estimate<R>(t, nullptr, t.medianAbsDev, threader, median<R>);
  if (means) {
    const R* around = supplied_mean ? t.mean() : nullptr;
    const int32_t second = estimate(t, around, t.meanAbsDev, threader, mean<R>);
    if (first == ORK_SS_OK) first = second;
  }
  return first;
}

}  // namespace

ORK_COMPUTATION(MAD, deviations)

}  // namespace ork::ss
