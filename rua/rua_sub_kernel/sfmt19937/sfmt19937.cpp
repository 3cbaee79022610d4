// SFMT19937: the SIMD-oriented Fast Mersenne Twister on 156 words of 128 bits (M. Saito,
// M. Matsumoto, 2008).
#include <algorithm>
#include <cstring>

#include "base/export.hpp"
#include "rua_sub_kernel/service/stream.hpp"
#include "rua_sub_kernel/service/words.hpp"
#include "rua_sub_kernel/skip_ahead/ring.hpp"

using namespace ork::rua;

namespace {

constexpr uint32_t kN = 624;  // in 32-bit words
constexpr uint32_t kAhead = 4 * 122;

// `index` is the next word that is in no opened block, a multiple of 4.
struct Sfmt19937 : Ring {
  uint32_t rest[3];  // what is left of the block opened last
  int32_t restNext, restEnd;
};
static_assert(kN == kRingWords && sizeof(RuaStream) + sizeof(Sfmt19937) == 2536);

void seed(Sfmt19937& s, int32_t n, const uint32_t* params) {
  constexpr uint32_t kMid = 306, kLate = kMid + 11;
  const uint32_t one = 1;
  const uint32_t* key = n > 0 ? params : &one;
  const uint32_t length = n > 0 ? uint32_t(n) : 1;
  uint32_t* w = s.w;
  const auto at = [w](uint32_t i) -> uint32_t& { return w[i < kN ? i : i - kN]; };
  const auto mixed = [](uint32_t v) { return v ^ v >> 27; };

  std::memset(w, 0x8B, sizeof s.w);
  uint32_t i = 0;
  const uint32_t count = std::max(length + 1, kN);
  for (uint32_t k = 0; k < count; ++k) {
    uint32_t r = mixed(w[i] ^ at(i + kMid) ^ at(i + kN - 1)) * 1664525;
    at(i + kMid) += r;
    r += k == 0 ? length : k <= length ? key[k - 1] + i : i;
    at(i + kLate) += r;
    w[i] = r;
    if (++i == kN) i = 0;
  }
  for (uint32_t k = 0; k < kN; ++k) {
    uint32_t r = mixed(w[i] + at(i + kMid) + at(i + kN - 1)) * 1566083941;
    at(i + kMid) ^= r;
    r -= i;
    at(i + kLate) ^= r;
    w[i] = r;
    if (++i == kN) i = 0;
  }
  // The period is certain when this parity is odd.
  if (__builtin_parity((w[0] & 1) ^ (w[3] & 0x13C9E684)) == 0) w[0] ^= 1;
  s.index = kN;
  s.restNext = s.restEnd = 0;
}

// B[i] <- B[i] ^ B[i] << 8 (128 bits) ^ B[i + 122] >> 11 & mask ^ B[i - 2] >> 8 (128 bits)
//         ^ B[i - 1] << 18
inline __m128i renew(__m128i a, __m128i b, __m128i c, __m128i d) {
  const __m128i mask = _mm_setr_epi32(int32_t(0xDFFFFFEF), int32_t(0xDDFECB7F), int32_t(0xBFFAFFFF),
                                      int32_t(0xBFFFFFF6));
  __m128i z = _mm_xor_si128(a, _mm_slli_si128(a, 1));
  z = _mm_xor_si128(z, _mm_and_si128(_mm_srli_epi32(b, 11), mask));
  z = _mm_xor_si128(z, _mm_srli_si128(c, 1));
  return _mm_xor_si128(z, _mm_slli_epi32(d, 18));
}

void rewrite_block(uint32_t (&w)[kN]) {
  __m128i c = load4(w + kN - 8), d = load4(w + kN - 4);
  const auto stretch = [&](uint32_t i, uint32_t end, uint32_t ahead) {
    for (; i < end; i += 4) {
      const __m128i z = renew(load4(w + i), load4(w + (i + ahead)), c, d);
      store4(w + i, z);
      c = d;
      d = z;
    }
  };
  stretch(0, kN - kAhead, kAhead);
  stretch(kN - kAhead, kN, kAhead - kN);  // i + kAhead - kN, modulo 2^32
}

constexpr int32_t _rua_sfmt19937_poly[] = {
#include "rua_sub_kernel/sfmt19937/sfmt19937_poly.inc"
};
constexpr Characteristic kCharacteristic{
    _rua_sfmt19937_poly, sizeof _rua_sfmt19937_poly / sizeof _rua_sfmt19937_poly[0]};

struct Step {
  static constexpr uint32_t kUnit = 4;
  static void step(uint32_t* w, uint32_t k) {
    const auto at = [w](uint32_t i) { return load4(w + (i < kN ? i : i - kN)); };
    store4(w + k, renew(load4(w + k), at(k + kAhead), at(k + kN - 8), at(k + kN - 4)));
  }
  static void round(uint32_t (&w)[kN]) { rewrite_block(w); }
};

// Only a state that was not made here has places out of bounds.
void bring_into_bounds(Sfmt19937& s) {
  s.index = int32_t(std::min(uint32_t(s.index), kN) & ~3u);
  s.restEnd = std::clamp(s.restEnd, 0, 3);
  s.restNext = std::clamp(s.restNext, 0, s.restEnd);
}

// Leaves the words of the block that ends at `index`, from place `from` of it on, to be delivered.
void keep_rest(Sfmt19937& s, uint32_t from) {
  s.restNext = s.restEnd = 0;
  for (uint32_t i = from; i < 4; ++i) s.rest[s.restEnd++] = s.w[s.index - 4 + i];
}

using Operations = RingOperations<Step>;

// The skip within what is left of an opened block and within the ring, or to its end. Then the
// steps are blocks, and `flag` the words that are passed over of the last one, 0 for all.
int32_t process_index(RuaStream* stream, uint64_t* nskip, int32_t* flag) {
  Sfmt19937& s = state<Sfmt19937>(stream);
  const uint64_t rest = uint32_t(s.restEnd - s.restNext);
  if (*nskip <= rest) {
    s.restNext += int32_t(*nskip);
    return 0;
  }
  const uint64_t end = uint32_t(s.index) + (*nskip - rest);  // the first place not passed over
  const uint32_t part = uint32_t(end % 4);
  s.restNext = s.restEnd;
  if (end <= kN) {
    s.index = int32_t(end + 3) & ~3;
    if (part != 0) keep_rest(s, part);
    return 0;
  }
  s.index = kN;
  *nskip = (end - kN + 3) / 4;
  *flag = int32_t(part);
  return 1;
}

void finish(RuaStream* stream, const RuaStream* from, int32_t flag) {
  Sfmt19937& s = state<Sfmt19937>(stream);
  state<Sfmt19937>(from).unroll(s.w);
  s.index = kN;
  keep_rest(s, flag != 0 ? uint32_t(flag) : 4);
}

int32_t skip(RuaStream* stream, int64_t n) {
  if (n < 0) return RUA_STATUS_NO_SKIPAHEAD;
  Sfmt19937& s = state<Sfmt19937>(stream);
  bring_into_bounds(s);
  uint64_t steps = uint64_t(n);
  if (n < kSteppedSkip) {
    int32_t flag;
    if (process_index(stream, &steps, &flag)) {
      Operations::advance(s, steps);
      keep_rest(s, flag != 0 ? uint32_t(flag) : 4);
    }
    return RUA_STATUS_OK;
  }
  return __rua_SkipAheadSWin(stream, Operations::zero, Operations::add, Operations::copy,
                             Operations::update, finish, process_index, steps, kN,
                             kCharacteristic.degree(), sizeof(RuaStream) + sizeof(Sfmt19937),
                             kCharacteristic.terms, kCharacteristic.exponents);
}

// The word as a signed number: word t + c, c being the middle of the interval.
struct Doubles {
  double* r;
  __m128d t, c;

