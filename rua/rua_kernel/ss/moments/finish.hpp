// Working forms become estimates.
#pragma once
#include "rua_kernel/ss/moments/kernel.hpp"
#include "rua_kernel/ss/moments/matrix.hpp"
#include "rua_kernel/ss/moments/request.hpp"

namespace ork::ss {

// What centred sums and cross-products are divided by for an estimate without bias: W - W2 / W,
// 0 when one observation has all the weight.
template <class R>
inline R unbiased_divisor(const Weight<R>& sum) {
  return sum.w * sum.w == sum.w2 ? R(0) : sum.w - sum.w2 / sum.w;
}

// What a centred sum of that order is divided by.
template <class R>
inline R central_divisor(Order order, const Weight<R>& sum) {
  return order == kCentral2 ? unbiased_divisor(sum) : sum.w;
}

// value / divisor; 0 for 0/0, so that blocks can go on from one observation.
template <class R>
inline R ratio(R value, R divisor) {
  return value == 0 && divisor == 0 ? R(0) : value / divisor;
}

// In this order, so that a matrix that is s itself comes last.
template <class R>
void finish_matrices(const Task<R>& t, const Request& q, const Weight<R>& sum, const R* s) {
  const int p = t.p();
  const R f = sum.w > 0 ? unbiased_divisor(sum) : R(1);
  const bool own_mean = q.method == Method::kFast || q.method == Method::kOnePass;
  const auto put = [&](Form form, R* a, Integers storage) {
    from_working(t, s, form, f, own_mean, Symmetric<R>{a, p, code_of(t, storage)});
  };
  if (q.asks(kCor)) put(Form::kCorrelation, t.cor, t.corStorage);
  if (q.asks(kCov)) put(Form::kCovariance, t.cov, t.covStorage);
  if (q.asks(kCrossProduct)) put(Form::kCrossProduct, t.crossProduct, t.crossProductStorage);
}

// Ratios of the central moments of variable j, step by step: powers of the second one leave the
// range long before the ratio does.
template <class R>
void finish_ratios(const Task<R>& t, const Request& q, int j) {
  const auto central = [&](Order order) { return t.moments[order][j]; };
  if (q.asks(kKurtosis))
    t.kurtosis[j] = central(kCentral4) / central(kCentral2) / central(kCentral2) - 3;
  if (q.asks(kSkewness))
    t.skewness[j] = central(kCentral3) / central(kCentral2) / R(__builtin_sqrt(central(kCentral2)));
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
        put(t.moments[order], j, ratio(value[order], central_divisor(Order(order), sum)));
        put(t.sums[order], j, value[order]);
      }

    if (q.method == Method::kFast) {
      const R m = value[kMean], r2 = value[kRaw2], r3 = value[kRaw3], r4 = value[kRaw4];
      const R central[] = {r2 - m * m, (2 * m * m - 3 * r2) * m + r3,
                           ((6 * r2 - 3 * m * m) * m - 4 * r3) * m + r4};
      for (int order = kCentral2; order <= kCentral4; ++order) {
        const R moment = central[order - kCentral2], f = central_divisor(Order(order), sum);
        // Of one observation the second one is 0, whatever rounding has left.
        if (q.asks(order)) t.moments[order][j] = f == 0 ? R(0) : moment * (sum.w / f);
        if (q.asks(kSums + order)) t.sums[order][j] = moment * sum.w;
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
        t.moments[order][j] = ratio(t.sums[order][j], central_divisor(Order(order), sum));
    finish_ratios(t, q, j);
  }
}

}  // namespace ork::ss
