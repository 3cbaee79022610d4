// Median and mean of the distances from the median and the mean.
#include "base/scratch.hpp"
#include "base/threads.hpp"
#include "rua_kernel/ss/moments/basic.hpp"
#include "rua_kernel/ss/quantiles/quantiles.hpp"

namespace ork::ss {
namespace {

template <class R>
struct Work {
  const Task<R>& task;
  int p, n;
  bool rows;
  bool given_mean;
  R* scratch;  // n reals for each thread
  const ork_threader* threader;
  int32_t status;
};

// One variable: its centre, then the centre of the distances from it. centre(record, result)
// computes it for a record of one variable.
template <class R, class Centre>
int32_t deviation(const Work<R>& work, int variable, int thread, R* result, bool given_centre,
                  R around, Centre centre) {
  const int n = work.n;
  const int32_t one = 1, rows = ORK_SS_ROWS;
  R* const scratch = work.scratch + size_t(thread) * n;
  const R* x = work.task.observations + (work.rows ? size_t(variable) * n : size_t(variable));
  if (!work.rows) {
    for (int i = 0; i < n; ++i) scratch[i] = x[size_t(i) * work.p];
    x = scratch;
  }
  Task<R> record{};
  record.taskKind = kTaskKind;
  record.isDouble = sizeof(R) == sizeof(double);
  record.dimension = &one;
  record.observationCount = &n;
  record.storageFormat = &rows;
  record.observations = x;
  if (!given_centre)
    if (const int32_t status = centre(record, &around)) return status;
  for (int i = 0; i < n; ++i) {
    const R d = x[i] - around;
    scratch[i] = d < 0 ? -d : d;
  }
  record.observations = scratch;
  return centre(record, result);
}

template <class R>
__attribute__((force_align_arg_pointer)) void median_of_variable(int item, int thread, int,
                                                                 void* context) {
  Work<R>& work = *static_cast<Work<R>*>(context);
  if (!work.task.selected(item)) return;
  const int32_t status = deviation(
      work, item, thread, work.task.medianAbsDev + item, false, R(0), [&](Task<R>& record, R* to) {
        const R half = R(0.5);
        const int32_t one = 1;
        record.quantileCount = &one;
        record.quantileOrders = &half;
        record.quantiles = to;
        return quantiles(record, ORK_SS_QUANTILES, ORK_SS_FAST, work.threader);
      });
  if (status != ORK_SS_OK) __atomic_store_n(&work.status, status, __ATOMIC_RELAXED);
}

template <class R>
__attribute__((force_align_arg_pointer)) void mean_of_variable(int item, int thread, int,
                                                               void* context) {
  Work<R>& work = *static_cast<Work<R>*>(context);
  if (!work.task.selected(item)) return;
  const R mean = work.given_mean ? work.task.mean()[item] : R(0);
  const int32_t status = deviation(work, item, thread, work.task.meanAbsDev + item, work.given_mean,
                                   mean, [&](Task<R>& record, R* to) {
                                     record.moments[kMean] = to;
                                     return basic(record, ORK_SS_MEAN, ORK_SS_FAST, work.threader);
                                   });
  if (status != ORK_SS_OK) __atomic_store_n(&work.status, status, __ATOMIC_RELAXED);
}

template <class R>
int32_t estimate(const Task<R>& t, bool given_mean, const ork_threader* threader,
                 ork_threader_body body) {
  const int p = t.p(), n = t.n();
  const int threads = thread_limit(threader, p);
  const Scratch<R> scratch(uint64_t(n) * threads);
  if (!scratch) return ORK_SS_NO_MEMORY;
  Work<R> work{t, p, n, t.rows() || p == 1, given_mean, scratch.get(), threader, ORK_SS_OK};
  run_items(threader, p, threads, &work, body);
  return work.status;
}

template <class R>
int32_t deviations(const Task<R>& t, uint64_t estimates, uint64_t method,
                   const ork_threader* threader) {
  if (!t.dimension || t.integer(t.dimension) < 1) return ORK_SS_BAD_DIMENSION;
  if (!t.observationCount || t.integer(t.observationCount) < 1) return ORK_SS_BAD_OBSERVATION_COUNT;
  if (!t.storageFormat) return ORK_SS_NULL_STORAGE;
  const int64_t layout = t.integer(t.storageFormat);
  if (layout != ORK_SS_ROWS && layout != ORK_SS_COLUMNS) return ORK_SS_BAD_STORAGE;
  const bool median = estimates & ORK_SS_MEDIAN_ABS_DEV, mean = estimates & ORK_SS_MEAN_ABS_DEV;
  const bool given_mean = method & ORK_SS_TWO_PASS;
  if (median) {
    if (!t.medianAbsDev) return ORK_SS_NULL_MEDIAN_ABS_DEV;
    if (!(method & ORK_SS_FAST)) return ORK_SS_BAD_METHOD;
  }
  if (mean) {
    if (!t.meanAbsDev) return ORK_SS_NULL_MEAN_ABS_DEV;
    if (!(method & (ORK_SS_FAST | ORK_SS_TWO_PASS))) return ORK_SS_BAD_METHOD;
    if (given_mean && !t.mean()) return ORK_SS_NULL_MEAN;
  }
  int32_t first = ORK_SS_OK;
  if (median) first = estimate(t, false, threader, median_of_variable<R>);
  if (mean) {
    const int32_t second = estimate(t, given_mean, threader, mean_of_variable<R>);
    if (first == ORK_SS_OK) first = second;
  }
  return first;
}

}  // namespace

ORK_EXPORT int32_t _ruadSSMAD(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                              uint32_t method_low, uint32_t method_high,
                              const ork_threader* threader) {
  return deviations(record_of<double>(task), join(estimates_low, estimates_high),
                    join(method_low, method_high), threader);
}
ORK_EXPORT int32_t _ruasSSMAD(ork_ss_task* task, uint32_t estimates_low, uint32_t estimates_high,
                              uint32_t method_low, uint32_t method_high,
                              const ork_threader* threader) {
  return deviations(record_of<float>(task), join(estimates_low, estimates_high),
                    join(method_low, method_high), threader);
}

}  // namespace ork::ss
