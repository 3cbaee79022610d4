#include "rua_sub_kernel/quasi/points.hpp"

#include <string.h>

#include <algorithm>

#include "rua_sub_kernel/service/words.hpp"

namespace ork::rua {
namespace {

constexpr uint32_t kLast = 0xFFFFFFFF;
constexpr double kStep = 0x1p-32;

using Word [[gnu::may_alias]] = uint32_t;  // within memory of reals, too

// The bit of the code that changes from this point to the next.
inline uint32_t lowest_zero(uint32_t counter) { return uint32_t(__builtin_ctz(~counter)); }

// The code of a point: its bits name the direction numbers whose sum the point is.
inline uint32_t code(uint32_t counter) { return counter ^ counter >> 1; }

// Direction numbers of four components from j on, for bit l of the code: from a turned table, or
// from the rows of the components, where reading a word too many stays within the tables.
struct Turned {
  const uint32_t* t;
  size_t stride;

  explicit Turned(const Points& p) : t(p.t), stride(p.t_stride) {}
  __m128i operator()(uint32_t l, int32_t j) const { return load4(t + l * stride + j); }
};
template <size_t stride>
struct Rows {
  const uint32_t* v;

  explicit Rows(const Points& p) : v(p.v) {}
  __m128i operator()(uint32_t l, int32_t j) const {
    const uint32_t* q = v + size_t(j) * stride + l;
    const auto word = [&](size_t k) {
      return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(q + k * stride));
    };
    return _mm_unpacklo_epi64(_mm_unpacklo_epi32(word(0), word(1)),
                              _mm_unpacklo_epi32(word(2), word(3)));
  }
};

template <class F>
void with_table(const Points& p, F f) {
  if (p.t)
    f(Turned(p));
  else if (p.v_stride == kBits)
    f(Rows<kBits>(p));
  else
    f(Rows<kBits + 1>(p));
}

// x <- x + the direction numbers of bit l.
void add(const Points& p, uint32_t l) {
  with_table(p, [&](auto numbers) {
    const int32_t d = p.at->dimension;
    int32_t j = 0;
    for (; j + 4 <= d; j += 4) store4(p.x + j, _mm_xor_si128(load4(p.x + j), numbers(l, j)));
    for (; j < d; ++j) p.x[j] ^= p.v[size_t(j) * p.v_stride + l];
  });
}

void step(const Points& p) { add(p, lowest_zero(p.at->counter++)); }

// n numbers of component k. From a counter of whole fours on, the next four are the current one
// plus 0, v0, v0 + v1, v1.
void emit_component(const Points& p, uint32_t k, int32_t n, Word* r) {
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
void emit_small(const Points& p, int32_t count, Word* r) {
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

// At most four points of any size, four components at a time through all of them, which reads a
// component's line of direction numbers once. Read point by point, the lines of 318 components and
// the output together pass what the first cache holds. Of four steps in a row two are those of bit
// 0: the first and the third if the counter is even, else the second and the fourth. With 1
// hidden, the first point is stepped over, and r is where it would begin.
template <bool even, class Numbers>
void emit_four(const Points& p, const Numbers& numbers, int32_t hidden, int32_t count, Word* r) {
  const int32_t d = p.at->dimension;
  uint32_t bits[4];
  for (int32_t k = 0; k < count; ++k) bits[k] = lowest_zero(p.at->counter + uint32_t(k));
  int32_t j = 0;
  for (; j + 4 <= d; j += 4) {
    const __m128i zero = numbers(0, j);
    __m128i x = load4(p.x + j);
    Word* to = r + j;
#pragma GCC unroll 4
    for (int32_t k = 0; k < 4; ++k, to += d) {
      if (k == count) break;
      if (k > 0 || hidden == 0) store4(to, x);
      x = _mm_xor_si128(x, even == (k % 2 == 0) ? zero : numbers(bits[k], j));
    }
    store4(p.x + j, x);
  }
  for (; j < d; ++j)
    for (int32_t k = 0; k < count; ++k) {
      if (k >= hidden) r[k * d + j] = p.x[j];
      p.x[j] ^= p.v[size_t(j) * p.v_stride + bits[k]];
    }
  p.at->counter += uint32_t(count);
}

void emit_small(const Points& p, int32_t count, Word* r) {
  if (count == 0) return;
  const int32_t d = p.at->dimension;
  if (d > 12)
    emit_small<4>(p, count, r);
  else if (d > 8)
    emit_small<3>(p, count, r);
  else if (d > 4)
    emit_small<2>(p, count, r);
  else
    emit_small<1>(p, count, r);
}

// Steps over `hidden` points, 0 or 1, and emits the others of `count`.
void emit_points(const Points& p, int32_t hidden, int32_t count, Word* r) {
  const int32_t d = p.at->dimension;
  r -= hidden * d;
  with_table(p, [&](auto numbers) {
    for (; count > 0; count -= 4, r += 4 * d, hidden = 0) {
      const int32_t part = std::min(count, 4);
      if (p.at->counter % 2 == 0)
        emit_four<true>(p, numbers, hidden, part, r);
      else
        emit_four<false>(p, numbers, hidden, part, r);
    }
  });
}

void emit(const Points& p, int32_t n, Word* r) {
  Position& at = *p.at;
  const int32_t d = at.dimension;
  if (at.selected != kAllComponents) return emit_component(p, at.selected, n, r);
  int32_t over = 0;  // points emitted in full, but not stepped over yet
  if (at.pending > 0) {
    const int32_t part = std::min(n, at.pending);
    memcpy(r, p.x + (d - at.pending), size_t(part) * 4);
    at.pending -= part;
    if (at.pending > 0) return;
    over = 1;
    n -= part;
    r += part;
  }
  const int32_t count = n / d, rest = n - count * d;
  if (d == 1)
    emit_component(p, 0, count, r);
  else if (!p.padded || d > 16)
    emit_points(p, over, over + count, r);
  else {
    if (over > 0) step(p);
    emit_small(p, count, r);
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

// The words are laid into the end of the output's memory and converted from the front: a number,
// as long as a word or longer, never reaches a word that is still to be read.
template <class Output>
int32_t convert(const Points& p, int32_t n, Output out) {
  const int32_t status = check(p, n);
  if (status < 0 || n < 1) return status;
  const Word* words = reinterpret_cast<Word*>(out.r + n) - n;
  emit(p, n, const_cast<Word*>(words));
  int32_t i = 0;
  for (; i + 8 <= n; i += 8) {
    const __m128i four = load4(words + i), next = load4(words + i + 4);
    out.put4(four);
    out.put4(next);
  }
  for (; i < n; ++i) {
    const uint32_t word = words[i];
    out.put(word);
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
    add(p, uint32_t(__builtin_ctz(bits)));
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
  if (status == RUA_STATUS_OK && n > 0) emit(p, n, static_cast<Word*>(r));
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
