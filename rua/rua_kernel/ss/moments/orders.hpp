// What the kernels of each method keep, by order index, and how many vectors of variables they
// take at once: accumulators and the values at hand share eight registers, and the sums' latency
// wants several chains.
#pragma once
#include "rua_kernel/ss/service/task.hpp"

namespace ork::ss {

constexpr int kIndices = 4;

// A set of orders, without the first `from` of the list.
template <int from, int count>
constexpr uint32_t mask_of(const Order (&kept)[count]) {
  uint32_t mask = 0;
  for (int i = from; i < count; ++i) mask |= 1u << kept[i];
  return mask;
}

template <int index>
struct OnePassOrders;
template <>
struct OnePassOrders<0> {
  static constexpr Order kept[] = {kMean};
  static constexpr int vectors = 4;
};
template <>
struct OnePassOrders<1> {
  static constexpr Order kept[] = {kMean, kCentral2};
  static constexpr int vectors = 3;
};
template <>
struct OnePassOrders<2> {
  static constexpr Order kept[] = {kMean, kCentral2, kRaw2};
  static constexpr int vectors = 2;
};
template <>
struct OnePassOrders<3> {
  static constexpr Order kept[] = {kMean, kCentral2, kRaw2, kRaw3, kRaw4, kCentral3, kCentral4};
  static constexpr int vectors = 1;
};

template <int index>
struct FastOrders;
template <>
struct FastOrders<0> {
  static constexpr Order kept[] = {kMean};
  static constexpr int vectors = 4;
};
template <>
struct FastOrders<1> {
  static constexpr Order kept[] = {kMean, kRaw2};
  static constexpr int vectors = 3;
};
template <>
struct FastOrders<2> {
  static constexpr Order kept[] = {kMean, kRaw2, kRaw3};
  static constexpr int vectors = 2;
};
template <>
struct FastOrders<3> {
  static constexpr Order kept[] = {kMean, kRaw2, kRaw3, kRaw4};
  static constexpr int vectors = 1;
};

template <int index>
struct TwoPassOrders;
template <>
struct TwoPassOrders<0> {
  static constexpr Order kept[] = {kMean, kCentral2};
  static constexpr int vectors = 3;
};
template <>
struct TwoPassOrders<1> {
  static constexpr Order kept[] = {kMean, kCentral2, kCentral3};
  static constexpr int vectors = 2;
};
template <>
struct TwoPassOrders<2> {
  static constexpr Order kept[] = {kMean, kCentral2, kCentral3, kCentral4};
  static constexpr int vectors = 2;
};
template <>
struct TwoPassOrders<3> {
  static constexpr Order kept[] = {kMean, kCentral2, kCentral3, kCentral4, kRaw2, kRaw3, kRaw4};
  static constexpr int vectors = 1;
};

}  // namespace ork::ss
