#pragma once
// Scatter; widths and order as in pack.hpp.
#include "packing/pack.hpp"

namespace ork {

template <class T, unsigned parts>
ORK_INLINE void unpack_i(int32_t n_low, int32_t n_high, const T* a, T* y, int32_t stride,
                         int width) {
  const Mover<T, parts> move{y, a};
  each(n_low, n_high, width, [=](auto i) { move((uint32_t)i * (uint32_t)stride, (uint32_t)i); });
}

template <class T, unsigned parts>
ORK_INLINE void unpack_m(int32_t n_low, int32_t n_high, const T* a, T* y, const void* mask,
                         int width) {
  const Mover<T, parts> move{y, a};
  uint32_t j = 0;
  each(n_low, n_high, width, [=, &j](auto i) {
    if (entry(mask, i) != 0) move((uint32_t)i, j++);
  });
}

template <class T, unsigned parts>
ORK_INLINE void unpack_v(int32_t n_low, int32_t n_high, const T* a, T* y, const void* index,
                         int width) {
  const Mover<T, parts> move{y, a};
  each(n_low, n_high, width, [=](auto i) { move((uint32_t)entry(index, i), (uint32_t)i); });
}

}  // namespace ork
