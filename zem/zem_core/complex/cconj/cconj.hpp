#pragma once
#include "base/export.hpp"
#include "base/vec.hpp"
#include "ork/zem_kernels.h"

namespace ork {

// Conj, c and z: flips the sign bit of the imaginary part, in integers, so that nothing happens to
// a NaN but that. No frame: no control word is read or written.
template <class R>
ORK_INLINE void conjugate(int n, const R* a, R* r) {
  constexpr int group = sizeof(R) == 4 ? 4 : 2;  // elements in two vectors
  const __m128i flip = sizeof(R) == 4 ? _mm_set1_epi64x((int64_t)0x8000000000000000)
                                      : _mm_set_epi64x((int64_t)0x8000000000000000, 0);
  const auto* from = reinterpret_cast<const __m128i*>(a);
  auto* to = reinterpret_cast<__m128i*>(r);
  int i = 0;
  for (; i <= n - group; i += group, from += 2, to += 2) {
    const __m128i x = _mm_loadu_si128(from), y = _mm_loadu_si128(from + 1);
    _mm_storeu_si128(to, x ^ flip);
    _mm_storeu_si128(to + 1, y ^ flip);
  }
  for (; i < n; ++i) {
    if constexpr (sizeof(R) == 4) {
      _mm_storel_epi64(to, _mm_loadl_epi64(from) ^ flip);
      from = reinterpret_cast<const __m128i*>(reinterpret_cast<const char*>(from) + 8);
      to = reinterpret_cast<__m128i*>(reinterpret_cast<char*>(to) + 8);
    } else {
      _mm_storeu_si128(to++, _mm_loadu_si128(from++) ^ flip);
    }
  }
}

}  // namespace ork
