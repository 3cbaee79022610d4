#include "rua_sub_kernel/quasi/points.hpp"

#include <string.h>

#include <algorithm>

#include "rua_sub_kernel/service/words.hpp"

namespace ork::rua {
namespace {

constexpr uint32_t kLast = 0xFFFFFFFF;
constexpr int32_t kPiece = 1024;  // words of a block that is emitted and then converted
constexpr double kStep = 0x1p-32;

// The bit of the code that changes from this point to the next.
inline uint32_t lowest_zero(uint32_t counter) { return uint32_t(__builtin_ctz(~counter)); }

// The code of a point: its bits name the direction numbers whose sum the point is.
inline uint32_t code(uint32_t counter) { return counter ^ counter >> 1; }

// to <- from + the direction numbers of bit l; `to` may be `from`.
void add(const Points& p, uint32_t l, const uint32_t* from, uint32_t* to) {
  const int32_t d = p.at->dimension;
  int32_t j = 0;
  if (p.t) {
    const uint32_t* row = p.t + size_t(l) * p.t_stride;
    for (; j + 4 <= d; j += 4) store4(to + j, _mm_xor_si128(load4(from + j), load4(row + j)));
    for (; j < d; ++j) to[j] = from[j] ^ row[j];
    return;
  }
  const size_t stride = p.v_stride;
  const uint32_t* column = p.v + l;
  const auto word = [&](size_t k) { return _mm_cvtsi32_si128(int32_t(column[k * stride])); };
  for (; j + 4 <= d; j += 4, column += 4 * stride) {
    const __m128i low = _mm_unpacklo_epi32(word(0), word(1));
    const __m128i high = _mm_unpacklo_epi32(word(2), word(3));
    store4(to + j, _mm_xor_si128(load4(from + j), _mm_unpacklo_epi64(low, high)));
  }
  for (; j < d; ++j, column += stride) to[j] = from[j] ^ *column;
}

void step(const Points& p) { add(p, lowest_zero(p.at->counter++), p.x, p.x); }

// n numbers of component k. From a counter of whole fours on, the next four are the current one
// plus 0, v0, v0 + v1, v1.
void emit_component(const Points& p, uint32_t k, int32_t n, uint32_t* r) {
  const uint32_t* v = p.v + size_t(k) * p.v_stride;
  uint32_t x = p.x[k], counter = p.at->counter;
  const auto single = [&] {
    *r++ = x;
    x ^= v[lowest_zero(counter++)];
    --n;
  };
  while (n > 0 && counter % 4 != 0) single();
  const __m128i four = _mm_setr_epi32(0, int32_t(v[0]), int32_t(v[0] ^ v[1]), int32_t(v[1]));
  for (; n >= 4; n -= 4, r += 4) {
    store4(r, _mm_xor_si128(_mm_set1_epi32(int32_t(x)), four));
    x ^= v[1] ^ v[lowest_zero(counter + 3)];
    counter += 4;
  }
  while (n > 0) single();
  p.x[k] = x;
  p.at->counter = counter;
}

// Whole points of at most 4 W components, the current one held in registers. Each is written in
// whole vectors, the next one over what is too much; the last one exactly.
template <int W>
void emit_small(const Points& p, int32_t count, uint32_t* r) {
  const int32_t d = p.at->dimension;
  uint32_t counter = p.at->counter;
  __m128i x[W];
  for (int i = 0; i < W; ++i) x[i] = load4(p.x + 4 * i);
  const auto advance = [&] {
    const uint32_t* row = p.t + size_t(lowest_zero(counter++)) * p.t_stride;
    for (int i = 0; i < W; ++i) x[i] = _mm_xor_si128(x[i], load4(row + 4 * i));
  };
  for (; count > 1; --count, r += d) {
    for (int i = 0; i < W; ++i) store4(r + 4 * i, x[i]);
    advance();
  }
  uint32_t last[4 * W];
  for (int i = 0; i < W; ++i) store4(last + 4 * i, x[i]);
  memcpy(r, last, size_t(d) * 4);
  advance();
  for (int i = 0; i < W; ++i) store4(p.x + 4 * i, x[i]);
  p.at->counter = counter;
}

// Each point is made where it is to stand, from the one before.
void emit_points(const Points& p, int32_t count, uint32_t* r) {
  const int32_t d = p.at->dimension;
  memcpy(r, p.x, size_t(d) * 4);
  while (--count > 0) {
    add(p, lowest_zero(p.at->counter++), r, r + d);
    r += d;
  }
  add(p, lowest_zero(p.at->counter++), r, p.x);
}

void emit(const Points& p, int32_t n, uint32_t* r) {
  Position& at = *p.at;
  const int32_t d = at.dimension;
  if (at.selected != kAllComponents) return emit_component(p, at.selected, n, r);
  if (at.pending > 0) {
    const int32_t part = std::min(n, at.pending);
    memcpy(r, p.x + (d - at.pending), size_t(part) * 4);
    at.pending -= part;
    if (at.pending > 0) return;
    step(p);
    n -= part;
    r += part;
  }
  const int32_t count = n / d, rest = n - count * d;
  if (count > 0) {
    if (d == 1)
      emit_component(p, 0, count, r);
    else if (!p.padded || d > 16)
      emit_points(p, count, r);
    else if (d > 12)
      emit_small<4>(p, count, r);
    else if (d > 8)
      emit_small<3>(p, count, r);
    else if (d > 4)
      emit_small<2>(p, count, r);
    else
      emit_small<1>(p, count, r);
  }
  if (rest > 0) {
    memcpy(r + size_t(count) * d, p.x, size_t(rest) * 4);
    at.pending = d - rest;
  }
}

// As many points as numbers must be left, a stricter test than the dimension would need.
int32_t check(const Points& p, int32_t n) {
  if (!p.x) return RUA_STATUS_BAD_GENERATOR;
  return n > 0 && kLast - p.at->counter < uint32_t(n) ? RUA_STATUS_SEQUENCE_ENDED : RUA_STATUS_OK;
}

template <class Output>
int32_t convert(const Points& p, int32_t n, Output out) {
  const int32_t status = check(p, n);
  if (status < 0) return status;
  alignas(16) uint32_t words[kPiece];
  while (n > 0) {
    const int32_t part = std::min(n, kPiece);
    emit(p, part, words);
    int32_t i = 0;
    for (; i + 8 <= part; i += 8) {
      out.put4(load4(words + i));
      out.put4(load4(words + i + 4));
    }
    for (; i + 4 <= part; i += 4) out.put4(load4(words + i));
    for (; i < part; ++i) out.put(words[i]);
    n -= part;
  }
  return RUA_STATUS_OK;
}

// In float throughout: the word as a signed number, 2^32 more where that is negative.
struct WordsAsRoundedFloats {
  float* r;
  __m128 t, a;

