// What a call asks for: checks, in the order of their statuses, and the outputs taking part.
#pragma once
#include "rua_kernel/ss/moments/orders.hpp"

namespace ork::ss {

// Outputs by number, in the order in which the missing ones are reported; a set of them is a
// mask. Orders stand first, under their own numbers, and the sums in the same order.
constexpr int kCov = kOrders, kCor = 8, kKurtosis = 9, kSkewness = 10, kVariation = 11, kSums = 12,
              kCrossProduct = kSums + kOrders, kOutputs = 20;
constexpr uint32_t bit(int output) { return 1u << output; }

template <class R>
inline R* output_of(const Task<R>& t, int output) {
  if (output < kOrders) return t.moments[output];
  if (output >= kSums && output < kCrossProduct) return t.sums[output - kSums];
  switch (output) {
    case kCov:
      return t.cov;
    case kCor:
      return t.cor;
    case kKurtosis:
      return t.kurtosis;
    case kSkewness:
      return t.skewness;
    case kVariation:
      return t.variation;
    default:
      return t.crossProduct;
  }
}

enum class Method { kFast, kOnePass, kTwoPass, kFromSums };

struct Request {
  int32_t status;
  Method method;
  uint32_t outputs;  // asked for, and what they are derived from

  bool asks(int output) const { return outputs & bit(output); }
  // A moment or its sum.
  bool asks_order(int order) const { return asks(order) || asks(kSums + order); }
  bool asks_matrix() const { return outputs & (bit(kCov) | bit(kCor) | bit(kCrossProduct)); }
  int order_index() const;
};

template <class R>
Request request(const Task<R>& task, uint64_t estimates, uint64_t method);

}  // namespace ork::ss
