// Loops over arrays, a register at a time, and records as vectors of their fields.
//
// A body is a template over its lane type V: it runs with whole vectors first, then with
// single values for the rest. Both do the same operations, so the bits do not depend on
// where a loop starts.
#pragma once
#include <string.h>

#include "base/vec.hpp"

namespace ork {

template <class T, class Body>
ORK_INLINE void sweep(int first, int last, Body body) {
  using V = vec_of<T>;
  constexpr int width = sizeof(V) / sizeof(T);
  int i = first;
  for (; i <= last - width; i += width) body.template operator()<V>(i);
  for (; i < last; ++i) body.template operator()<T>(i);
}

template <class V, class T>
ORK_INLINE V get(const T* p) {
  V v;
  memcpy(&v, p, sizeof v);
  return v;
}
template <class T, class V>
ORK_INLINE void put(T* p, V v) {
  memcpy(p, &v, sizeof v);
}
// One value in every lane.
template <class V, class T>
ORK_INLINE V all(T x) {
  return x - V{};
}

// Of the pairs a[0] a[1], a[2] a[3] .. b[0] b[1] .. the first members, the second ones.
ORK_INLINE f64x2 evens(f64x2 a, f64x2 b) { return _mm_unpacklo_pd(a, b); }
ORK_INLINE f64x2 odds(f64x2 a, f64x2 b) { return _mm_unpackhi_pd(a, b); }
ORK_INLINE f32x4 evens(f32x4 a, f32x4 b) { return _mm_shuffle_ps(a, b, 0x88); }
ORK_INLINE f32x4 odds(f32x4 a, f32x4 b) { return _mm_shuffle_ps(a, b, 0xDD); }

// Lane k of the arguments becomes record k: p = a[0] b[0] .. a[1] b[1] ..
ORK_INLINE void put_records(double* p, double a, double b) { p[0] = a, p[1] = b; }
ORK_INLINE void put_records(float* p, float a, float b) { p[0] = a, p[1] = b; }
ORK_INLINE void put_records(double* p, f64x2 a, f64x2 b) {
  put(p, _mm_unpacklo_pd(a, b));
  put(p + 2, _mm_unpackhi_pd(a, b));
}
ORK_INLINE void put_records(float* p, f32x4 a, f32x4 b) {
  put(p, _mm_unpacklo_ps(a, b));
  put(p + 4, _mm_unpackhi_ps(a, b));
}

template <class T>
ORK_INLINE void put_records(T* p, T a, T b, T c) {
  p[0] = a, p[1] = b, p[2] = c;
}
ORK_INLINE void put_records(double* p, f64x2 a, f64x2 b, f64x2 c) {
  put(p, _mm_unpacklo_pd(a, b));
  put(p + 2, _mm_shuffle_pd(c, a, 2));
  put(p + 4, _mm_unpackhi_pd(b, c));
}
ORK_INLINE void put_records(float* p, f32x4 a, f32x4 b, f32x4 c) {
  for (int k = 0; k < 4; ++k) put_records(p + 3 * k, a[k], b[k], c[k]);
}

template <class T>
ORK_INLINE void put_records(T* p, T a, T b, T c, T d) {
  p[0] = a, p[1] = b, p[2] = c, p[3] = d;
}
ORK_INLINE void put_records(double* p, f64x2 a, f64x2 b, f64x2 c, f64x2 d) {
  put(p, _mm_unpacklo_pd(a, b));
  put(p + 2, _mm_unpacklo_pd(c, d));
  put(p + 4, _mm_unpackhi_pd(a, b));
  put(p + 6, _mm_unpackhi_pd(c, d));
}
ORK_INLINE void put_records(float* p, f32x4 a, f32x4 b, f32x4 c, f32x4 d) {
  _MM_TRANSPOSE4_PS(a, b, c, d);
  put(p, a), put(p + 4, b), put(p + 8, c), put(p + 12, d);
}

}  // namespace ork
