// Plain sums of powers: of x (fast), or of x - mean around a mean that the caller supplies
// (two-pass).
#pragma once
#include "rua_kernel/ss/moments/orders.hpp"
#include "rua_kernel/ss/moments/tables.hpp"

namespace ork::ss {

// What both share: the weight itself is the only coefficient.
template <class R, bool is_weighted>
struct Sums {
  typedef vec_of<R> V;
  static constexpr int coefficients = is_weighted ? 1 : 0;
  static constexpr int cross_factor = 0;
  static constexpr bool skips_zeros = false;

  template <bool weighted>
  static void fill(Weight<R>& sum, const R* w, int count, V* c) {
    static_assert(weighted == is_weighted);
    if constexpr (weighted) {
      for (int i = 0; i < count; ++i) {
        c[i] = splat(w[i]);
        sum.w += w[i];
        sum.w2 += w[i] * w[i];
      }
    } else {
      sum.w += R(count);
      sum.w2 += R(count);
    }
  }
  ORK_INLINE V weigh(V x, const V* c) {
    if constexpr (is_weighted) return c[0] * x;
    return x;
  }
};

template <class R, int index, bool weighted>
struct Fast : Sums<R, weighted>, FastOrders<index> {
  typedef vec_of<R> V;
  static constexpr int read_only = 0;
  static constexpr Order sums_from = kMean;

  ORK_INLINE V step(V x, const V* c, V* a) {
    V y = Sums<R, weighted>::weigh(x, c);
    a[0] += y;
#pragma GCC unroll 3
    for (int k = 1; k <= index; ++k) {
      y *= x;
      a[k] += y;
    }
    return x;
  }
};

template <class R, int index, bool weighted>
struct TwoPass : Sums<R, weighted>, TwoPassOrders<index> {
  typedef vec_of<R> V;
  static constexpr int read_only = 1;
  static constexpr Order sums_from = kRaw2;

  ORK_INLINE V step(V x, const V* c, V* a) {
    const V d = x - a[0];
    V y = Sums<R, weighted>::weigh(d, c);
    constexpr int centrals = index == 3 ? 3 : index + 1;
#pragma GCC unroll 3
    for (int k = 1; k <= centrals; ++k) {
      y *= d;
      a[k] += y;
    }
    if constexpr (index == 3) {
      y = Sums<R, weighted>::weigh(x, c);
#pragma GCC unroll 3
      for (int k = 4; k < 7; ++k) {
        y *= x;
        a[k] += y;
      }
    }
    return d;
  }
};

#define ORK_ROW(Core, rows, weighted)                    \
  {                                                      \
    kernel<R, Core<R, 0, weighted>, rows, weighted>,     \
        kernel<R, Core<R, 1, weighted>, rows, weighted>, \
        kernel<R, Core<R, 2, weighted>, rows, weighted>, \
        kernel<R, Core<R, 3, weighted>, rows, weighted>  \
  }
template <class R>
const Kernel<R> Kernels<R>::fast[2][2][kIndices] = {
    {ORK_ROW(Fast, false, false), ORK_ROW(Fast, false, true)},
    {ORK_ROW(Fast, true, false), ORK_ROW(Fast, true, true)}};
template <class R>
const Kernel<R> Kernels<R>::two_pass[2][2][kIndices] = {
    {ORK_ROW(TwoPass, false, false), ORK_ROW(TwoPass, false, true)},
    {ORK_ROW(TwoPass, true, false), ORK_ROW(TwoPass, true, true)}};
#undef ORK_ROW

}  // namespace ork::ss
