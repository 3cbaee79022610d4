// Radix sorts of reals. A key is the image made monotonic: all bits inverted when the sign is
// set, else the sign alone. One sweep counts all digits, then each digit, from the lowest, is one
// pass that moves elements to their places. The first pass makes the keys, the last turns them
// back.
#include <emmintrin.h>
#include <stdint.h>

#include "base/export.hpp"
#include "ork/ss_math.h"

namespace ork {
namespace {

typedef uint32_t Word __attribute__((may_alias));
constexpr uint32_t kSign = 0x80000000;

// The three digits of a 32-bit word: bits 0 to 10, 11 to 21, 22 to 31.
constexpr int kDigits = 3;
constexpr int kShift[kDigits] = {0, 11, 22};
constexpr uint32_t kMask[kDigits] = {0x7FF, 0x7FF, 0x3FF};
template <int digit>
inline uint32_t digit_of(uint32_t word) {
  return word >> kShift[digit] & kMask[digit];
}

// Counts become places: that of the first element of each digit value, less one.
inline void places(int32_t* counters, int values) {
  int32_t at = -1;
  for (int v = 0; v < values; ++v) {
    const int32_t count = counters[v];
    counters[v] = at;
    at += count;
  }
}

constexpr int32_t kNullPointer = -8, kBadLength = -6;
int32_t check(const void* data, const void* scratch, int n) {
  if (!data || !scratch) return kNullPointer;
  return n < 1 ? kBadLength : 0;
}

inline uint32_t if_negative(uint32_t high) { return uint32_t(int32_t(high) >> 31); }

// Moves elements to their places, by the digits of their keys. The places lie in as many cache
// lines as there are digits, more than the first-level cache holds: each is asked for a while
// before it is written.
template <class T, class Digit, class Move>
inline void pass(int n, T* to, int32_t* place, Digit digit, Move move) {
  constexpr int ahead = 16;
  int i = 0;
  for (; i < n - ahead; ++i) {
    _mm_prefetch(reinterpret_cast<const char*>(to + (place[digit(i + ahead)] + 1)), _MM_HINT_T0);
    move(i, to + ++place[digit(i)]);
  }
  for (; i < n; ++i) move(i, to + ++place[digit(i)]);
}

// 32 bits --------------------------------------------------------------------------------

inline uint32_t key_of(uint32_t image) { return image ^ (if_negative(image) | kSign); }
inline uint32_t image_of(uint32_t key) { return key ^ (~if_negative(key) | kSign); }

// 64 bits: half 0 is the low word, half 1 the high one --------------------------------------

typedef Word Words[2];
struct Key {
  uint32_t half[2];
};
inline Key key_of(const Words& image) {
  const uint32_t negative = if_negative(image[1]);
  return {{image[0] ^ negative, image[1] ^ (negative | kSign)}};
}
inline Key image_of(const Words& key) {
  const uint32_t positive = if_negative(key[1]);
  return {{key[0] ^ ~positive, key[1] ^ (~positive | kSign)}};
}

template <int half, int digit>
inline void middle_pass(int n, const Words* from, Words* to, int32_t* place) {
  pass(
      n, to, place, [=](int i) { return digit_of<digit>(from[i][half]); },
      [=](int i, Words* at) {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(at),
                         _mm_loadl_epi64(reinterpret_cast<const __m128i*>(from + i)));
      });
}
inline void count(int n, const Words* a, int32_t* counters) {
  for (int i = 0; i < n; ++i) {
    const auto [low, high] = key_of(a[i]).half;
    ++counters[digit_of<0>(low)];
    ++counters[2048 + digit_of<1>(low)];
    ++counters[4096 + digit_of<2>(low)];
    ++counters[5120 + digit_of<0>(high)];
    ++counters[7168 + digit_of<1>(high)];
    ++counters[9216 + digit_of<2>(high)];
  }
}
inline void store(Words* at, Key k) {
  (*at)[0] = k.half[0];
  (*at)[1] = k.half[1];
}

}  // namespace

ORK_EXPORT int32_t v8_opxsSortRadixAscend_32f_I(float* data, float* scratch, int n) {
  if (const int32_t status = check(data, scratch, n)) return status;
  constexpr int area = 2048;
  int32_t counters[kDigits * area];
  v8_opxsZero_32s(counters, kDigits * area);
  int32_t *c0 = counters, *c1 = c0 + area, *c2 = c1 + area;
  Word *a = reinterpret_cast<Word*>(data), *b = reinterpret_cast<Word*>(scratch);
  for (int i = 0; i < n; ++i) {
    const uint32_t key = key_of(a[i]);
    ++c0[digit_of<0>(key)];
    ++c1[digit_of<1>(key)];
    ++c2[digit_of<2>(key)];
  }
  places(c0, 2048);
  places(c1, 2048);
  places(c2, 1024);
  pass(
      n, b, c0, [=](int i) { return digit_of<0>(key_of(a[i])); },
      [=](int i, Word* at) { *at = key_of(a[i]); });
  pass(
      n, a, c1, [=](int i) { return digit_of<1>(b[i]); }, [=](int i, Word* at) { *at = b[i]; });
  pass(
      n, b, c2, [=](int i) { return digit_of<2>(a[i]); },
      [=](int i, Word* at) { *at = image_of(a[i]); });
  v8_opxsCopy_32f(scratch, data, n);
  return 0;
}

ORK_EXPORT int32_t v8_opxsSortRadixAscend_64f_I(double* data, double* scratch, int n) {
  if (const int32_t status = check(data, scratch, n)) return status;
  constexpr int areas[] = {2048, 2048, 1024, 2048, 2048, 1024}, total = 10240;
  int32_t counters[total], *c[2 * kDigits];
  v8_opxsZero_32s(counters, total);
  for (int d = 0, at = 0; d < 2 * kDigits; at += areas[d++]) c[d] = counters + at;
  Words *a = reinterpret_cast<Words*>(data), *b = reinterpret_cast<Words*>(scratch);
  count(n, a, counters);
  for (int d = 0; d < 2 * kDigits; ++d) places(c[d], areas[d]);
  pass(
      n, b, c[0], [=](int i) { return digit_of<0>(key_of(a[i]).half[0]); },
      [=](int i, Words* at) { store(at, key_of(a[i])); });
  middle_pass<0, 1>(n, b, a, c[1]);
  middle_pass<0, 2>(n, a, b, c[2]);
  middle_pass<1, 0>(n, b, a, c[3]);
  middle_pass<1, 1>(n, a, b, c[4]);
  pass(
      n, a, c[5], [=](int i) { return digit_of<2>(b[i][1]); },
      [=](int i, Words* at) { store(at, image_of(b[i])); });
  return 0;
}

}  // namespace ork
