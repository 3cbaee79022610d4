#pragma once
// The frame of Add, Sub, Mul and Sqr: plain IEEE arithmetic, no rare lanes. An element's
// result does not depend on the loop that makes it.
//
// Complex elements stay interleaved here: an Op's eval gets registers with two (c) or one (z).
#include "frame/kernel.hpp"

namespace ork {

// Elements before `p` reaches a 16-byte boundary, or -1 if it never does.
template <class E>
ORK_INLINE int peel_count(const E* p) {
  const unsigned offset = (uintptr_t)p % 16;
  return offset % sizeof(E) != 0 ? -1 : (int)((16 - offset) % 16 / sizeof(E));
}

// What eval takes of one element: a real number, or a register whose lower half is a pair.
template <class R>
ORK_INLINE R read_register(const R* p) {
  return read_one(p);
}
template <class R>
ORK_INLINE void write_register(R* p, R x) {
  write_one(p, x);
}
ORK_INLINE f32x4 read_register(const Complex<float>* p) {
  return as<f32x4>(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)));
}
ORK_INLINE void write_register(Complex<float>* p, f32x4 x) {
  _mm_storel_epi64(reinterpret_cast<__m128i*>(p), as<__m128i>(x));
}

// r[i] = op(a[i], b[i]) from element i up, while a round of `vectors` fits; returns where it
// stopped.
template <class Op, int vectors, bool a_aligned, bool b_aligned, class E>
ORK_INLINE int vector_loop(int i, int n, const E* a, const E* b, E* r) {
  using R = typename Element<E>::real;
  constexpr int width = 16 / sizeof(E);
  for (; i <= n - vectors * width; i += vectors * width) {
#pragma GCC unroll 8
    for (int k = i; k < i + vectors * width; k += width) {
      const auto *pa = reinterpret_cast<const R*>(a + k), *pb = reinterpret_cast<const R*>(b + k);
      const vec_of<R> x = a_aligned ? load_aligned(pa) : load(pa);
      const vec_of<R> y = b_aligned ? load_aligned(pb) : load(pb);
      store(reinterpret_cast<R*>(r + k), Op::eval(x, y));
    }
  }
  return i;
}

// `lead` is the array that the peel aligns. The nests differ in the loads known to be aligned.
// State: the processor state to run under.
template <class Op, class E, class State = Core<E>>
ORK_INLINE void arith(int n, const E* a, const E* b, E* r, const E* lead) {
  constexpr int vectors = sizeof(typename Element<E>::real) == 8 ? 4 : 8;
  constexpr int block = vectors * (16 / (int)sizeof(E));
  if (n <= 0) return;
  const Control<State> control;
  const int peel = peel_count(lead);
  int i = 0;
  const auto scalar_loop = [&](int end) {
    for (; i < end; ++i)
      write_register(r + i, Op::eval(read_register(a + i), read_register(b + i)));
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
