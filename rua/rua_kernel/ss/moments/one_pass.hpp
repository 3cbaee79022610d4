// One pass: averages and centred sums are moved by each observation as it comes.
//
// With W the weight so far, w that of the observation, d = x - mean, r = w / (W + w) and
// q = W / (W + w):
//
//   M4 += a4 d^4 + 6 r^2 M2 d^2 - 4 r M3 d     a4 = a2 (q^2 - q r + r^2)
//   M3 += a3 d^3 - 3 r M2 d                    a3 = a2 (q - r)
//   M2 += a2 d^2                               a2 = W r
//   raw = q raw + r x^k, the mean likewise
//
// from the highest order down, so that each sees the others as they were. Weights take part in
// the coefficients alone: both kinds of kernels share their loops.
#pragma once
#include "rua_kernel/ss/moments/orders.hpp"
#include "rua_kernel/ss/moments/tables.hpp"

namespace ork::ss {

template <class R, int index>
struct OnePass : OnePassOrders<index> {
  typedef vec_of<R> V;
  static constexpr int read_only = 0;
  static constexpr Order sums_from = kOrders;
  static constexpr bool skips_zeros = true;
  enum Coefficient { q, r, a2, a3, a4, r2, r3, all };
  static constexpr int coefficients = index == 3 ? all : a3;
  static constexpr int cross_factor = a2;

  ORK_INLINE V step(V x, const V* c, V* a) {
    V& mean = a[0];
    const V d = x - mean;
    if constexpr (index == 3) {
      V &m2 = a[1], &m3 = a[5], &m4 = a[6];
      const V squared = d * d, cubed = squared * d;
      const V f = c[r3] * m2 * d;
      m4 += d * (c[a4] * cubed + c[r2] * (f - (m3 + m3)));
      m3 += c[a3] * cubed - f;
      m2 += c[a2] * squared;
    } else if constexpr (index >= 1) {
      a[1] += c[a2] * (d * d);
    }
    V y = c[r] * x;
    mean = c[q] * mean + y;
    constexpr int raws = index == 3 ? 3 : index == 2 ? 1 : 0;
#pragma GCC unroll 3
    for (int k = 0; k < raws; ++k) {
      y *= x;
      a[2 + k] = c[q] * a[2 + k] + y;
    }
    return d;
  }

  template <bool weighted>
  static void fill(Weight<R>& sum, const R* w, int count, V* c) {
    constexpr int width = simd<R>::width;
    for (int i = 0; i < count; i += width) {
      const int lanes = count - i < width ? count - i : width;
      V before, weight;
      if constexpr (weighted) {
        weight = V{};  // beyond the last one: nothing
        if (lanes == width)
          weight = load(w + i);
        else
          for (int l = 0; l < lanes; ++l) weight[l] = w[i + l];
        R reached[width];
#pragma GCC unroll 4
        for (int l = 0; l < width; ++l) {
          reached[l] = sum.w;
          sum.w += weight[l];
          sum.w2 += weight[l] * weight[l];
        }
        if constexpr (width == 2)
          before = V{reached[0], reached[1]};
        else
          before = V{reached[0], reached[1], reached[2], reached[3]};
      } else {
        weight = splat(R(1));
        for (int l = 0; l < width; ++l) before[l] = sum.w + R(l);
        sum.w += R(lanes);
        sum.w2 += R(lanes);
      }
      const V inv = R(1) / (before + weight);
      V row[all];
      row[r] = weight * inv;
      row[q] = before * inv;
      row[a2] = before * row[r];
      if constexpr (index == 3) {
        row[a3] = row[a2] * (row[q] - row[r]);
        row[a4] = row[a2] * (row[q] * row[q] - (row[q] - row[r]) * row[r]);
        row[r2] = row[r] + row[r];
        row[r3] = row[r2] + row[r];
      }
#pragma GCC unroll 4
      for (int l = 0; l < width; ++l)
#pragma GCC unroll 8
        for (int k = 0; k < coefficients; ++k)
          if (l == 0 || l < lanes) c[(i + l) * coefficients + k] = splat(row[k][l]);
    }
  }
};

#define ORK_ROW(rows, weighted, cross)                   \
  {                                                      \
    kernel<R, OnePass<R, 0>, rows, weighted, cross>,     \
        kernel<R, OnePass<R, 1>, rows, weighted, cross>, \
        kernel<R, OnePass<R, 2>, rows, weighted, cross>, \
        kernel<R, OnePass<R, 3>, rows, weighted, cross>  \
  }
template <class R>
const Kernel<R> Kernels<R>::one_pass[2][2][2][kIndices] = {
    {{ORK_ROW(false, false, false), ORK_ROW(false, false, true)},
     {ORK_ROW(false, true, false), ORK_ROW(false, true, true)}},
    {{ORK_ROW(true, false, false), ORK_ROW(true, false, true)},
     {ORK_ROW(true, true, false), ORK_ROW(true, true, true)}}};
#undef ORK_ROW

}  // namespace ork::ss
