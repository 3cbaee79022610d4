// Two sets of accumulators over disjoint observations become one.
#pragma once
#include "rua_kernel/ss/moments/kernel.hpp"

namespace ork::ss {

// A thread's accumulators. Orders that are not kept are null.
template <class R>
struct Share {
  Weight<R> weight;
  R* orders[kOrders];
  R* s;        // null: no matrix
  R* scratch;  // distances of a chunk (one pass), or a block of weighted observations
};

// Takes b in. The mean is left alone when it is the caller's.
template <class R>
void merge(int p, Share<R>& a, const Share<R>& b, bool keep_mean) {
  if (b.weight.w == 0) return;
  const R wa = a.weight.w, wb = b.weight.w, v = wa + wb;
  const R *mean = a.orders[kMean], *other = b.orders[kMean];
  if (a.s) {
    const R k = wa != 0 ? wa * wb / v : R(0);
    for (int i = 0; i < p; ++i) {
      const R d = k * (other[i] - mean[i]);
      R* row = a.s + size_t(i) * p;
      const R* from = b.s + size_t(i) * p;
      for (int j = 0; j <= i; ++j) row[j] += from[j] + d * (other[j] - mean[j]);
    }
  }
  for (int j = 0; j < p; ++j) {
    const auto in = [&](const Share<R>& x, Order order) {
      return x.orders[order] ? x.orders[order][j] : R(0);
    };
    const R d = other[j] - mean[j];
    const R m2a = in(a, kCentral2), m2b = in(b, kCentral2);
    const R m3a = in(a, kCentral3), m3b = in(b, kCentral3);
    if (R* m4 = a.orders[kCentral4])
      m4[j] +=
          in(b, kCentral4) + d * d * d * d * wa * wb * (wa * wa - wa * wb + wb * wb) / (v * v * v) +
          6 * d * d * (wa * wa * m2b + wb * wb * m2a) / (v * v) + 4 * d * (wa * m3b - wb * m3a) / v;
    if (R* m3 = a.orders[kCentral3])
      m3[j] += m3b + d * d * d * wa * wb * (wa - wb) / (v * v) + 3 * d * (wa * m2b - wb * m2a) / v;
    if (R* m2 = a.orders[kCentral2]) m2[j] += m2b + d * d * wa * wb / v;
  }
  for (int order = keep_mean ? kRaw2 : kMean; order <= kRaw4; ++order)
    if (R* raw = a.orders[order])
      for (int j = 0; j < p; ++j) raw[j] = (wa * raw[j] + wb * b.orders[order][j]) / v;
  a.weight.w = v;
  a.weight.w2 += b.weight.w2;
}

}  // namespace ork::ss
