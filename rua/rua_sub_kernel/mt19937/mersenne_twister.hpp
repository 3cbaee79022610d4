// The Mersenne Twister recurrence and its seeding by an array, for any size (M. Matsumoto,
// T. Nishimura, "Mersenne Twister", 1998). The words stand in a block that is rewritten as a
// whole, untempered; `index` is the next one to emit.
#pragma once
#include <algorithm>

#include "rua_sub_kernel/service/words.hpp"

namespace ork::rua {

// The key is n words; without one it is the word 1.
template <uint32_t N>
void seed_by_array(uint32_t (&mt)[N], int32_t n, const uint32_t* params) {
  const uint32_t one = 1;
  const uint32_t* key = n > 0 ? params : &one;
  const uint32_t length = n > 0 ? uint32_t(n) : 1;
  const auto previous = [&mt](uint32_t i) { return mt[i - 1] ^ mt[i - 1] >> 30; };

  mt[0] = 19650218;
  for (uint32_t i = 1; i < N; ++i) mt[i] = 1812433253 * previous(i) + i;
  uint32_t i = 1, j = 0;
  const auto next = [&mt, &i] {
    if (++i == N) {
      mt[0] = mt[N - 1];
      i = 1;
    }
  };
  for (uint32_t k = std::max(N, length); k != 0; --k) {
    mt[i] = (mt[i] ^ previous(i) * 1664525) + key[j] + j;
    if (++j == length) j = 0;
    next();
  }
  for (uint32_t k = N - 1; k != 0; --k) {
    mt[i] = (mt[i] ^ previous(i) * 1566083941) - i;
    next();
  }
  mt[0] = 0x80000000;
}

// mt[k] <- mt[k + M] ^ (upper bits of mt[k], lower bits of mt[k + 1]) A, round the block: up to
// where k + M wraps, from there on, and the last word, whose neighbour is mt[0]. Four words at a
// time; what they read ahead is not rewritten yet, what they read back was.
template <uint32_t N, uint32_t M, uint32_t kLower>
void rewrite_block(uint32_t (&mt)[N], uint32_t matrix_a) {
  const __m128i lower = _mm_set1_epi32(int32_t{kLower}), twist = _mm_set1_epi32(int32_t(matrix_a));
  const auto stretch = [&](uint32_t k, uint32_t end, uint32_t ahead) {
    for (; k + 4 <= end; k += 4) {
      const __m128i own = load4(mt + k), next = load4(mt + k + 1);
      const __m128i y = _mm_or_si128(_mm_andnot_si128(lower, own), _mm_and_si128(lower, next));
      const __m128i odd = _mm_srai_epi32(_mm_slli_epi32(next, 31), 31);
      const __m128i fed = _mm_xor_si128(load4(mt + (k + ahead)), _mm_srli_epi32(y, 1));
      store4(mt + k, _mm_xor_si128(fed, _mm_and_si128(odd, twist)));
    }
    for (; k < end; ++k) {
      const uint32_t next = mt[k + 1 < N ? k + 1 : 0], y = (mt[k] & ~kLower) | (next & kLower);
      mt[k] = mt[k + ahead] ^ y >> 1 ^ (next & 1 ? matrix_a : 0);
    }
  };
  stretch(0, N - M, M);
  stretch(N - M, N - 1, M - N);  // k + M - N, modulo 2^32
  stretch(N - 1, N, M - N);
}

// Emits n words, tempered. `Temper` has an operator for a word and one for a vector.
template <uint32_t M, uint32_t kLower, uint32_t N, class Temper, class Output>
void emit(uint32_t (&mt)[N], int32_t& index, uint32_t matrix_a, Temper temper, int32_t n,
          Output out) {
  uint32_t k = uint32_t(index);
  while (n > 0) {
    if (k >= N) {
      rewrite_block<N, M, kLower>(mt, matrix_a);
      k = 0;
    }
    const uint32_t end = k + std::min(uint32_t(n), N - k);
    n -= end - k;
    for (; k + 4 <= end; k += 4) out.put4(temper(load4(mt + k)));
    for (; k < end; ++k) out.put(temper(mt[k]));
  }
  index = int32_t(k);
}

// y ^ y >> U, ^ y << 7 & B, ^ y << 15 & C, ^ y >> 18.
template <int U>
struct Tempering {
  uint32_t b, c;

  uint32_t operator()(uint32_t y) const {
    y ^= y >> U;
    y ^= y << 7 & b;
    y ^= y << 15 & c;
    return y ^ y >> 18;
  }
  __m128i operator()(__m128i y) const {
    const __m128i b4 = _mm_set1_epi32(int32_t(b)), c4 = _mm_set1_epi32(int32_t(c));
    y = _mm_xor_si128(y, _mm_srli_epi32(y, U));
    y = _mm_xor_si128(y, _mm_and_si128(_mm_slli_epi32(y, 7), b4));
    y = _mm_xor_si128(y, _mm_and_si128(_mm_slli_epi32(y, 15), c4));
    return _mm_xor_si128(y, _mm_srli_epi32(y, 18));
  }
};

}  // namespace ork::rua
