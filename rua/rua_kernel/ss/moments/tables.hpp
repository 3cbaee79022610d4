// The 64 kernels of a precision, by layout, weights and order index.
#pragma once
#include "rua_kernel/ss/moments/kernel.hpp"
#include "rua_kernel/ss/moments/orders.hpp"

namespace ork::ss {

template <class R>
struct Kernels {
  // [columns, rows][not weighted, weighted]; one pass also [without, with cross-products].
  static const Kernel<R> one_pass[2][2][2][kIndices];
  static const Kernel<R> fast[2][2][kIndices];
  static const Kernel<R> two_pass[2][2][kIndices];
};

}  // namespace ork::ss
