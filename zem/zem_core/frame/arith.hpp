#pragma once
// The frame of Add, Sub, Mul and Sqr: plain IEEE arithmetic, no rare lanes. An element's
// result does not depend on the loop that makes it.
#include "frame/kernel.hpp"

namespace ork {

// Elements before `p` reaches a 16-byte boundary, or -1 if it never does.
template <class T>
ORK_INLINE int peel_count(const T* p) {
  const unsigned offset = (uintptr_t)p % 16;
  return offset % sizeof(T) != 0 ? -1 : (int)((16 - offset) % 16 / sizeof(T));
}

// r[i] = op(a[i], b[i]) from element i up, while a round of `vectors` fits; returns where it
// stopped.
template <class Op, int vectors, bool a_aligned, bool b_aligned, class T>
ORK_INLINE int vector_loop(int i, int n, const T* a, const T* b, T* r) {
  constexpr int width = simd<T>::width;
  for (; i <= n - vectors * width; i += vectors * width) {
#pragma GCC unroll 8
    for (int k = i; k < i + vectors * width; k += width) {
      const vec_of<T> x = a_aligned ? load_aligned(a + k) : load(a + k);
      const vec_of<T> y = b_aligned ? load_aligned(b + k) : load(b + k);
      store(r + k, Op::eval(x, y));
    }
  }
  return i;
}

// `lead` is the array that the peel aligns. The nests differ in the loads known to be aligned.
template <class Op, class T>
ORK_INLINE void arith(int n, const T* a, const T* b, T* r, const T* lead) {
  constexpr int vectors = sizeof(T) == 8 ? 4 : 8;
  constexpr int block = vectors * simd<T>::width;
  if (n <= 0) return;
  const Control<Core<T>> control;
  const int peel = peel_count(lead);
  int i = 0;
  const auto scalar_loop = [&](int end) {
    for (; i < end; ++i) write_one(r + i, Op::eval(read_one(a + i), read_one(b + i)));
  };
  if (peel >= 0 && n >= peel + block) {
    scalar_loop(peel);
    if (lead == a)
      i = vector_loop<Op, vectors, true, false>(i, n, a, b, r);
    else if (lead == b || (uintptr_t)(b + i) % 16 == 0)
      i = vector_loop<Op, vectors, false, true>(i, n, a, b, r);
    else
      i = vector_loop<Op, vectors, false, false>(i, n, a, b, r);
  }
  scalar_loop(n);
}

}  // namespace ork
