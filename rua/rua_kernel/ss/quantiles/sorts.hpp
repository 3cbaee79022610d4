// The sorts of either precision by one name.
#pragma once
#include "ork/ss_math.h"

namespace ork::ss {

template <class R>
struct Sort;
template <>
struct Sort<double> {
  static constexpr auto radix = v8_opxsSortRadixAscend_64f_I;
  static constexpr auto strided = __ruadQSortStep;
  static constexpr auto select = __ruadQSortSelect;
  static constexpr auto pairs = _vdSSQuickMapSort;
};
template <>
struct Sort<float> {
  static constexpr auto radix = v8_opxsSortRadixAscend_32f_I;
  static constexpr auto strided = __ruasQSortStep;
  static constexpr auto select = __ruasQSortSelect;
  static constexpr auto pairs = _vsSSQuickMapSort;
};

// Whether all orders lie in [0, 1]; a NaN does.
template <class R>
inline bool orders_in_range(const R* orders, int count) {
  for (int k = 0; k < count; ++k)
    if (orders[k] < 0 || orders[k] > 1) return false;
  return true;
}

}  // namespace ork::ss
