// Polynomials over GF(2) as words, coefficient of x^k in bit k % 64 of word k / 64.
#pragma once
#include <emmintrin.h>

#include <initializer_list>

#include "ork/rua_skip_ahead.h"

namespace ork::rua {

// The low 64 by the low 64 coefficients: nibble by nibble of a, from a table of the multiples of b.
// Nibbles at even places and those between them are summed apart, so that all shifts but one are by
// whole bytes.
inline __m128i carry_less_product(__m128i a, __m128i b) {
  alignas(16) __m128i multiple[16];
  b = _mm_move_epi64(b);
  const __m128i b2 = _mm_xor_si128(_mm_slli_epi64(b, 1), _mm_slli_si128(_mm_srli_epi64(b, 63), 8));
  const __m128i b4 = _mm_xor_si128(_mm_slli_epi64(b, 2), _mm_slli_si128(_mm_srli_epi64(b, 62), 8));
  const __m128i b8 = _mm_xor_si128(_mm_slli_epi64(b, 3), _mm_slli_si128(_mm_srli_epi64(b, 61), 8));
  multiple[0] = _mm_setzero_si128();
  multiple[1] = b;
  multiple[2] = b2;
  multiple[3] = _mm_xor_si128(b2, b);
  for (int i = 0; i < 4; ++i) multiple[4 + i] = _mm_xor_si128(multiple[i], b4);
  for (int i = 0; i < 8; ++i) multiple[8 + i] = _mm_xor_si128(multiple[i], b8);
  const auto low = uint32_t(_mm_cvtsi128_si32(a));
  const auto high = uint32_t(_mm_cvtsi128_si32(_mm_srli_si128(a, 4)));
  __m128i even = _mm_setzero_si128(), odd = even;
  const auto byte = [&](uint32_t v) {
    even = _mm_xor_si128(_mm_slli_si128(even, 1), multiple[v & 15]);
    odd = _mm_xor_si128(_mm_slli_si128(odd, 1), multiple[v >> 4 & 15]);
  };
  for (const uint32_t word : {high, low})
    for (int shift = 24; shift >= 0; shift -= 8) byte(word >> shift);
  const __m128i carried = _mm_slli_si128(_mm_srli_epi64(odd, 60), 8);
  return _mm_xor_si128(even, _mm_xor_si128(_mm_slli_epi64(odd, 4), carried));
}

// r <- r + a.
inline void add_words(uint64_t* r, const uint64_t* a, int32_t n) {
  for (int32_t i = 0; i < n; ++i) r[i] ^= a[i];
}

}  // namespace ork::rua
