// Quantiles for other methods of statistics, on records of their own.
#pragma once
#include "rua_kernel/ss/service/task.hpp"

namespace ork::ss {

template <class R>
int32_t quantiles(Task<R>& task, uint64_t estimates, uint64_t method, const ork_threader* threader);

// The median of n values.
template <class R>
int32_t median(const R* x, int n, R* to, const ork_threader* threader);

// The same of values that it may reorder; it takes no memory.
template <class R>
R take_median(R* x, int n);

// The weighted quantile of each variable, of the first order; nothing is checked.
template <class R>
int32_t weighted_quantiles(const Task<R>& task);

// Whether all orders lie in [0, 1]; a NaN does.
template <class R>
inline bool orders_in_range(const R* orders, int count) {
  for (int k = 0; k < count; ++k)
    if (orders[k] < 0 || orders[k] > 1) return false;
  return true;
}

}  // namespace ork::ss
