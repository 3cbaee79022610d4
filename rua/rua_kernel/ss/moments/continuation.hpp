// Centred sums that a continued one-pass call needs beyond those it was asked for: M3 rests on M2,
// and M4 on both. Where the caller has no array for one, it comes back from the averages of the raw
// orders, less what their differences cancel.
#pragma once
#include "rua_kernel/ss/moments/request.hpp"

namespace ork::ss {

template <class R>
inline bool has_array(const Task<R>& t, int order) {
  return t.sums[order] || t.moments[order];
}

// The orders that are to be brought back; raw orders up to the same power have to be there.
template <class R>
uint32_t lost_orders(const Task<R>& t, const Request& q) {
  uint32_t lost = 0;
  const int last = q.asks_order(kCentral4) ? kCentral3 : q.asks_order(kCentral3) ? kCentral2 : 0;
  for (int order = kCentral2; q.method == Method::kOnePass && order <= last; ++order)
    if (!has_array(t, order)) lost |= bit(order);
  return lost;
}

template <class R>
int32_t check_continuation(const Task<R>& t, uint32_t lost) {
  for (int order = kCentral2; order <= kCentral3; ++order)
    if (lost & bit(order))
      for (int raw = kRaw2; raw <= order - kCentral2 + kRaw2; ++raw)
        if (!has_array(t, raw)) return ORK_SS_NULL_CENTRAL_SUM2 - (order - kCentral2);
  return ORK_SS_OK;
}

// From the working arrays of the lower orders; w: the weight so far.
template <class R>
void bring_back(int order, int p, R w, R* const* orders) {
  for (int j = 0; j < p; ++j) {
    const long double m = orders[kMean][j];
    if (order == kCentral2) {
      const long double spread = orders[kRaw2][j] - m * m;
      orders[order][j] = spread > 0 ? R(w * spread) : R(0);
    } else {
      orders[order][j] = R(w * (orders[kRaw3][j] - m * m * m) - 3 * m * orders[kCentral2][j]);
    }
  }
}

}  // namespace ork::ss
