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
  // Shares of the whole, as products of weights and distances leave the range of single.
  const R wa = a.weight.w, wb = b.weight.w, v = wa + wb;
  const R ra = wa / v, rb = wb / v, k = wa * rb;
  const R *mean = a.orders[kMean], *other = b.orders[kMean];
  if (a.s) {
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
    const R between = k * d * d;
    if (R* m4 = a.orders[kCentral4])
      m4[j] += in(b, kCentral4) + between * d * d * (ra * ra - ra * rb + rb * rb) +
               6 * d * d * (ra * ra * m2b + rb * rb * m2a) + 4 * d * (ra * m3b - rb * m3a);
    if (R* m3 = a.orders[kCentral3])
      m3[j] += m3b + between * d * (ra - rb) + 3 * d * (ra * m2b - rb * m2a);
    if (R* m2 = a.orders[kCentral2]) m2[j] += m2b + between;
  }
  for (int order = keep_mean ? kRaw2 : kMean; order <= kRaw4; ++order)
    if (R* raw = a.orders[order])
      for (int j = 0; j < p; ++j) raw[j] += rb * (b.orders[order][j] - raw[j]);
  a.weight.w = v;
  a.weight.w2 += b.weight.w2;
}

}  // namespace ork::ss
