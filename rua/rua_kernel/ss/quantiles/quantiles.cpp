// Exact quantiles and sorted copies: a sort when the sorted values are asked for, selections
// when they are not.
#include "rua_kernel/ss/quantiles/quantiles.hpp"

#include "base/scratch.hpp"
#include "base/threads.hpp"
#include "rua_kernel/ss/quantiles/between.hpp"
#include "rua_kernel/ss/service/computation.hpp"
#include "rua_kernel/ss/service/data.hpp"
#include "rua_kernel/ss/service/math.hpp"
#include "rua_kernel/ss/service/private_task.hpp"

namespace ork::ss {
namespace {

template <class R>
int32_t check(const Task<R>& t, uint64_t estimates, uint64_t method) {
  if (!(t.integer(t.storageFormat) & kLayouts)) return ORK_SS_BAD_STORAGE;
  if (estimates & ORK_SS_QUANTILES) {
    if (!t.quantiles) return ORK_SS_NULL_QUANTILES;
    if (!t.quantileOrders) return ORK_SS_NULL_QUANTILE_ORDERS;
    if (!t.quantileCount || t.integer(t.quantileCount) < 0) return ORK_SS_BAD_QUANTILES;
    if (!orders_in_range(t.quantileOrders, int(t.integer(t.quantileCount))))
      return ORK_SS_BAD_QUANTILES;
  }
  if (estimates & ORK_SS_ORDER_STATS) {
    if (!t.orderStatistics) return ORK_SS_NULL_ORDER_STATS;
    if (!t.orderStatisticsStorage) return ORK_SS_NULL_STORAGE;
    if (!(t.integer(t.orderStatisticsStorage) & kLayouts)) return ORK_SS_BAD_STORAGE;
  }
  return method & ORK_SS_FAST ? ORK_SS_OK : ORK_SS_BAD_METHOD;
}

template <class R>
struct Work {
  const Task<R>& task;
  Data<R> data;
  int count;  // quantile orders
  bool quantiles, sorted;
  bool sorted_rows;
  const int* variables;  // selected
  R* scratch;            // n reals for each thread
};

// Linear between the values of two neighbouring ranks: value(k), then next(k + 1).
template <class R, class Value, class Next>
void put_quantiles(const Work<R>& work, R* to, Value value, Next next) {
  const int last = work.data.n - 1;
  for (int i = 0; i < work.count; ++i) {
    const R place = work.task.quantileOrders[i] * R(last);
    int k = int(place);
    if (k < 0) k = 0;        // from NaN
    if (k > last) k = last;  // n - 1 was rounded up
    const R below = value(k), above = k < last ? next(k + 1) : below;
    to[i] = between(below, above, place - R(k));
  }
}

template <class R>
R least(const R* x, int n) {
  constexpr int chains = 4;
  R now[chains] = {x[0], x[0], x[0], x[0]};
  int i = 0;
  for (; i + chains <= n; i += chains)
#pragma GCC unroll 4
    for (int c = 0; c < chains; ++c) now[c] = x[i + c] < now[c] ? x[i + c] : now[c];
  for (; i < n; ++i) now[0] = x[i] < now[0] ? x[i] : now[0];
  for (int c = 1; c < chains; ++c) now[0] = now[c] < now[0] ? now[c] : now[0];
  return now[0];
}

template <class R>
void take_variable(const Work<R>& work, int item, int thread) {
  const Task<R>& t = work.task;
  const int n = work.data.n, p = work.data.p;
  const Series<R> x = work.data.variable(work.variables[item]);
  R* const scratch = work.scratch + size_t(thread) * n;
  R* const quantiles = work.quantiles ? t.quantiles + size_t(item) * work.count : nullptr;
  if (work.sorted) {
    const size_t stride = work.sorted_rows ? 1 : p;
    R* place = t.orderStatistics + (work.sorted_rows ? size_t(item) * n : size_t(item));
    if (stride == 1) {
      x.copy(0, n, place);
      Math<R>::sort_radix(place, scratch, n);
    } else {
      for (int i = 0; i < n; ++i) place[i * stride] = x[i];
      Math<R>::sort_strided(n, place, int(stride));
    }
    const auto value = [&](int k) { return place[k * stride]; };
    if (quantiles) put_quantiles(work, quantiles, value, value);
  } else if (quantiles) {
    x.copy(0, n, scratch);
    // After the element selected nothing is below it: the next rank is the least of those.
    put_quantiles(
        work, quantiles, [&](int k) { return Math<R>::select(n, scratch, k); },
        [&](int k) { return least(scratch + k, n - k); });
  }
}

}  // namespace

template <class R>
int32_t quantiles(Task<R>& t, uint64_t estimates, uint64_t method, const ork_threader* threader) {
  if (const int32_t status = check(t, estimates, method)) return status;
  const Data<R> data = data_of(t);
  const int p = data.p, n = data.n;
  Work<R> work{t, data, 0, false, false, false, nullptr, nullptr};
  if (estimates & ORK_SS_QUANTILES) {
    work.count = int(t.integer(t.quantileCount));
    work.quantiles = true;
  }
  if (estimates & ORK_SS_ORDER_STATS) {
    work.sorted = true;
    work.sorted_rows = t.integer(t.orderStatisticsStorage) & ORK_SS_ROWS;
  }
  if (n < 1) return ORK_SS_OK;

  // Threads that need no more than 10 MB of scratch.
  const uint64_t fit = 10485760 / (uint64_t(n) * sizeof(R));
  int threads = thread_limit(threader, p);
  if (uint64_t(threads) > (fit > 1 ? fit : 1)) threads = fit > 1 ? int(fit) : 1;
  const Scratch<R> scratch(uint64_t(threads) * n);
  if (!scratch) return ORK_SS_NO_MEMORY;
  const Scratch<int> variables(p);
  if (!variables) return ORK_SS_NO_MEMORY;
  int selected = 0;
  for (int j = 0; j < p; ++j)
    if (t.selected(j)) variables[selected++] = j;
  work.scratch = scratch.get();
  work.variables = variables.get();
  run_items(threader, selected, threads,
            [&](int item, int thread) { take_variable(work, item, thread); });
  return ORK_SS_OK;
}

template <class R>
int32_t median(const R* x, int n, R* to, const ork_threader* threader) {
  const int32_t one = 1;
  const R half = R(0.5);
  PrivateTask<R> task(1, n, ORK_SS_ROWS, x);
  task->quantileCount = &one;
  task->quantileOrders = &half;
  task->quantiles = to;
  return quantiles(*task, ORK_SS_QUANTILES, ORK_SS_FAST, threader);
}

template <class R>
R take_median(R* x, int n) {
  const int last = n - 1, k = last / 2;
  const R below = Math<R>::select(n, x, k);
  return last % 2 ? between(below, least(x + k + 1, last - k), R(0.5)) : below;
}

template double take_median(double*, int);
template float take_median(float*, int);
template int32_t median(const double*, int, double*, const ork_threader*);
template int32_t median(const float*, int, float*, const ork_threader*);
template int32_t quantiles(Task<double>&, uint64_t, uint64_t, const ork_threader*);
template int32_t quantiles(Task<float>&, uint64_t, uint64_t, const ork_threader*);

ORK_COMPUTATION(Quantiles, quantiles)

}  // namespace ork::ss
