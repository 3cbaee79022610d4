// Four values of either width, and the few operations that search and evaluation need.
#pragma once
#include <pmmintrin.h>
#include <stdint.h>
#include <string.h>

namespace ork::df {

template <class T>
struct Quad;

template <>
struct Quad<double> {
  __m128d a, b;
  static Quad load(const double* p) { return {_mm_loadu_pd(p), _mm_loadu_pd(p + 2)}; }
  static Quad all(double v) { return {_mm_set1_pd(v), _mm_set1_pd(v)}; }
  static Quad of(__m128i i) {
    return {_mm_cvtepi32_pd(i), _mm_cvtepi32_pd(_mm_shuffle_epi32(i, 0xEE))};
  }
  static Quad gather(const double* p, const int32_t* i) {
    return {_mm_loadh_pd(_mm_load_sd(p + i[0]), p + i[1]),
            _mm_loadh_pd(_mm_load_sd(p + i[2]), p + i[3])};
  }
  void store(double* p) const { _mm_storeu_pd(p, a), _mm_storeu_pd(p + 2, b); }
  Quad operator+(Quad y) const { return {_mm_add_pd(a, y.a), _mm_add_pd(b, y.b)}; }
  Quad operator-(Quad y) const { return {_mm_sub_pd(a, y.a), _mm_sub_pd(b, y.b)}; }
  Quad operator*(Quad y) const { return {_mm_mul_pd(a, y.a), _mm_mul_pd(b, y.b)}; }
  // The larger or smaller one; the right operand where the left one is NaN.
  Quad at_least(Quad y) const { return {_mm_max_pd(a, y.a), _mm_max_pd(b, y.b)}; }
  Quad at_most(Quad y) const { return {_mm_min_pd(a, y.a), _mm_min_pd(b, y.b)}; }
  __m128i operator>=(Quad y) const {
    return _mm_castps_si128(_mm_shuffle_ps(_mm_castpd_ps(_mm_cmpge_pd(a, y.a)),
                                           _mm_castpd_ps(_mm_cmpge_pd(b, y.b)), 0x88));
  }
  // Whether all eight are below the limit; false with a NaN.
  static bool all_below(Quad x, Quad y, double limit) {
    const __m128d l = _mm_set1_pd(limit);
    return _mm_movemask_pd(_mm_and_pd(_mm_and_pd(_mm_cmplt_pd(x.a, l), _mm_cmplt_pd(x.b, l)),
                                      _mm_and_pd(_mm_cmplt_pd(y.a, l), _mm_cmplt_pd(y.b, l)))) == 3;
  }
  // Towards zero; INT32_MIN for NaN and what does not fit.
  __m128i truncate() const { return _mm_unpacklo_epi64(_mm_cvttpd_epi32(a), _mm_cvttpd_epi32(b)); }
};

template <>
struct Quad<float> {
  __m128 v;
  static Quad load(const float* p) { return {_mm_loadu_ps(p)}; }
  static Quad all(float x) { return {_mm_set1_ps(x)}; }
  static Quad of(__m128i i) { return {_mm_cvtepi32_ps(i)}; }
  static Quad gather(const float* p, const int32_t* i) {
    return {_mm_setr_ps(p[i[0]], p[i[1]], p[i[2]], p[i[3]])};
  }
  void store(float* p) const { _mm_storeu_ps(p, v); }
  Quad operator+(Quad y) const { return {_mm_add_ps(v, y.v)}; }
  Quad operator-(Quad y) const { return {_mm_sub_ps(v, y.v)}; }
  Quad operator*(Quad y) const { return {_mm_mul_ps(v, y.v)}; }
  Quad at_least(Quad y) const { return {_mm_max_ps(v, y.v)}; }
  Quad at_most(Quad y) const { return {_mm_min_ps(v, y.v)}; }
  __m128i operator>=(Quad y) const { return _mm_castps_si128(_mm_cmpge_ps(v, y.v)); }
  static bool all_below(Quad x, Quad y, float limit) {
    const __m128 l = _mm_set1_ps(limit);
    return _mm_movemask_ps(_mm_and_ps(_mm_cmplt_ps(x.v, l), _mm_cmplt_ps(y.v, l))) == 15;
  }
  __m128i truncate() const { return _mm_cvttps_epi32(v); }
};

inline __m128i select(__m128i mask, __m128i yes, __m128i no) {
  return _mm_or_si128(_mm_and_si128(mask, yes), _mm_andnot_si128(mask, no));
}

inline __m128i load4(const int32_t* p) {
  return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
}
inline void store4(int32_t* p, __m128i v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }

// Runs body(in, out) on groups of four; a tail goes through a copy filled up with its last
// value, so that nothing beyond either array is touched.
template <class In, class Out, class Body>
inline __attribute__((always_inline)) void by_fours(int n, const In* in, Out* out, Body body) {
  int j = 0;
  for (; j + 4 <= n; j += 4) body(in + j, out + j);
  if (j == n) return;
  In from[4];
  Out to[4];
  for (int k = 0; k < 4; ++k) from[k] = in[j + k < n ? j + k : n - 1], to[k] = Out();
  body(from, to);
  for (int k = 0; j + k < n; ++k) out[j + k] = to[k];
}

}  // namespace ork::df
