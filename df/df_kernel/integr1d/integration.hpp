// One integration request, and how a block of its pairs of limits is served.
#pragma once
#include "integr1d/pieces.hpp"
#include "search1d/search.hpp"

namespace ork::df {

template <class T>
struct IntegrCallback;
template <>
struct IntegrCallback<double> {
  using type = ork_df_integr_d;
};
template <>
struct IntegrCallback<float> {
  using type = ork_df_integr_s;
};

// The caller's functions for the parts of an interval.
template <class T>
struct Parts {
  using Callback = typename IntegrCallback<T>::type;
  Callback* left;
  void* left_params;
  Callback* interior;
  void* interior_params;
  Callback* right;
  void* right_params;

  bool any() const { return left != nullptr || interior != nullptr || right != nullptr; }
};

constexpr int pair_block = 128;  // pairs searched and integrated at a time

// Integrals of all functions between one pair of limits: the parts left of the partition,
// inside and right of it are the callbacks' or the spline's. Writes ny values to `total`;
// `part` is room for as many. 0 or a negative status of a callback.
template <class T>
int integrate_parts(const Fit<T>&, int kind, const Parts<T>&, T left, int left_cell, T right,
                    int right_cell, T* total, T* part);

}  // namespace ork::df
