// MCG59: x <- 13^13 x mod 2^59.
//
// Four lanes step side by side by a^4; the numbers are those of the plain recurrence.
#include <emmintrin.h>

#include "base/export.hpp"
#include "rua_sub_kernel/service/stream.hpp"

using namespace ork::rua;

namespace {

constexpr uint64_t kMask = (uint64_t{1} << 59) - 1;
constexpr uint64_t kMultiplier = 302875106592253;  // 13^13

struct Mcg59 {
  uint32_t x[2];  // the next output, low word first
  uint32_t a[2];  // the current multiplier
};
static_assert(sizeof(RuaStream) + sizeof(Mcg59) == 32);

uint64_t get(const uint32_t (&w)[2]) { return join(w[0], w[1]); }
void set(uint32_t (&w)[2], uint64_t v) {
  w[0] = uint32_t(v);
  w[1] = uint32_t(v >> 32);
}

uint64_t power(uint64_t base, uint64_t exponent) {
  uint64_t result = 1;
  for (; exponent != 0; exponent >>= 1, base *= base)
    if (exponent & 1) result *= base;
  return result & kMask;
}

// x a mod 2^64 in both lanes, given a and its high words moved low.
__m128i multiply2(__m128i x, __m128i a, __m128i a_high) {
  const __m128i cross =
      _mm_add_epi64(_mm_mul_epu32(_mm_srli_epi64(x, 32), a), _mm_mul_epu32(x, a_high));
  return _mm_add_epi64(_mm_mul_epu32(x, a), _mm_slli_epi64(cross, 32));
}

struct Integers {
  uint32_t* r;

  void put(__m128i x) {
    _mm_storel_epi64(reinterpret_cast<__m128i*>(r), x);
    r += 2;
  }
  void put2(__m128i x) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(r), x);
    r += 4;
  }
};

// The two words of x as doubles, low and high x 2^32: or-ed into the mantissas of 2^52 and 2^84.
struct Reals {
  __m128d t, a;

  Reals(double a_, double b) : t(_mm_set1_pd((b - a_) * 0x1p-59)), a(_mm_set1_pd(a_)) {}
  static __m128d low(__m128i x) {
    const __m128i two52 = _mm_set1_epi64x(0x4330000000000000);
    const __m128i word = _mm_and_si128(x, _mm_set1_epi64x(0xFFFFFFFF));
    return _mm_sub_pd(_mm_castsi128_pd(_mm_or_si128(word, two52)), _mm_castsi128_pd(two52));
  }
  static __m128d high(__m128i x) {
    const __m128i two84 = _mm_set1_epi64x(0x4530000000000000);
    const __m128i word = _mm_srli_epi64(x, 32);
    return _mm_sub_pd(_mm_castsi128_pd(_mm_or_si128(word, two84)), _mm_castsi128_pd(two84));
  }
};

// The double form scales the parts before it adds them, the single form after.
struct Doubles : Reals {
  double* r;

  Doubles(double* r_, double a_, double b) : Reals(a_, b), r(r_) {}
  __m128d real(__m128i x) const {
    return _mm_add_pd(_mm_add_pd(_mm_mul_pd(low(x), t), _mm_mul_pd(high(x), t)), a);
  }
  void put(__m128i x) { _mm_store_sd(r++, real(x)); }
  void put2(__m128i x) {
    _mm_storeu_pd(r, real(x));
    r += 2;
  }
};

struct Floats : Reals {
  float* r;

  Floats(float* r_, double a_, double b) : Reals(a_, b), r(r_) {}
  __m128i real(__m128i x) const {
    const __m128d sum = _mm_add_pd(low(x), high(x));
    return _mm_castps_si128(_mm_cvtpd_ps(_mm_add_pd(_mm_mul_pd(sum, t), a)));
  }
  void put(__m128i x) { _mm_store_ss(r++, _mm_castsi128_ps(real(x))); }
  void put2(__m128i x) {
    _mm_storel_epi64(reinterpret_cast<__m128i*>(r), real(x));
    r += 2;
  }
};

template <class Output>
int32_t generate(RuaStream* stream, int32_t n, Output out) {
  Mcg59& s = state<Mcg59>(stream);
  uint64_t x = get(s.x);
  const uint64_t a = get(s.a);
  if (n >= 4) {
    const uint64_t a2 = a * a, a4 = a2 * a2;
    const __m128i step = _mm_set1_epi64x(int64_t(a4)), step_high = _mm_set1_epi64x(a4 >> 32);
    const __m128i mask = _mm_set1_epi64x(kMask);
    __m128i even = _mm_set_epi64x(int64_t(x * a), int64_t(x));
    __m128i odd = _mm_set_epi64x(int64_t(x * a2 * a), int64_t(x * a2));
    for (; n >= 4; n -= 4) {
      out.put2(_mm_and_si128(even, mask));
      out.put2(_mm_and_si128(odd, mask));
      even = multiply2(even, step, step_high);
      odd = multiply2(odd, step, step_high);
    }
    alignas(16) uint32_t next[4];
    _mm_store_si128(reinterpret_cast<__m128i*>(next), even);
    x = join(next[0], next[1]);
  }
  for (; n > 0; --n, x *= a) out.put(_mm_set_epi64x(0, int64_t(x & kMask)));
  set(s.x, x & kMask);
  return RUA_STATUS_OK;
}

}  // namespace

ORK_EXPORT uint64_t __ruaiPowMod2P59(uint32_t baseLow, uint32_t baseHigh, uint32_t low,
                                     uint32_t high) {
  return power(join(baseLow, baseHigh), join(low, high));
}

ORK_EXPORT int32_t __ruaBRngMCG59InitStream(int32_t method, RuaStream* stream, int32_t n,
                                            const uint32_t* params) {
  Mcg59& s = state<Mcg59>(stream);
  const uint64_t x = get(s.x), a = get(s.a);
  switch (method) {
    case kSeed: {
      const uint64_t seed = n < 1 ? 1 : join(params[0], n == 1 ? 0 : params[1]) & kMask;
      set(s.x, seed != 0 ? seed : 1);
      set(s.a, kMultiplier);
      return RUA_STATUS_OK;
    }
    case kLeapfrog:
      set(s.x, x * power(a, params[0]) & kMask);
      set(s.a, power(a, uint64_t(int64_t{n})));
      return RUA_STATUS_OK;
    case kSkipAhead:
      set(s.x, x * power(a, join(params[0], params[1])) & kMask);
      return RUA_STATUS_OK;
    default:
      return RUA_STATUS_BAD_METHOD;
  }
}

ORK_GENERATE(MCG59, generate(stream, n, Floats(r, a, b)), generate(stream, n, Doubles(r, a, b)),
             generate(stream, n, Integers{r}))
