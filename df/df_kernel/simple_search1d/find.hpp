// Cell search on the calling thread: one routine a method.
//
// The cell of a site s is the number of breakpoints at or below s, 0 to nx; a NaN site gets
// cell 0. The methods differ in speed, and agree on sorted partitions but for two cases: the
// sorted search never goes back, and a site on the very breakpoint that a guess names stays
// in the cell of the guess.
#pragma once
#include "service/task.hpp"

namespace ork::df {

enum Method {
  uniform_search,
  quasi_uniform_search,
  sorted_search,
  peak_search,
  hybrid_search,
  user_search,
  user_uniform_search,
  no_search
};

template <class T>
struct SearchCallback;
template <>
struct SearchCallback<double> {
  using type = ork_df_search_d;
};
template <>
struct SearchCallback<float> {
  using type = ork_df_search_s;
};

// What the methods read; each reads only what it needs.
template <class T>
struct Search {
  int nx;
  const T* x;
  T scale;  // uniform: 1 / step; quasi-uniform: (nx - 1) / span; hybrid: 1 / bucket width
  int peak;
  int buckets;
  const Bucket* bucket;
  typename SearchCallback<T>::type* callback;
  void* params;
};

// Finds the cells of n sites. `state` is the current cell of the sorted search: 0 at first,
// then kept for the next sites. Returns 0 or the status of a callback.
template <class T>
using Find = int (*)(const Search<T>&, int n, const T* site, int32_t& state, int32_t* cell);

template <class T>
int find_uniform(const Search<T>&, int n, const T* site, int32_t&, int32_t* cell);
template <class T>
int find_quasi_uniform(const Search<T>&, int n, const T* site, int32_t&, int32_t* cell);
template <class T>
int find_sorted(const Search<T>&, int n, const T* site, int32_t& state, int32_t* cell);
template <class T>
int find_peak(const Search<T>&, int n, const T* site, int32_t&, int32_t* cell);
template <class T>
int find_hybrid(const Search<T>&, int n, const T* site, int32_t&, int32_t* cell);
template <class T>
int find_user(const Search<T>&, int n, const T* site, int32_t&, int32_t* cell);
template <class T>
int find_user_uniform(const Search<T>&, int n, const T* site, int32_t&, int32_t* cell);

// In the order of Method.
template <class T>
inline constexpr Find<T> find_dispatch[] = {
    find_uniform<T>, find_quasi_uniform<T>, find_sorted<T>,      find_peak<T>,
    find_hybrid<T>,  find_user<T>,          find_user_uniform<T>};

// The user-defined methods with cells of either width; `flags` has room for 128.
constexpr int user_block = 128;
template <class T, class Cell>
int find_by_user(const Search<T>&, bool uniform, int n, const T* site, Cell* cell, int32_t* flags);

// ---- Walks --------------------------------------------------------------------------------

// The first cell from c up whose right breakpoint lies beyond s. A long way is taken in
// doubling strides and halved back; the result is that of single steps.
template <class T>
inline int walk_up(const T* x, int nx, int c, T s) {
  for (int k = 0; k < 8; ++k, ++c)
    if (c >= nx || !(x[c] <= s)) return c;
  int low = c, stride = 8;
  while (nx - low > stride && x[low + stride - 1] <= s) low += stride, stride *= 2;
  int high = nx - low > stride ? low + stride - 1 : nx;
  while (low < high) {
    const int middle = low + (high - low) / 2;
    if (x[middle] <= s)
      low = middle + 1;
    else
      high = middle;
  }
  return low;
}

// The first cell from c down whose left breakpoint is not beyond s.
template <class T>
inline int walk_down(const T* x, int c, T s) {
  for (int k = 0; k < 8; ++k, --c)
    if (c <= 0 || !(x[c - 1] > s)) return c;
  int high = c, stride = 8;
  while (high > stride && x[high - stride] > s) high -= stride, stride *= 2;
  int low = high > stride ? high - stride + 1 : 0;
  while (low < high) {
    const int middle = low + (high - low) / 2;
    if (x[middle] > s)
      high = middle;
    else
      low = middle + 1;
  }
  return low;
}

// From a guess between 0 and nx to the cell.
template <class T>
inline int walk_from_guess(const T* x, int nx, int guess, T s) {
  if (s != s) return 0;
  if (guess >= nx) return walk_down(x, nx, s);
  if (s > x[guess]) return walk_up(x, nx, guess, s);
  return walk_down(x, guess, s);
}

}  // namespace ork::df