  WordsAsRoundedFloats(float* r_, float a_, float b)
      : r(r_), t(_mm_set1_ps((b - a_) * 0x1p-32f)), a(_mm_set1_ps(a_)) {}
  __m128 operator()(__m128i z) const {
    const __m128i more = _mm_and_si128(_mm_srai_epi32(z, 31), _mm_set1_epi32(0x4F800000));
    const __m128 word = _mm_add_ps(_mm_cvtepi32_ps(z), _mm_castsi128_ps(more));
    return _mm_add_ps(_mm_mul_ps(word, t), a);
  }
  void put(uint32_t z) { _mm_store_ss(r++, (*this)(_mm_cvtsi32_si128(int32_t(z)))); }
  void put4(__m128i z) {
    _mm_storeu_ps(r, (*this)(z));
    r += 4;
  }
};

// One component of the sequence from here on. A point that has emitted it already is passed over.
int32_t select(const Points& p, uint32_t k, int32_t nstreams) {
  Position& at = *p.at;
  const uint32_t d = uint32_t(at.dimension);
  if (nstreams != 0x7FFFFFFF || k >= d) return RUA_STATUS_NO_LEAPFROG;
  if (at.selected == k) return RUA_STATUS_OK;
  const uint32_t* v = p.v + size_t(k) * p.v_stride;
  const bool ended = at.counter == kLast;
  if (at.selected != kAllComponents) {
    if (!ended) ++at.counter;
    p.x[k] = 0;  // the other components stood still: anew from the code
    for (uint32_t bits = code(at.counter); bits != 0; bits &= bits - 1)
      p.x[k] ^= v[__builtin_ctz(bits)];
  } else if (at.pending > 0 && k < d - uint32_t(at.pending) && !ended) {
    p.x[k] ^= v[lowest_zero(at.counter++)];
  }
  at.pending = 0;
  at.selected = k;
  return RUA_STATUS_OK;
}

// n numbers of the whole sequence. The codes of where it stands and of where it goes differ in the
// bits whose direction numbers are to be added.
int32_t skip(const Points& p, uint64_t n) {
  Position& at = *p.at;
  const uint32_t d = uint32_t(at.dimension), pending = uint32_t(at.pending);
  const uint64_t points = n / d;
  if (points >> 32 != 0 || at.counter + points >= kLast) return RUA_STATUS_NO_SKIPAHEAD;
  if (n < pending) {
    at.pending -= int32_t(n);
    return RUA_STATUS_OK;
  }
  const uint64_t beyond = n - pending;
  const uint32_t rest = uint32_t(beyond % d),
                 to = at.counter + uint32_t(beyond / d) + (pending > 0);
  for (uint32_t bits = code(at.counter) ^ code(to); bits != 0; bits &= bits - 1)
    add(p, uint32_t(__builtin_ctz(bits)), p.x, p.x);
  at.counter = to;
  at.pending = rest > 0 ? int32_t(d - rest) : 0;
  return RUA_STATUS_OK;
}

}  // namespace

void start(const Points& p, int32_t dimension) {
  *p.at = {.counter = 1, .dimension = dimension, .selected = kAllComponents, .pending = 0};
  for (int32_t j = 0; j < dimension; ++j) p.x[j] = p.v[size_t(j) * p.v_stride];
}

int32_t integers(const Points& p, int32_t n, void* r) {
  const int32_t status = check(p, n);
  if (status == RUA_STATUS_OK && n > 0) emit(p, n, static_cast<uint32_t*>(r));
  return status;
}

int32_t doubles(const Points& p, int32_t n, double* r, double a, double b) {
  if ((a == 0 || a == -1) && b == 1) return convert(p, n, WordsAsUnitDoubles(r, a));
  return convert(p, n, WordsAsDoubles(r, a, b, kStep));
}

int32_t floats(const Points& p, int32_t n, float* r, float a, float b) {
  return convert(p, n, WordsAsRoundedFloats(r, a, b));
}

int32_t reposition(int32_t method, const Points& p, int32_t n, const uint32_t* params) {
  if (method != kLeapfrog && method != kSkipAhead) return RUA_STATUS_BAD_METHOD;
  if (!p.x) return RUA_STATUS_BAD_GENERATOR;
  if (method == kLeapfrog) return select(p, params[0], n);
  if (n < 1) return RUA_STATUS_NO_SKIPAHEAD;
  return skip(p, join(params[0], n > 1 ? params[1] : 0));
}

}  // namespace ork::rua
