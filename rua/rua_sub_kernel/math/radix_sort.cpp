// Radix sorts of reals. A key is the image made monotonic: all bits inverted when the sign is
// set, else the sign alone. One sweep makes the keys and counts all digits, then each digit,
// from the lowest, is one pass that moves elements to their places.
#include <emmintrin.h>
#include <stdint.h>

#include "frame/export.hpp"
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

// 32 bits --------------------------------------------------------------------------------

template <int digit>
inline void pass(const Word* from, Word* to, int n, int32_t* place) {
  for (int i = 0; i < n; ++i) {
    const uint32_t key = from[i];
    const uint32_t image = key ^ (key & kSign ? kSign : ~0u);
    to[++place[digit_of<digit>(key)]] = digit == kDigits - 1 ? image : key;
  }
}

// 64 bits --------------------------------------------------------------------------------

// By a digit of the low word (half 0) or the high one (half 1).
template <int half, int digit>
inline void pass(const double* from, double* to, int n, int32_t* place) {
  const Word* word = reinterpret_cast<const Word*>(from) + half;
  for (int i = 0; i < n; ++i)
    _mm_storel_epi64(reinterpret_cast<__m128i*>(to + ++place[digit_of<digit>(word[2 * i])]),
                     _mm_loadl_epi64(reinterpret_cast<const __m128i*>(from + i)));
}

// The last one, which turns keys back.
inline void last_pass(const double* from, double* to, int n, int32_t* place) {
  const Word* word = reinterpret_cast<const Word*>(from);
  Word* out = reinterpret_cast<Word*>(to);
  for (int i = 0; i < n; ++i) {
    const uint32_t low = word[2 * i], high = word[2 * i + 1];
    const uint32_t positive = uint32_t(int32_t(high) >> 31);
    const int32_t at = ++place[digit_of<kDigits - 1>(high)];
    out[2 * at] = low ^ ~positive;
    out[2 * at + 1] = high ^ (~positive | kSign);
  }
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
    const uint32_t image = a[i];
    const uint32_t key = image ^ (uint32_t(int32_t(image) >> 31) | kSign);
    a[i] = key;
    ++c0[digit_of<0>(key)];
    ++c1[digit_of<1>(key)];
    ++c2[digit_of<2>(key)];
  }
  places(c0, 2048);
  places(c1, 2048);
  places(c2, 1024);
  pass<0>(a, b, n, c0);
  pass<1>(b, a, n, c1);
  pass<2>(a, b, n, c2);
  v8_opxsCopy_32f(scratch, data, n);
  return 0;
}

ORK_EXPORT int32_t v8_opxsSortRadixAscend_64f_I(double* data, double* scratch, int n) {
  if (const int32_t status = check(data, scratch, n)) return status;
  constexpr int areas[] = {2048, 2048, 1024, 2048, 2048, 1024}, total = 10240;
  int32_t counters[total], *c[2 * kDigits];
  v8_opxsZero_32s(counters, total);
  for (int d = 0, at = 0; d < 2 * kDigits; at += areas[d++]) c[d] = counters + at;
  Word* word = reinterpret_cast<Word*>(data);
  for (int i = 0; i < n; ++i) {
    const uint32_t negative = uint32_t(int32_t(word[2 * i + 1]) >> 31);
    const uint32_t low = word[2 * i] ^ negative, high = word[2 * i + 1] ^ (negative | kSign);
    word[2 * i] = low;
    word[2 * i + 1] = high;
    ++counters[digit_of<0>(low)];
    ++counters[2048 + digit_of<1>(low)];
    ++counters[4096 + digit_of<2>(low)];
    ++counters[5120 + digit_of<0>(high)];
    ++counters[7168 + digit_of<1>(high)];
    ++counters[9216 + digit_of<2>(high)];
  }
  for (int d = 0; d < 2 * kDigits; ++d) places(c[d], areas[d]);
  pass<0, 0>(data, scratch, n, c[0]);
  pass<0, 1>(scratch, data, n, c[1]);
  pass<0, 2>(data, scratch, n, c[2]);
  pass<1, 0>(scratch, data, n, c[3]);
  pass<1, 1>(data, scratch, n, c[4]);
  last_pass(scratch, data, n, c[5]);
  return 0;
}

}  // namespace ork
