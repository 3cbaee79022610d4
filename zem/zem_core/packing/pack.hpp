#pragma once
// Gather, and what scatter shares with it. No arithmetic: elements move as their bytes, in
// ascending order, so that the later of two writes to one place wins.
//
// With width 1 the count is the signed low word, and strides and the entries of masks and indices
// are 32 bits wide. With any other width they are 64 bits wide, the count and the stride as word
// pairs: a mask entry counts if either word does; of strides and indices only the low word tells,
// since addresses have 32 bits.
#include <string.h>

#include "base/export.hpp"
#include "base/vec.hpp"
#include "ork/zem_kernels.h"

namespace ork {

// Arrays of elements of `parts` numbers: 1, or 2 for the complex types.
template <class T, unsigned parts>
struct Mover {
  T* to;
  const T* from;

  __attribute__((always_inline)) void operator()(uint32_t i, uint32_t k) const {
    memcpy(to + (int32_t)(parts * i), from + (int32_t)(parts * k), parts * sizeof(T));
  }
};

// step(i) for i = 0 .. n - 1; the type of i, int32_t or int64_t, is that of entries.
template <class Step>
ORK_INLINE void each(int32_t n_low, int32_t n_high, int width, Step step) {
  if (width == 1) {
    for (int32_t i = 0; i < n_low; ++i) step(i);
  } else {
    const int64_t n = (int64_t)((uint64_t)(uint32_t)n_high << 32 | (uint32_t)n_low);
    for (int64_t i = 0; i < n; ++i) step(i);
  }
}

// Entry i of a mask or index array.
template <class N>
ORK_INLINE N entry(const void* array, N i) {
  N x;
  memcpy(&x, (const N*)array + (uint32_t)i, sizeof x);
  return x;
}

template <class T, unsigned parts>
ORK_INLINE void pack_i(int32_t n_low, int32_t n_high, const T* a, int32_t stride, T* y, int width) {
  const Mover<T, parts> move{y, a};
  each(n_low, n_high, width, [=](auto i) { move((uint32_t)i, (uint32_t)i * (uint32_t)stride); });
}

template <class T, unsigned parts>
ORK_INLINE void pack_m(int32_t n_low, int32_t n_high, const T* a, const void* mask, T* y,
                       int width) {
  const Mover<T, parts> move{y, a};
  uint32_t j = 0;
  each(n_low, n_high, width, [=, &j](auto i) {
    if (entry(mask, i) != 0) move(j++, (uint32_t)i);
  });
}

template <class T, unsigned parts>
ORK_INLINE void pack_v(int32_t n_low, int32_t n_high, const T* a, const void* index, T* y,
                       int width) {
  const Mover<T, parts> move{y, a};
  each(n_low, n_high, width, [=](auto i) { move((uint32_t)i, (uint32_t)entry(index, i)); });
}

}  // namespace ork
