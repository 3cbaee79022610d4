// A cubic piece from the values and slopes at its ends.
#pragma once
#include "base/lanes.hpp"

namespace ork::df {

// c0 .. c3 of the cells whose left values are y, with slopes d and d1 at their two ends,
// divided differences t and reciprocal lengths r.
template <class T, class V>
ORK_INLINE void put_cubic(T* coeffs, V y, V d, V d1, V t, V r) {
  const V a = (t - d) * r;   // second divided differences with the double left point
  const V b = (d1 - t) * r;  // and with the double right point
  const V c3 = (b - a) * r;
  put_records(coeffs, y, d, a - (b - a), c3);
}

}  // namespace ork::df
