// One interpolation request, and how a block of its sites is served.
#pragma once
#include "interp1d/evaluate.hpp"
#include "search1d/search.hpp"

namespace ork::df {

template <class T>
struct InterpCallback;
template <>
struct InterpCallback<double> {
  using type = ork_df_interp_d;
};
template <>
struct InterpCallback<float> {
  using type = ork_df_interp_s;
};

enum Side { left_side, interior, right_side };  // in the order in which a block serves them

template <class T>
struct Interpolation {
  Fit<T> fit;
  int kind;
  Request request;
  Search<T> search;
  int method;
  int nsite;
  const T* site;
  int64_t total_sites;  // generated sites: how many, from the two of `site`; else 0
  void* cell;           // the caller's cells
  bool wide_cells, store_cells, take_cells;
  T* result;
  ptrdiff_t by_function, by_site, by_order;  // strides of `result`
  typename InterpCallback<T>::type* callback[3];
  void* params[3];

  bool has_callbacks() const {
    return callback[left_side] != nullptr || callback[interior] != nullptr ||
           callback[right_side] != nullptr;
  }
  Output<T> output(int f, int first) const {
    return {result + f * by_function + first * by_site, by_site, by_order, nullptr};
  }
  int given_cell(int j) const {
    return wide_cells ? static_cast<int32_t>(static_cast<const int64_t*>(cell)[j])
                      : static_cast<const int32_t*>(cell)[j];
  }
  void put_cell(int j, int c) const {
    if (wide_cells)
      static_cast<int64_t*>(cell)[j] = c;
    else
      static_cast<int32_t*>(cell)[j] = c;
  }
};

// Arrays of a block without callbacks.
template <class T>
struct BlockWork {
  Located<T> located;
  int32_t cell[block];
  T site[block];  // generated ones
};

// Sites first .. first + n - 1, at most a block of them. `values` has room for n * ny * count
// values when there are callbacks. `state` is that of the sorted search. 0 or a code.
template <class T>
int interpolate_block(const Interpolation<T>&, int first, int n, int32_t& state, BlockWork<T>&,
                      T* values);

// The same, sites split into those left of the partition, inside, and right of it.
template <class T>
int interpolate_groups(const Interpolation<T>&, int first, int n, const T* site, int32_t& state,
                       Located<T>&, T* values);

// One group: its callback, or its spline, for all functions; function f's outputs go to
// out.base + f * by_function. `values` as above, read only with a callback.
template <class T>
int interpolate_group(const Fit<T>&, int kind, const Request&, int n, const T* site,
                      const int32_t* cell, typename InterpCallback<T>::type* callback, void* params,
                      Located<T>&, T* values, const Output<T>& out, ptrdiff_t by_function);

}  // namespace ork::df
