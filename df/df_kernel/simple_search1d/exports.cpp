// The exported forms of the methods. Cell arrays are read and written by blocks by the search,
// interpolation and integration entries, which call the routines of find.hpp themselves.
#include "simple_search1d/find.hpp"

namespace ork::df {
namespace {

template <class T, Method method>
int simple_search(int64_t nx, const T* x, int64_t nsite, const T* site, int64_t* state, T scale,
                  int64_t bucket_count, const int32_t* buckets, void* cell, int32_t width,
                  typename SearchCallback<T>::type* callback, void* params, int32_t* flags) {
  Search<T> search = {};
  search.nx = static_cast<int32_t>(nx);
  search.x = x;
  search.scale = scale;
  search.callback = callback;
  search.params = params;
  const int n = nsite > 0 ? static_cast<int32_t>(nsite) : 0;
  if constexpr (method == user_search || method == user_uniform_search) {
    int32_t local[user_block];
    if (flags == nullptr) flags = local;
    constexpr bool uniform = method == user_uniform_search;
    return width != 0 ? find_by_user(search, uniform, n, site, static_cast<int64_t*>(cell), flags)
                      : find_by_user(search, uniform, n, site, static_cast<int32_t*>(cell), flags);
  } else {
    if constexpr (method == peak_search)
      search.peak = scale >= 0 && scale < static_cast<T>(nx) ? static_cast<int>(scale) : search.nx;
    if constexpr (method == hybrid_search) {
      search.buckets = static_cast<int32_t>(bucket_count);
      search.bucket = reinterpret_cast<const Bucket*>(buckets);
    }
    int32_t current = 0;
    if constexpr (method == sorted_search)
      if (state != nullptr) current = static_cast<int32_t>(*state);
    const int status =
        find_dispatch<T>[method](search, n, site, current, static_cast<int32_t*>(cell));
    if constexpr (method == sorted_search)
      if (state != nullptr) *state = current;
    return status;
  }
}

}  // namespace
}  // namespace ork::df

#define ORK_SIMPLE_SEARCH(name, letter, T, method)                                                \
  ORK_EXPORT int name(int64_t nx, const T* x, int64_t nsite, const T* site, int64_t* state,       \
                      T scale, const T*, int64_t bucketCount, const int32_t* buckets, void* cell, \
                      int32_t widthFlag, ork_df_search_##letter* searchCallback,                  \
                      void* searchParams, int32_t* flags) {                                       \
    return ork::df::simple_search<T, ork::df::method>(nx, x, nsite, site, state, scale,           \
                                                      bucketCount, buckets, cell, widthFlag,      \
                                                      searchCallback, searchParams, flags);       \
  }
#define ORK_SIMPLE_SEARCHES(name, method)                                   \
  ORK_SIMPLE_SEARCH(ork_df_kernel_dDF##name##Search1D, d, double, method)   \
  ORK_SIMPLE_SEARCH(ork_df_kernel_dDF##name##Search1D32, d, double, method) \
  ORK_SIMPLE_SEARCH(ork_df_kernel_sDF##name##Search1D, s, float, method)    \
  ORK_SIMPLE_SEARCH(ork_df_kernel_sDF##name##Search1D32, s, float, method)

ORK_SIMPLE_SEARCHES(Uniform, uniform_search)
ORK_SIMPLE_SEARCHES(QuasiUniform, quasi_uniform_search)
ORK_SIMPLE_SEARCHES(Sorted, sorted_search)
ORK_SIMPLE_SEARCHES(Peak, peak_search)
ORK_SIMPLE_SEARCHES(Hybrid, hybrid_search)
ORK_SIMPLE_SEARCHES(UserDef, user_search)
ORK_SIMPLE_SEARCHES(UniUserDef, user_uniform_search)
