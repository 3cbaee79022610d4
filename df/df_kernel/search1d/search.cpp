// The search entry: chooses a method, makes generated sites, divides the sites over threads.
#include "search1d/search.hpp"

namespace ork::df {

template <class T>
int choose_search(const Task* task, int64_t site_hint, const T* data_hint,
                  typename SearchCallback<T>::type* callback, void* params, Search<T>& search) {
  const T* x = partition<T>(task);
  const int nx = breakpoints(task);
  search = {};
  search.nx = nx;
  search.x = x;
  search.callback = callback;
  search.params = params;
  const auto per_cell = [&](T right) { return static_cast<T>(nx - 1) / (right - x[0]); };
  const bool uniform = task->xhint == ORK_DF_X_UNIFORM;
  if (uniform) {
    search.scale = per_cell(x[1]);
    return callback != nullptr ? user_uniform_search : uniform_search;
  }
  if (callback != nullptr) return user_search;
  if (task->xhint == ORK_DF_X_QUASI_UNIFORM) {
    search.scale = per_cell(x[nx - 1]);
    return quasi_uniform_search;
  }
  if (site_hint == ORK_DF_SITES_SORTED) return sorted_search;
  if (marks_peak(data_hint, nx)) {
    search.peak = static_cast<int>(data_hint[4]);
    return peak_search;
  }
  if (data_hint != nullptr && !(data_hint[1] == 0)) return ORK_DF_BAD_DATA_HINT;
  search.buckets = static_cast<int>(task->bucketCount);
  search.bucket = task->buckets;
  search.scale = sizeof(T) == sizeof(double) ? static_cast<T>(task->inverseBucketWidth.d)
                                             : static_cast<T>(task->inverseBucketWidth.s);
  return hybrid_search;
}
template int choose_search(const Task*, int64_t, const double*, ork_df_search_d*, void*,
                           Search<double>&);
template int choose_search(const Task*, int64_t, const float*, ork_df_search_s*, void*,
                           Search<float>&);

namespace {

constexpr int least_for_driver = 32;  // below it threads are not asked for
constexpr int unit = 128;             // sites of a hybrid search are divided by such blocks

// Whether a search of n sites on nx breakpoints is worth T threads.
bool use_threads(int method, int n, int nx, int T) {
  if (T < 2) return false;
  switch (method) {
    case uniform_search:
      return n > 1000;
    case quasi_uniform_search:
      return n >= 301 || (n >= 151 && (nx >= 600 || (nx >= 40 && T >= 4)));
    case sorted_search:
      return n >= 3001;
    case peak_search:
      return n > 1200 || nx > 1200;
    case hybrid_search:
      return nx > 8 && (n > 1200 || (n > 600 && T < 5) || (n > 300 && T < 3));
    default:
      return false;
  }
}

template <class T>
int find_all(const Search<T>& search, int method, int n, const T* site, int32_t* cell,
             const ork_threader* threader) {
  const Find<T> find = find_dispatch<T>[method];
  const int limit = n < least_for_driver ? 1 : thread_limit(threader);
  int done = 0;
  if (use_threads(method, n, search.nx, limit)) {
    const int grain = method == hybrid_search ? unit : 1, units = n / grain;
    const int threads = units < limit ? units : limit;
    const int length = units / threads * grain;
    launch_items(threader, threads, threads, [&](int slice, int) {
      const ptrdiff_t first = static_cast<ptrdiff_t>(slice) * length;
      int32_t own_state = 0;
      find(search, length, site + first, own_state, cell + first);
    });
    done = threads * length;
  }
  int32_t state = 0;
  return done < n ? find(search, n - done, site + done, state, cell + done) : ORK_DF_OK;
}

template <class T>
int find_to(const Search<T>& search, int method, int n, const T* site, void* cell, bool wide,
            const ork_threader* threader) {
  if (method != user_search && method != user_uniform_search)
    return find_all(search, method, n, site, static_cast<int32_t*>(cell), threader);
  int32_t flags[user_block];
  const bool uniform = method == user_uniform_search;
  return wide ? find_by_user(search, uniform, n, site, static_cast<int64_t*>(cell), flags)
              : find_by_user(search, uniform, n, site, static_cast<int32_t*>(cell), flags);
}

template <class T>
int search_sites(const Task* task, int64_t nsite, const T* site, int64_t site_hint,
                 const T* data_hint, void* cell, typename SearchCallback<T>::type* callback,
                 void* params, const ork_threader* threader) {
  if (task == nullptr) return ORK_DF_NULL_TASK;
  Search<T> search;
  const int method = choose_search(task, site_hint, data_hint, callback, params, search);
  if (method < 0) return method;
  const int n = nsite > 0 ? static_cast<int32_t>(nsite) : 0;
  const bool wide = task->widthFlag != 0;
  if (site_hint != uniform_sites) return find_to(search, method, n, site, cell, wide, threader);

  constexpr int on_stack = 4096;
  T local[on_stack];
  if (n <= on_stack) {
    generate_sites(site, n, 0, n, local);
    return find_to(search, method, n, local, cell, wide, threader);
  }
  Scratch<T> all(n);
  if (!all) return ORK_DF_NO_MEMORY;
  generate_sites(site, n, 0, n, all.get());
  return find_to(search, method, n, all.get(), cell, wide, threader);
}

}  // namespace
}  // namespace ork::df

#define ORK_SEARCH(letter, T)                                                                    \
  ORK_EXPORT int ork_df_kernel_##letter##DFSearch1D(                                             \
      const ork_df_task* task, int64_t, int64_t nsite, const T* site, int64_t siteHint,          \
      const T* dataHint, void* cell, ork_df_search_##letter* searchCallback, void* searchParams, \
      const ork_threader* threader) {                                                            \
    return ork::df::search_sites(task, nsite, site, siteHint, dataHint, cell, searchCallback,    \
                                 searchParams, threader);                                        \
  }
ORK_TWINS(ORK_SEARCH)
