// WH: a family of 273 Wichmann-Hill generators. Each has four multiplicative generators modulo
// primes just below 2^24; a number is the fraction of the sum of their x/m (B. Wichmann,
// I. D. Hill, 1982; families of them: N. M. Maclaren, 1989).
//
// Two times two lanes step side by side by a^4; the numbers are those of the plain recurrence.
#include <emmintrin.h>

#include <array>
#include <bit>

#include "base/export.hpp"
#include "rua_sub_kernel/service/stream.hpp"

extern "C" __attribute__((visibility("default"))) constexpr double _ruadWH_IM_Tab[273][4] = {
#define WH(a1, a2, a3, a4, m1, m2, m3, m4) {1.0 / m1, 1.0 / m2, 1.0 / m3, 1.0 / m4},
#include "rua_sub_kernel/wh/wh_table.inc"
#undef WH
};

using namespace ork::rua;

namespace {

struct Member {
  uint8_t a[4];   // multipliers, primitive roots
  uint32_t m[4];  // moduli
};
constexpr Member kMembers[] = {
#define WH(a1, a2, a3, a4, m1, m2, m3, m4) {{a1, a2, a3, a4}, {m1, m2, m3, m4}},
#include "rua_sub_kernel/wh/wh_table.inc"
#undef WH
};
constexpr int kCount = sizeof kMembers / sizeof kMembers[0];
static_assert(kCount == 273);

struct Wh {
  uint32_t x[4];  // the next output, x[p] below m[p]
  uint32_t a[4];  // the current multipliers
};
static_assert(sizeof(RuaStream) + sizeof(Wh) == 48);

// 1/m rounded towards zero, so that no x/m, nor a sum of them, is rounded up to the next integer.
constexpr auto kBelow = [] {
  std::array<std::array<double, 4>, kCount> table{};
  for (int k = 0; k < kCount; ++k)
    for (int p = 0; p < 4; ++p) {
      const double nearest = _ruadWH_IM_Tab[k][p];
      const bool above = __builtin_fma(nearest, kMembers[k].m[p], -1.0) > 0;
      table[k][p] = std::bit_cast<double>(std::bit_cast<uint64_t>(nearest) - above);
    }
  return table;
}();

uint32_t power(uint32_t base, uint64_t exponent, uint32_t m) {
  uint64_t result = 1 % m, square = base % m;
  for (; exponent != 0; exponent >>= 1) {
    if (exponent & 1) result = result * square % m;
    square = square * square % m;
  }
  return uint32_t(result);
}

// a x mod m. The quotient is not an integer (m is prime), so it is 1/m away from one at least,
// and rounding does not matter to its floor.
uint32_t multiply(uint32_t a, uint32_t x, uint32_t m) {
  const __m128d q = _mm_set_sd(double(a) * double(x) / double(m));
  return a * x - uint32_t(_mm_cvttsd_si32(q)) * m;
}

void seed(Wh& s, const Member& member, int32_t n, const uint32_t* params) {
  for (int p = 0; p < 4; ++p) {
    const uint32_t x = p < n ? params[p] % member.m[p] : 1;
    s.x[p] = x != 0 ? x : 1;
    s.a[p] = member.a[p];
  }
}

__m128i wide(uint32_t even, uint32_t odd) {
  return _mm_set_epi32(0, int32_t(odd), 0, int32_t(even));
}

// One part in the lanes of a vector. The quotient of a x mod m is x ceil(2^32 a / m) / 2^32, which
// is too large by less than 2^-8: rarely it gives 1 too much, and a negative x.
struct Part {
  __m128i a, ratio, m;

  Part() = default;
  Part(uint32_t a_, uint32_t m_) : a(wide(a_, a_)), m(wide(m_, m_)) {
    const auto r = uint32_t(((uint64_t{a_} << 32) + m_ - 1) / m_);
    ratio = wide(r, r);
  }
  __m128i step(__m128i x) const {
    const __m128i q = _mm_shuffle_epi32(_mm_mul_epu32(x, ratio), 0xF5);
    return _mm_sub_epi64(_mm_mul_epu32(x, a), _mm_mul_epu32(q, m));
  }
  __m128i lift(__m128i x) const {
    return _mm_add_epi64(x, _mm_and_si128(_mm_shuffle_epi32(x, 0xF5), m));
  }
};

// 2^52 + x, exactly, for words in the low halves of the lanes.
__m128d biased(__m128i x) { return _mm_or_pd(_mm_castsi128_pd(x), _mm_set1_pd(0x1p52)); }

// Forms take the four parts of two numbers, each as 2^52 + x.
struct Integers {
  uint32_t* r;

  void put2(const __m128d (&x)[4]) {
    const auto low = [](__m128d u, __m128d v) {  // u0 u1 v0 v1
      return _mm_castps_si128(_mm_shuffle_ps(_mm_castpd_ps(u), _mm_castpd_ps(v), 0x88));
    };
    const __m128i p12 = low(x[0], x[1]), p34 = low(x[2], x[3]);
    const __m128i first =
        _mm_unpacklo_epi64(_mm_shuffle_epi32(p12, 0xD8), _mm_shuffle_epi32(p34, 0xD8));
    const __m128i second =
        _mm_unpackhi_epi64(_mm_shuffle_epi32(p12, 0xD8), _mm_shuffle_epi32(p34, 0xD8));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(r), first);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(r + 4), second);
    r += 8;
  }
  void put(const __m128d (&x)[4]) {
    for (const __m128d& part : x) *r++ = uint32_t(_mm_cvtsi128_si32(_mm_castpd_si128(part)));
  }
};

