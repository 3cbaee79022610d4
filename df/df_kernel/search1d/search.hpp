// Choice of the search method, and what its routine needs.
#pragma once
#include "simple_search1d/find.hpp"

namespace ork::df {

constexpr int64_t uniform_sites = ORK_DF_SITES_UNIFORM;

// The method for a task's partition and what is known of the sites, or ORK_DF_BAD_DATA_HINT.
// Fills `search` for that method.
template <class T>
int choose_search(const Task* task, int64_t site_hint, const T* data_hint,
                  typename SearchCallback<T>::type* callback, void* params, Search<T>& search);

// Element 1 of a data hint says "peak", and the peak is on the partition.
template <class T>
inline bool marks_peak(const T* data_hint, int nx) {
  return data_hint != nullptr && data_hint[1] == 1 && data_hint[4] >= 0 &&
         data_hint[4] <= static_cast<T>(nx);
}

// Sites first .. first + n - 1 of `total` equally spaced ones from ends[0] to ends[1]. A
// single site is ends[0].
template <class T>
inline void generate_sites(const T* ends, int64_t total, int first, int n, T* site) {
  const T step = total > 1 ? (ends[1] - ends[0]) / static_cast<T>(total - 1) : T(0);
  for (int i = 0; i < n; ++i) site[i] = static_cast<T>(first + i) * step + ends[0];
}

}  // namespace ork::df
