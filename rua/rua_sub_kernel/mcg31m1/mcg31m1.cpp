// MCG31M1: x <- a x mod 2^31 - 1 with a = 1132489760, from P. L'Ecuyer, "Tables of linear
// congruential generators of different sizes and good lattice structure", 1999.
//
// Eight lanes step side by side by a^8; the numbers are those of the plain recurrence.
#include <emmintrin.h>

#include "frame/export.hpp"
#include "rua_sub_kernel/service/stream.hpp"

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

uint32_t power(uint32_t base, uint64_t exponent) {
  uint32_t result = 1;
  for (; exponent != 0; exponent >>= 1) {
    if (exponent & 1) result = multiply(result, base);
    base = multiply(base, base);
  }
  return result;
}

// Two states in the even 32-bit words. A second fold stands for the conditional
// subtraction: it differs only for the sum 2^31 - 1, that is for a product of 0.
__m128i step2(__m128i x, __m128i a) {
  const __m128i mask = _mm_set1_epi64x(kModulus);
  const __m128i p = _mm_mul_epu32(x, a);
  const __m128i s = _mm_add_epi64(_mm_and_si128(p, mask), _mm_srli_epi64(p, 31));
  return _mm_add_epi64(_mm_and_si128(s, mask), _mm_srli_epi64(s, 31));
}

// What becomes of the states, eight at a time or one alone.
struct Integers {
  uint32_t* r;

  void put(uint32_t x) { *r++ = x; }
  void put8(const __m128i (&x)[4]) {
#pragma GCC unroll 4
    for (int i = 0; i < 4; i += 2, r += 4) {
      const __m128 even = _mm_shuffle_ps(_mm_castsi128_ps(x[i]), _mm_castsi128_ps(x[i + 1]), 0x88);
      _mm_storeu_ps(reinterpret_cast<float*>(r), even);
    }
  }
};

struct Reals {
  double scale, shift;
  __m128d scale2, shift2;

  Reals(double a, double b)
      : scale((b - a) * kStep), shift(a), scale2(_mm_set1_pd(scale)), shift2(_mm_set1_pd(shift)) {}
  double real(uint32_t x) const { return double(int32_t(x)) * scale + shift; }
  // Or-ed into the mantissa of 2^52, a word is that much above it.
  __m128d real2(__m128i x) const {
    const __m128d two52 = _mm_set1_pd(0x1p52);
    const __m128d z = _mm_sub_pd(_mm_or_pd(_mm_castsi128_pd(x), two52), two52);
    return _mm_add_pd(_mm_mul_pd(z, scale2), shift2);
  }
};

struct Doubles : Reals {
  double* r;

  Doubles(double* r, double a, double b) : Reals(a, b), r(r) {}
  void put(uint32_t x) { *r++ = real(x); }
  void put8(const __m128i (&x)[4]) {
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i, r += 2) _mm_storeu_pd(r, real2(x[i]));
  }
};

struct Floats : Reals {
  float* r;

  Floats(float* r, double a, double b) : Reals(a, b), r(r) {}
  void put(uint32_t x) { *r++ = float(real(x)); }
  void put8(const __m128i (&x)[4]) {
#pragma GCC unroll 4
    for (int i = 0; i < 4; i += 2, r += 4)
      _mm_storeu_ps(
          r, _mm_movelh_ps(_mm_cvtpd_ps(real2(x[i])), _mm_cvtpd_ps(real2(x[i + 1]))));
  }
};

template <class Output>
void generate(Mcg31m1& state, int32_t n, Output out) {
  uint32_t x = state.x;
  const uint32_t a = state.a;
  if (n >= 8 && x - 1 < kModulus - 1 && a - 1 < kModulus - 1) {
    alignas(16) uint32_t lane[16] = {};  // eight states, each in the low half of 64 bits
    for (int i = 0; i < 16; i += 2, x = multiply(x, a)) lane[i] = x;
    const __m128i a8 = _mm_set1_epi64x(power(a, 8));
    __m128i v[4];
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i) v[i] = _mm_load_si128(reinterpret_cast<__m128i*>(lane) + i);
    for (; n >= 8; n -= 8) {
      out.put8(v);
#pragma GCC unroll 4
      for (__m128i& w : v) w = step2(w, a8);
    }
    x = _mm_cvtsi128_si32(v[0]);
  }
  for (; n > 0; --n, x = multiply(x, a)) out.put(x);
  state.x = x;
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

ORK_EXPORT int32_t __ruasBRngMCG31M1(RuaStream* stream, int32_t n, float* r, float a, float b) {
  generate(state<Mcg31m1>(stream), n, Floats(r, a, b));
  return RUA_STATUS_OK;
}

ORK_EXPORT int32_t __ruadBRngMCG31M1(RuaStream* stream, int32_t n, double* r, double a, double b) {
  generate(state<Mcg31m1>(stream), n, Doubles(r, a, b));
  return RUA_STATUS_OK;
}

ORK_EXPORT int32_t __ruaiBRngMCG31M1(RuaStream* stream, int32_t n, void* r) {
  generate(state<Mcg31m1>(stream), n, Integers{static_cast<uint32_t*>(r)});
  return RUA_STATUS_OK;
}
