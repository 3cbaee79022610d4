// Robust location and scale of one series, the tau estimates of Yohai and Zamar as Maronna and
// Zamar (2002) take them: around the median and in units of the median deviation, a weighted mean
// that no value beyond 4.5 units has a share in, then the mean of squared distances from it, none
// counted as more than 3 units.
#pragma once
#include "ork/ss_math.h"
#include "rua_kernel/service/elementwise.hpp"
#include "rua_kernel/ss/quantiles/quantiles.hpp"
#include "rua_kernel/ss/robust/sums.hpp"

namespace ork::ss {

template <class V>
ORK_INLINE V magnitude_of(V x) {
  if constexpr (sizeof(V) == 16)
    return abs(x);
  else
    return x < 0 ? -x : x;
}

template <class R>
struct Tau {
  R location, square;  // the square of the scale, 0 where the median deviation is 0

  R inverse() const { return square > 0 ? R(1) / R(__ruadSqrt(square)) : R(0); }
};

// scratch: n reals.
template <class R>
Tau<R> tau(const R* x, int n, R* scratch) {
  memcpy(scratch, x, size_t(n) * sizeof(R));
  const R median = take_median(scratch, n);
  sweep<R>(0, n, [&]<class V>(int i) {
    const V d = get<V>(x + i) - all<V>(median);
    put(scratch + i, magnitude_of(d));
  });
  const R deviation = take_median(scratch, n);
  const R unit = deviation > 0 ? 1 / deviation : R(0);
  constexpr R farthest = R(4.5), most = 3;
  const R narrow = unit / farthest;
  double weighted[2] = {};  // weights, weighted distances from the median
  add_up<R, 2>(n, weighted, [&]<class V>(int i, V* sums) {
    const V d = get<V>(x + i) - all<V>(median), u = d * all<V>(narrow);
    const V root = rua::at_least(R(0), all<V>(R(1)) - u * u), w = root * root;
    sums[0] += w;
    sums[1] += w * d;
  });
  const R location = median + R(weighted[1] / weighted[0]);
  double square = 0;
  add_up<R, 1>(n, &square, [&]<class V>(int i, V* sums) {
    const V v = (get<V>(x + i) - all<V>(location)) * all<V>(unit);
    sums[0] += rua::at_most(most * most, v * v);
  });
  return {location, deviation * deviation * R(square / n)};
}

}  // namespace ork::ss
