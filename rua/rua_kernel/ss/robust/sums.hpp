// Sums over long series, as accurate in single as they need be: registers take in 1024 terms
// each time, and what they hold is added in double.
#pragma once
#include "base/lanes.hpp"

namespace ork::ss {

// to[k] += the sum over all i < n of what f adds to sums[k]. f<V>(i, sums) takes the places from
// i on that V has.
template <class R, int count, class F>
ORK_INLINE void add_up(int n, double* to, F f) {
  typedef vec_of<R> V;
  constexpr int width = simd<R>::width, block = 1024;
  for (int first = 0; first < n; first += block) {
    const int last = n - first < block ? n : first + block;
    V even[count] = {}, odd[count] = {};
    R rest[count] = {};
    int i = first;
    for (; i + 2 * width <= last; i += 2 * width) {
      f.template operator()<V>(i, even);
      f.template operator()<V>(i + width, odd);
    }
    for (; i < last; ++i) f.template operator()<R>(i, rest);
    for (int k = 0; k < count; ++k) {
      double sum = rest[k];
      for (int l = 0; l < width; ++l) sum += double(even[k][l]) + odd[k][l];
      to[k] += sum;
    }
  }
}

}  // namespace ork::ss
