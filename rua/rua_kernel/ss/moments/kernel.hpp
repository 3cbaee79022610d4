// The shape of every moments kernel: accumulators of a block of variables live in registers while
// a chunk of observations goes by; then the next block sees the same chunk, still in the cache.
//
// Each variable sees its observations in order, whatever the layout and the block, so that row
// and column storage give the same bits.
//
// A core says what is kept and how one vector of observations changes it:
//
//   kept[]         orders, in the order of the accumulators
//   read_only      how many of them, from the first, only steer the update
//   vectors        vectors of variables in a block: as many as the registers hold
//   coefficients   vectors that are computed once for each observation
//   sums_from      first raw order that is a plain sum while the kernel runs; kOrders for none
//   skips_zeros    weights of zero at the start of the range are left out
//   fill()         the coefficients of a chunk; adds up the weights
//   step()         one observation; returns x - mean, if the core has it
#pragma once
#include "base/vec.hpp"
#include "rua_kernel/ss/moments/cross.hpp"
#include "rua_kernel/ss/service/data.hpp"

namespace ork::ss {

// Sum of weights and of their squares.
template <class R>
struct Weight {
  R w, w2;
};

// Takes in observations [first, last). orders: the working arrays, of which a kernel uses those
// it keeps; s: sums of cross-products, their lower triangle, with room for kChunk observations
// in scratch (cross_scratch()), or null.
template <class R>
using Kernel = void (*)(const Data<R>& data, int first, int last, Weight<R>& weight,
                        R* const* orders, R* s, R* scratch);

// A hint; what is that far after p need not be there.
ORK_INLINE void prefetch(const void* p, size_t bytes) {
  _mm_prefetch((const char*)((uintptr_t)p + bytes), _MM_HINT_T0);
}

template <class R, class Core, bool rows, bool cross>
struct Block {
  typedef vec_of<R> V;
  static constexpr int width = simd<R>::width;
  static constexpr int kept = sizeof Core::kept / sizeof Core::kept[0];

  const Data<R>& data;
  int first, count;  // observations
  const V* coefficients;
  R* const* orders;
  R* scratch;

  // Variables j to j + lanes - 1 (lanes = vectors * width, or fewer in a single vector). Gathered
  // lanes beyond the last variable repeat it, and are not stored.
  template <int vectors, bool gather>
  __attribute__((noinline)) void run(int j, int lanes) const {
    V a[vectors][kept];
#pragma GCC unroll 8
    for (int v = 0; v < vectors; ++v)
#pragma GCC unroll 8
      for (int k = 0; k < kept; ++k) {
        const R* from = orders[Core::kept[k]] + j + v * width;
        if (vectors > 1 || lanes == width)
          a[v][k] = load(from);
        else
          for (int l = 0; l < width; ++l) a[v][k][l] = from[l < lanes ? l : lanes - 1];
      }

    const int p = data.p, step = rows ? 1 : p;
    const R* lane[vectors * width];
    for (int l = 0; l < vectors * width; ++l) {
      const int variable = j + (l < lanes ? l : lanes - 1);
      lane[l] =
          rows ? data.x + size_t(variable) * data.n + first : data.x + size_t(first) * p + variable;
    }
    const R* x = lane[0];
    const V* c = coefficients;
    R *d = nullptr, *scaled = nullptr;
    if constexpr (cross) {
      d = scratch + j;
      scaled = d + size_t(kChunk) * cross_stride<R>(p);
    }
    const size_t ahead = sizeof(R) * kChunk * size_t(step);
    const int stride = cross ? cross_stride<R>(p) : 0;
    for (int i = 0, at = 0; i < count; ++i, at += step) {
      // What this block needs of the next chunk: otherwise its first block waits for memory, and
      // the others only compute.
      if constexpr (!gather)
        prefetch(x, ahead);
      else if (i % (64 / int(sizeof(R))) == 0)
        for (int l = 0; l < vectors * width; ++l) prefetch(lane[l] + at, ahead);
#pragma GCC unroll 8
      for (int v = 0; v < vectors; ++v) {
        V y;
        if constexpr (gather) {
          if constexpr (width == 2)
            y = V{lane[v * width][at], lane[v * width + 1][at]};
          else
            y = V{lane[v * width][at], lane[v * width + 1][at], lane[v * width + 2][at],
                  lane[v * width + 3][at]};
        } else {
          y = load(x + v * width);
        }
        const V distance = Core::step(y, c, a[v]);
        if constexpr (cross) {
          store(d + v * width, distance);
          store(scaled + v * width, c[Core::cross_factor] * distance);
        }
      }
      if constexpr (!gather) x += p;
      c += Core::coefficients;
      if constexpr (cross) d += stride, scaled += stride;
    }

#pragma GCC unroll 8
    for (int v = 0; v < vectors; ++v)
#pragma GCC unroll 8
      for (int k = Core::read_only; k < kept; ++k) {
        R* to = orders[Core::kept[k]] + j + v * width;
        if (vectors > 1 || lanes == width)
          store(to, a[v][k]);
        else
          for (int l = 0; l < lanes; ++l) to[l] = a[v][k][l];
      }
  }

  template <int vectors = Core::vectors>
  void run_all(int j = 0) const {
    for (; data.p - j >= vectors * width; j += vectors * width)
      run<vectors, rows>(j, vectors * width);
    if constexpr (vectors > 1)
      run_all<vectors - 1>(j);
    else if (j < data.p)
      run<1, true>(j, data.p - j);
  }
};

template <class R>
inline void scale(int n, R* a, R factor) {
  for (int i = 0; i < n; ++i) a[i] *= factor;
}

template <class R, class Core, bool rows, bool weighted, bool cross = false>
void kernel(const Data<R>& data, int first, int last, Weight<R>& weight, R* const* orders, R* s,
            R* scratch) {
  const R* w = data.w;
  if constexpr (weighted && Core::skips_zeros)
    while (first < last && w[first] == 0) ++first;
  if (first >= last) return;

  const auto scale_sums = [&](R factor) {
    for (const Order order : Core::kept)
      if (order >= Core::sums_from && order <= kRaw4) scale(data.p, orders[order], factor);
  };
  if (weight.w > 0) scale_sums(weight.w);
  vec_of<R> coefficients[kChunk * Core::coefficients + 1];
  for (int i = first; i < last; i += kChunk) {
    const int count = last - i < kChunk ? last - i : kChunk;
    Core::template fill<weighted>(weight, weighted ? w + i : nullptr, count, coefficients);
    const Block<R, Core, rows, cross> block{data, i, count, coefficients, orders, scratch};
    block.run_all();
    if constexpr (cross) add_cross_products(data.p, count, scratch, s);
  }
  if (weight.w > 0) scale_sums(1 / weight.w);
}

}  // namespace ork::ss