  Doubles(double* r_, double a, double b)
      : r(r_), t(_mm_set1_pd((b - a) * 0x1p-32)), c(_mm_set1_pd((a + b) * 0.5)) {}
  __m128d real2(__m128i z) const { return _mm_add_pd(_mm_mul_pd(_mm_cvtepi32_pd(z), t), c); }
  void put(uint32_t z) { _mm_store_sd(r++, real2(_mm_cvtsi32_si128(int32_t(z)))); }
  void put4(__m128i z) {
    _mm_storeu_pd(r, real2(z));
    _mm_storeu_pd(r + 2, real2(_mm_unpackhi_epi64(z, z)));
    r += 4;
  }
};

// The same in float, t and c being rounded to float before.
struct Floats {
  float* r;
  __m128 t, c;

  Floats(float* r_, double a, double b)
      : r(r_), t(_mm_set1_ps(float((b - a) * 0x1p-32))), c(_mm_set1_ps(float((a + b) * 0.5))) {}
  __m128 real4(__m128i z) const { return _mm_add_ps(_mm_mul_ps(_mm_cvtepi32_ps(z), t), c); }
  void put(uint32_t z) { _mm_store_ss(r++, real4(_mm_cvtsi32_si128(int32_t(z)))); }
  void put4(__m128i z) {
    _mm_storeu_ps(r, real4(z));
    r += 4;
  }
};

template <class Output>
int32_t generate(RuaStream* stream, int32_t n, Output out) {
  Sfmt19937& s = state<Sfmt19937>(stream);
  bring_into_bounds(s);
  for (; n > 0 && s.restNext < s.restEnd; --n) out.put(s.rest[s.restNext++]);
  uint32_t k = uint32_t(s.index);
  while (n > 0) {
    if (k == kN) {
      rewrite_block(s.w);
      k = 0;
    }
    const uint32_t end = k + std::min(uint32_t(n), kN - k);
    n -= end - k;
    for (; k + 4 <= end; k += 4) out.put4(load4(s.w + k));
    s.index = int32_t(k);
    if (k == end) continue;
    for (s.index += 4; k < end; ++k) out.put(s.w[k]);
    keep_rest(s, k % 4);
  }
  return RUA_STATUS_OK;
}

}  // namespace

ORK_EXPORT int32_t __ruaBRngSFMT19937InitStream(int32_t method, RuaStream* stream, int32_t n,
                                                const uint32_t* params) {
  switch (method) {
    case kSeed:
      seed(state<Sfmt19937>(stream), n, params);
      return RUA_STATUS_OK;
    case kLeapfrog:
      return RUA_STATUS_NO_LEAPFROG;
    case kSkipAhead:
      return skip(stream, int64_t(join(params[0], params[1])));
    default:
      return RUA_STATUS_BAD_METHOD;
  }
}

ORK_GENERATE(SFMT19937, generate(stream, n, Floats(r, a, b)), generate(stream, n, Doubles(r, a, b)),
             generate(stream, n, WordsAsIntegers{r}))
