// MCG31M1: x <- a x mod 2^31 - 1 with a = 1132489760, from P. L'Ecuyer, "Tables of linear
// congruential generators of different sizes and good lattice structure", 1999.
//
// Eight lanes step side by side by a^8; the numbers are those of the plain recurrence.
#include <emmintrin.h>

#include "base/export.hpp"
#include "rua_sub_kernel/service/stream.hpp"
#include "rua_sub_kernel/service/words.hpp"

using namespace ork::rua;

namespace {

constexpr uint32_t kModulus = 0x7FFFFFFF;
constexpr uint32_t kMultiplier = 1132489760;
constexpr double kStep = 0x1.00000002p-31;  // nearest to 1/kModulus

struct Mcg31m1 {
  uint32_t x;  // the next output, 1 to kModulus - 1
  uint32_t a;  // the current multiplier
};
static_assert(sizeof(RuaStream) + sizeof(Mcg31m1) == 24);

// a b mod 2^31 - 1, for factors below the modulus: 2^31 = 1 folds the product, the sum stays
// below twice the modulus.
uint32_t multiply(uint32_t a, uint32_t b) {
  const uint64_t p = uint64_t{a} * b;
  const uint32_t s = (uint32_t(p) & kModulus) + uint32_t(p >> 31);
  return s >= kModulus ? s - kModulus : s;
}

// True of the states that seeds lead to.
bool below_modulus(uint32_t x) { return x != 0 && x < kModulus; }

uint32_t power(uint32_t base, uint64_t exponent) {
  uint32_t result = 1;
  for (; exponent != 0; exponent >>= 1) {
    if (exponent & 1) result = multiply(result, base);
    base = multiply(base, base);
  }
  return result;
}

// Vectors hold two states each, in the low halves of their 64-bit lanes.
//
// The four state vectors fill half of the registers, so the constants stay in memory: the
// loop hides where they come from, or the compiler would take registers for them and spill
// the states.
struct Constants {
  __m128i mask, a8;
  Affine real;
};

// A second fold stands for the conditional subtraction: it differs only for the sum
// 2^31 - 1, that is for a product of 0.
inline __m128i step(__m128i x, const Constants& c) {
  const __m128i p = _mm_mul_epu32(x, c.a8);
  const __m128i s = _mm_add_epi64(_mm_and_si128(p, c.mask), _mm_srli_epi64(p, 31));
  return _mm_add_epi64(_mm_and_si128(s, c.mask), _mm_srli_epi64(s, 31));
}

// What is stored of four states, or of one.
struct Integers {
  using Item = uint32_t;
  static void put4(uint32_t* r, __m128i x, __m128i y, const Constants&) {
    const __m128 words = _mm_shuffle_ps(_mm_castsi128_ps(x), _mm_castsi128_ps(y), 0x88);
    _mm_storeu_ps(reinterpret_cast<float*>(r), words);
  }
  static void put(uint32_t* r, uint32_t x, const Constants&) { *r = x; }
};
struct Doubles {
  using Item = double;
  static void put4(double* r, __m128i x, __m128i y, const Constants& c) {
    _mm_storeu_pd(r, c.real(x));
    _mm_storeu_pd(r + 2, c.real(y));
  }
  static void put(double* r, uint32_t x, const Constants& c) { _mm_store_sd(r, c.real.one(x)); }
};
struct Floats {
  using Item = float;
  static void put4(float* r, __m128i x, __m128i y, const Constants& c) {
    _mm_storeu_ps(r, _mm_movelh_ps(_mm_cvtpd_ps(c.real(x)), _mm_cvtpd_ps(c.real(y))));
  }
  static void put(float* r, uint32_t x, const Constants& c) {
    _mm_store_ss(r, _mm_cvtpd_ps(c.real.one(x)));
  }
};

template <class Form>
int32_t generate(RuaStream* stream, int32_t n, typename Form::Item* r, double a, double b) {
  Mcg31m1& s = state<Mcg31m1>(stream);
  Constants constants = {_mm_set1_epi64x(kModulus), {}, Affine(a, b, kStep)};
  uint32_t x = s.x;
  if (n >= 8 && below_modulus(x) && below_modulus(s.a)) {
    constants.a8 = _mm_set1_epi64x(power(s.a, 8));
    __m128i v[4];
    for (__m128i& two : v) {
      const uint32_t next = multiply(x, s.a);
      two = _mm_set_epi64x(next, x);
      x = multiply(next, s.a);
    }
    for (; n >= 8; n -= 8, r += 8) {
      const Constants* c = &constants;
      asm("" : "+r"(c));
      Form::put4(r, v[0], v[1], *c);
      Form::put4(r + 4, v[2], v[3], *c);
#pragma GCC unroll 4
      for (__m128i& two : v) two = step(two, *c);
    }
    x = _mm_cvtsi128_si32(v[0]);
  }
  for (; n > 0; --n, ++r, x = multiply(x, s.a)) Form::put(r, x, constants);
  s.x = x;
  return RUA_STATUS_OK;
}

}  // namespace

ORK_EXPORT uint32_t __ruaiPowMod2P31M1(uint32_t base, uint32_t low, uint32_t high) {
  return power(base % kModulus, join(low, high));
}

ORK_EXPORT int32_t __ruaBRngMCG31M1InitStream(int32_t method, RuaStream* stream, int32_t n,
                                              const uint32_t* params) {
  Mcg31m1& s = state<Mcg31m1>(stream);
  switch (method) {
    case kSeed: {
      const uint32_t seed = n > 0 ? params[0] % kModulus : 1;
      s = {seed != 0 ? seed : 1, kMultiplier};
      return RUA_STATUS_OK;
    }
    case kLeapfrog:
      s.x = multiply(s.x, power(s.a, params[0]));
      s.a = power(s.a, uint64_t(int64_t{n}));
      return RUA_STATUS_OK;
    case kSkipAhead:
      s.x = multiply(s.x, power(s.a, join(params[0], params[1])));
      return RUA_STATUS_OK;
    default:
      return RUA_STATUS_BAD_METHOD;
  }
}

ORK_GENERATE(MCG31M1, generate<Floats>(stream, n, r, a, b), generate<Doubles>(stream, n, r, a, b),
             generate<Integers>(stream, n, r, 0, 1))
