// Sums of cross-products in one pass: while a chunk of observations goes by, its distances from
// the running mean are laid down, and the same distances times the factor of their observation;
// then the lower triangle takes the products in, tile by tile.
#pragma once
#include <stddef.h>

#include "base/vec.hpp"

namespace ork::ss {

constexpr int kChunk = 128;  // observations

// Distances of an observation, rounded up to whole tiles.
template <class R>
constexpr int cross_stride(int p) {
  constexpr int tile = 2 * simd<R>::width;
  return (p + tile - 1) / tile * tile;
}
template <class R>
constexpr uint64_t cross_scratch(int p) {
  return uint64_t(2 * kChunk) * cross_stride<R>(p);
}

// s[k][j] += scaled_j distance_k, j <= k, for each observation in order. Sums of a wider type take
// in the sum of the chunk, as one.
template <class R, class Sum>
__attribute__((noinline)) void add_cross_products(int p, int count, const R* distance, Sum* s) {
  constexpr bool apart = sizeof(Sum) > sizeof(R);
  typedef vec_of<R> V;
  constexpr int width = simd<R>::width, columns = 2 * width;
  const int stride = cross_stride<R>(p);
  const R* scaled = distance + size_t(kChunk) * stride;
  for (int k = 0; k < p; k += 2)
    for (int j = 0; j <= k + 1 && j < p; j += columns) {
      R tile[2][columns];
      const auto each = [&](auto f) {
        for (int row = 0; row < 2; ++row)
          for (int l = 0; l < columns; ++l)
            if (k + row < p && j + l <= k + row) f(tile[row][l], s[size_t(k + row) * p + j + l]);
      };
      for (auto& row : tile)
        for (R& value : row) value = 0;
      if constexpr (!apart) each([](R& t, R& value) { t = value; });
      V a = load(tile[0]), b = load(tile[0] + width);
      V c = load(tile[1]), d = load(tile[1] + width);
      const R *u = scaled + j, *v = distance + k;
      for (int i = 0; i < count; ++i, u += stride, v += stride) {
        const V x = load(u), y = load(u + width);
        const V v0 = splat(v[0]), v1 = splat(v[1]);
        a += x * v0;
        b += y * v0;
        c += x * v1;
        d += y * v1;
      }
      store(tile[0], a), store(tile[0] + width, b);
      store(tile[1], c), store(tile[1] + width, d);
      each([](R t, Sum& value) { value = apart ? value + t : t; });
    }
}

}  // namespace ork::ss
