// Working forms become estimates.
#pragma once
#include "rua_kernel/ss/moments/kernel.hpp"
#include "rua_kernel/ss/moments/matrix.hpp"
#include "rua_kernel/ss/moments/request.hpp"

namespace ork::ss {

// What a centred sum of that order is divided by.
template <class R>
inline R central_divisor(Order order, const Weight<R>& sum) {
  return order == kCentral2 ? (sum.w * sum.w - sum.w2) / sum.w : sum.w;
}

// In this order, so that a matrix that is s itself comes last.
template <class R>
void finish_matrices(const Task<R>& t, const Request& q, const Weight<R>& sum, const R* s) {
  const int p = t.p();
  const R f = sum.w > 0 ? sum.w - sum.w2 / sum.w : R(1);
  if (q.asks(kCor))
    from_working(t, s, Form::kCorrelation, f, Symmetric<R>{t.cor, p, code_of(t, t.corStorage)});
  if (q.asks(kCov))
    from_working(t, s, Form::kCovariance, f, Symmetric<R>{t.cov, p, code_of(t, t.covStorage)});
  if (q.asks(kCrossProduct))
    from_working(t, s, Form::kCrossProduct, f,
                 Symmetric<R>{t.crossProduct, p, code_of(t, t.crossProductStorage)});
}

// Ratios of the central moments of variable j.
template <class R>
void finish_ratios(const Task<R>& t, const Request& q, int j) {
  const auto central = [&](Order order) { return t.moments[order][j]; };
  if (q.asks(kKurtosis))
    t.kurtosis[j] = central(kCentral4) / (central(kCentral2) * central(kCentral2)) - 3;
  if (q.asks(kSkewness)) {
    const R c2 = central(kCentral2);
    t.skewness[j] = central(kCentral3) / R(__builtin_sqrt(c2 * c2 * c2));
  }
  if (q.asks(kVariation))
    t.variation[j] = R(__builtin_sqrt(central(kCentral2))) / t.moments[kMean][j];
}

// Every array that the caller has for an order that was kept gets its estimate, asked for or
// not: the next block of observations may start from any of them.
template <class R>
void finish_moments(const Task<R>& t, const Request& q, const Weight<R>& sum, R* const* orders) {
  const int p = t.p();
  const auto put = [](R* array, int j, R value) {
    if (array) array[j] = value;
  };
  for (int j = 0; j < p; ++j) {
    if (!t.selected(j)) continue;
    R value[kOrders] = {};
    for (int order = 0; order < kOrders; ++order)
      if (orders[order]) value[order] = orders[order][j];

    const bool given_mean = q.method == Method::kTwoPass;
    if (!given_mean && orders[kMean]) put(t.moments[kMean], j, value[kMean]);
    if (given_mean ? q.asks(kSums) : orders[kMean] != nullptr)
      put(t.sums[kMean], j, value[kMean] * sum.w);
    for (int order = kRaw2; order <= kRaw4; ++order)
      if (orders[order]) {
        put(t.moments[order], j, value[order]);
        put(t.sums[order], j, value[order] * sum.w);
      }
    for (int order = kCentral2; order <= kCentral4; ++order)
      if (orders[order]) {
        put(t.moments[order], j, value[order] / central_divisor(Order(order), sum));
        put(t.sums[order], j, value[order]);
      }

    if (q.method == Method::kFast) {
      const R m = value[kMean], r2 = value[kRaw2], r3 = value[kRaw3], r4 = value[kRaw4];
      const R central[] = {r2 - m * m, (2 * m * m - 3 * r2) * m + r3,
                           ((6 * r2 - 3 * m * m) * m - 4 * r3) * m + r4};
      for (int order = kCentral2; order <= kCentral4; ++order) {
        const R total = central[order - kCentral2] * sum.w;
        if (q.asks(order)) t.moments[order][j] = total / central_divisor(Order(order), sum);
        if (q.asks(kSums + order)) t.sums[order][j] = total;
      }
    }
    finish_ratios(t, q, j);
  }
}

// From the sums that the caller holds.
template <class R>
void finish_from_sums(const Task<R>& t, const Request& q, const Weight<R>& sum) {
  for (int j = 0, p = t.p(); j < p; ++j) {
    if (!t.selected(j)) continue;
    for (int order = kMean; order <= kRaw4; ++order)
      if (t.moments[order] && t.sums[order]) t.moments[order][j] = t.sums[order][j] / sum.w;
    for (int order = kCentral2; order <= kCentral4; ++order)
      if (q.asks(order) && t.sums[order])
        t.moments[order][j] = t.sums[order][j] / central_divisor(Order(order), sum);
    finish_ratios(t, q, j);
  }
}

}  // namespace ork::ss