struct Reals {
  __m128d reciprocal[4], width, a;

  Reals(const RuaStream* stream, double a_, double b)
      : width(_mm_set1_pd(b - a_)), a(_mm_set1_pd(a_)) {
    const auto& row = kBelow[family_member(stream)];
    for (int p = 0; p < 4; ++p) reciprocal[p] = _mm_set1_pd(row[p]);
  }
  __m128d real(const __m128d (&x)[4]) const {
    const __m128d two52 = _mm_set1_pd(0x1p52);
    __m128d s = _mm_mul_pd(_mm_sub_pd(x[0], two52), reciprocal[0]);
#pragma GCC unroll 4
    for (int p = 1; p < 4; ++p)
      s = _mm_add_pd(s, _mm_mul_pd(_mm_sub_pd(x[p], two52), reciprocal[p]));
    const __m128d fraction = _mm_sub_pd(s, _mm_cvtepi32_pd(_mm_cvttpd_epi32(s)));
    return _mm_add_pd(_mm_mul_pd(fraction, width), a);
  }
};

struct Doubles : Reals {
  double* r;

  Doubles(const RuaStream* stream, double* r_, double a_, double b) : Reals(stream, a_, b), r(r_) {}
  void put(const __m128d (&x)[4]) { _mm_store_sd(r++, real(x)); }
  void put2(const __m128d (&x)[4]) {
    _mm_storeu_pd(r, real(x));
    r += 2;
  }
};

struct Floats : Reals {
  float* r;

  Floats(const RuaStream* stream, float* r_, double a_, double b) : Reals(stream, a_, b), r(r_) {}
  void put(const __m128d (&x)[4]) { _mm_store_ss(r++, _mm_cvtpd_ps(real(x))); }
  void put2(const __m128d (&x)[4]) {
    _mm_storel_pi(reinterpret_cast<__m64*>(r), _mm_cvtpd_ps(real(x)));
    r += 2;
  }
};

template <class Output>
int32_t generate(RuaStream* stream, int32_t n, Output out) {
  Wh& s = state<Wh>(stream);
  const uint32_t(&m)[4] = kMembers[family_member(stream)].m;
  __m128d number[4];
  if (n >= 8) {
    Part part[4];
    __m128i even[4], odd[4];  // numbers 0 and 1, 2 and 3 of a group
    for (int p = 0; p < 4; ++p) {
      const uint32_t a = s.a[p], a2 = multiply(a, a, m[p]), x = s.x[p];
      const uint32_t x1 = multiply(a, x, m[p]), x2 = multiply(a2, x, m[p]);
      part[p] = Part(multiply(a2, a2, m[p]), m[p]);
      even[p] = wide(x, x1);
      odd[p] = wide(x2, multiply(a2, x1, m[p]));
    }
    const auto put2 = [&](__m128i(&x)[4]) __attribute__((always_inline)) {
#pragma GCC unroll 4
      for (int p = 0; p < 4; ++p) number[p] = biased(x[p]);
      out.put2(number);
#pragma GCC unroll 4
      for (int p = 0; p < 4; ++p) x[p] = part[p].step(x[p]);
      const __m128i any = _mm_or_si128(_mm_or_si128(x[0], x[1]), _mm_or_si128(x[2], x[3]));
      if (__builtin_expect(_mm_movemask_pd(_mm_castsi128_pd(any)) != 0, 0))
#pragma GCC unroll 4
        for (int p = 0; p < 4; ++p) x[p] = part[p].lift(x[p]);
    };
    for (; n >= 4; n -= 4) {
      put2(even);
      put2(odd);
    }
    for (int p = 0; p < 4; ++p) s.x[p] = uint32_t(_mm_cvtsi128_si32(even[p]));
  }
  for (; n > 0; --n) {
    for (int p = 0; p < 4; ++p) {
      number[p] = biased(wide(s.x[p], 0));
      s.x[p] = multiply(s.a[p], s.x[p], m[p]);
    }
    out.put(number);
  }
  return RUA_STATUS_OK;
}

}  // namespace

ORK_EXPORT uint32_t __ruaiPowMod(uint32_t base, uint32_t low, uint32_t high, uint32_t modulus) {
  return power(base, join(low, high), modulus);
}

ORK_EXPORT int32_t __ruaBRngWHInitStream(int32_t method, RuaStream* stream, int32_t n,
                                         const uint32_t* params) {
  Wh& s = state<Wh>(stream);
  const Member& member = kMembers[family_member(stream)];
  switch (method) {
    case kSeed:
      seed(s, member, n, params);
      return RUA_STATUS_OK;
    case kLeapfrog:
    case kSkipAhead:
      for (int p = 0; p < 4; ++p) {
        const uint32_t m = member.m[p], a = s.a[p];
        const uint64_t count = method == kLeapfrog ? params[0] : join(params[0], params[1]);
        s.x[p] = uint32_t(uint64_t{s.x[p]} * power(a, count, m) % m);
        if (method == kLeapfrog) s.a[p] = power(a, uint64_t(int64_t{n}), m);
      }
      return RUA_STATUS_OK;
    default:
      return RUA_STATUS_BAD_METHOD;
  }
}

ORK_GENERATE(WH, generate(stream, n, Floats(stream, r, a, b)),
             generate(stream, n, Doubles(stream, r, a, b)), generate(stream, n, Integers{r}))
