// Integers below real numbers.
#pragma once
#include "ork/rua.h"
#include "rua_kernel/service/elementwise.hpp"

namespace ork::rua {

// Outputs that are made from one buffer of uniform numbers.
constexpr int32_t kBlock = 1024;

// Truncated, and one less where that went up. Out of range, INT32_MIN or INT32_MAX.
ORK_INLINE __m128i floors(__m128d x) {
  const __m128i t = _mm_cvttpd_epi32(x);
  const __m128d above = _mm_cmplt_pd(x, _mm_cvtepi32_pd(t));
  return _mm_add_epi32(t, _mm_shuffle_epi32(_mm_castpd_si128(above), 0x08));
}
ORK_INLINE __m128i floors(__m128 x) {
  const __m128i t = _mm_cvttps_epi32(x);
  return _mm_add_epi32(t, _mm_castps_si128(_mm_cmplt_ps(x, _mm_cvtepi32_ps(t))));
}

ORK_INLINE __m128i four_floors(const double* x) {
  return _mm_unpacklo_epi64(floors(_mm_loadu_pd(x)), floors(_mm_loadu_pd(x + 2)));
}
ORK_INLINE __m128i four_floors(const float* x) { return floors(_mm_loadu_ps(x)); }

// r <- floor(x) for n values; x is kBlock long and readable up to the next multiple of four.
template <class R>
ORK_INLINE void floors(int32_t n, const R* x, int32_t* r) {
  int32_t i = 0;
  for (; n - i >= 4; i += 4)
    _mm_storeu_si128(reinterpret_cast<__m128i*>(r + i), four_floors(x + i));
  if (i == n) return;
  alignas(16) int32_t rest[4];
  _mm_store_si128(reinterpret_cast<__m128i*>(rest), four_floors(x + i));
  for (int32_t k = 0; i < n; ++i, ++k) r[i] = rest[k];
}

// r[0..n-1] by blocks: make(m, x) fills m numbers, whose floors are the outputs.
template <class R, class Make>
ORK_INLINE int32_t floors_by_blocks(int32_t n, int32_t* r, Make make) {
  alignas(64) R x[kBlock];
  for (int32_t done = 0; done < n;) {
    const int32_t m = n - done < kBlock ? n - done : kBlock;
    for (int32_t i = m & ~3; i < ((m + 3) & ~3); ++i) x[i] = 0;
    const int32_t status = make(m, x);
    if (status < 0) return status;
    floors(m, x, r + done);
    done += m;
  }
  return RUA_STATUS_OK;
}

}  // namespace ork::rua
