// MRG32K3A: two recurrences of order 3 modulo primes just below 2^32, and their difference, from
// P. L'Ecuyer, "Good parameters and implementations for combined multiple recursive random
// number generators", 1999.
//
//   x(n) = 1403580 x(n-2) - 810728 x(n-3)   mod m1 = 2^32 - 209
//   y(n) = 527612 y(n-1) - 1370589 y(n-3)   mod m2 = 2^32 - 22853
//   z(n) = x(n) - y(n)                      mod m1
//
// A long request is cut into four stretches that run side by side in the lanes of two vectors;
// the numbers are those of the plain recurrence. The states at which the later stretches begin
// come from a table of what x(s) and y(s) are in terms of the first three.
#include <algorithm>
#include <array>

#include "base/export.hpp"
#include "rua_sub_kernel/mrg32k3a/companion.hpp"
#include "rua_sub_kernel/service/stream.hpp"
#include "rua_sub_kernel/service/words.hpp"

using namespace ork::rua;

namespace {

constexpr uint32_t kM1 = 4294967087, kM2 = 4294944443;
constexpr uint32_t kX2 = 1403580, kX3 = 810728;  // factors of x(n-2) and -x(n-3)
constexpr uint32_t kY1 = 527612, kY3 = 1370589;  // factors of y(n-1) and -y(n-3)
// 2^43 / m2 times the factors of y, so rounded that their difference is never too small.
constexpr uint32_t kRatioY1 = (uint64_t{kY1} << 43) / kM2 + 1;
constexpr uint32_t kRatioY3 = (uint64_t{kY3} << 43) / kM2;
constexpr double kStep = 0x1.000000d10000bp-32;  // nearest to 1/m1

constexpr Row kRowX = {0, kX2, kM1 - kX3}, kRowY = {kY1, 0, kM2 - kY3};

struct Mrg32k3a {
  uint32_t x[3], y[3];  // the last three, oldest first
};
static_assert(sizeof(RuaStream) + sizeof(Mrg32k3a) == 40);

void seed(Mrg32k3a& s, int32_t n, const uint32_t* params) {
  for (int32_t i = 0; i < 6; ++i) {
    const uint32_t word = i < n ? params[i] : 1, m = i < 3 ? kM1 : kM2;
    *(i < 3 ? &s.x[i] : &s.y[i - 3]) = word >= m ? word - m : word;
  }
  if ((s.x[0] | s.x[1] | s.x[2]) == 0) s.x[0] = 1;
  if ((s.y[0] | s.y[1] | s.y[2]) == 0) s.y[0] = 1;
}

// One step of both recurrences.
uint32_t step(Mrg32k3a& s) {
  const uint32_t x = fold<209>(uint64_t{kX2} * s.x[1] + uint64_t{kX3} * (kM1 - s.x[0]));
  const uint32_t y = fold<22853>(uint64_t{kY1} * s.y[2] + uint64_t{kY3} * (kM2 - s.y[0]));
  s = {{s.x[1], s.x[2], x}, {s.y[1], s.y[2], y}};
  return x < y ? x - y + kM1 : x - y;
}

// The same for two states in the low halves of the lanes, the high halves being 0. The words stand
// in a ring: step<k> replaces the oldest, at k, and three steps come round.
struct Lanes {
  __m128i x[3], y[3];

  // v, or v + m where v is negative.
  static __m128i lift(__m128i v, __m128i m) {
    return _mm_add_epi64(v, _mm_and_si128(_mm_shuffle_epi32(v, 0xF5), m));
  }

  template <int kOldest>
  __m128i step() {
    constexpr int kMiddle = (kOldest + 1) % 3, kNewest = (kOldest + 2) % 3;
    const auto times = [](__m128i v, uint32_t c) { return _mm_mul_epu32(v, _mm_set1_epi64x(c)); };
    const __m128i m1 = _mm_set1_epi64x(kM1), m2 = _mm_set1_epi64x(kM2);
    // Products below 2^53; a multiple of the modulus keeps the differences positive. For x the
    // quotient is v >> 32, which leaves less than 2^32 + 209 * 2^22.
    __m128i u = _mm_sub_epi64(_mm_set1_epi64x(uint64_t{kX3} * kM1), times(x[kOldest], kX3));
    u = _mm_add_epi64(u, times(x[kMiddle], kX2));
    u = _mm_sub_epi64(u, _mm_mul_epu32(_mm_shuffle_epi32(u, 0xF5), m1));
    u = lift(_mm_sub_epi64(u, m1), m1);
    // For y, where every step waits for the one before, the quotient is found beside v, from
    // 2^43 / m2 times the terms: right, or 1 too large.
    __m128i v = _mm_sub_epi64(_mm_set1_epi64x(uint64_t{kY3} * kM2), times(y[kOldest], kY3));
    __m128i q = _mm_sub_epi64(_mm_set1_epi64x(uint64_t{kY3} << 43), times(y[kOldest], kRatioY3));
    v = _mm_add_epi64(v, times(y[kNewest], kY1));
    q = _mm_srli_epi64(_mm_add_epi64(q, times(y[kNewest], kRatioY1)), 43);
    v = lift(_mm_sub_epi64(v, _mm_mul_epu32(q, m2)), m2);
    x[kOldest] = u;
    y[kOldest] = v;
    return lift(_mm_sub_epi64(u, v), m1);
  }
};

constexpr int32_t kStretch = 255;  // the longest, a multiple of 3
constexpr auto kReachX = reach<209, kStretch + 3>(kRowX);
constexpr auto kReachY = reach<22853, kStretch + 3>(kRowY);

// The state n steps on.
Mrg32k3a jump(const Mrg32k3a& s, int32_t n) {
  Mrg32k3a t;
  for (int i = 0; i < 3; ++i) {
    t.x[i] = dot<209>(kReachX[n + i], s.x);
    t.y[i] = dot<22853>(kReachY[n + i], s.y);
  }
  return t;
}

Lanes pair(const Mrg32k3a& s, const Mrg32k3a& t) {
  Lanes l;
  for (int i = 0; i < 3; ++i) {
    l.x[i] = _mm_set_epi32(0, int32_t(t.x[i]), 0, int32_t(s.x[i]));
    l.y[i] = _mm_set_epi32(0, int32_t(t.y[i]), 0, int32_t(s.y[i]));
  }
  return l;
}

// The state in the upper lanes.
Mrg32k3a second(const Lanes& l) {
  const auto upper = [](__m128i v) {
    return uint32_t(_mm_cvtsi128_si32(_mm_unpackhi_epi64(v, v)));
  };
  return {{upper(l.x[0]), upper(l.x[1]), upper(l.x[2])},
          {upper(l.y[0]), upper(l.y[1]), upper(l.y[2])}};
}

struct Integers {
  using Item = uint32_t;

  void put(Item* r, uint32_t z) const { *r = z; }
  void put2(Item* r, Item* s, __m128i z) const {
    *r = uint32_t(_mm_cvtsi128_si32(z));
    *s = uint32_t(_mm_cvtsi128_si32(_mm_unpackhi_epi64(z, z)));
  }
};

struct Doubles {
  using Item = double;
  Affine real;

  void put(Item* r, uint32_t z) const { _mm_store_sd(r, real.one(z)); }
  void put2(Item* r, Item* s, __m128i z) const {
    const __m128d v = real(z);
    _mm_storel_pd(r, v);
    _mm_storeh_pd(s, v);
  }
};

struct Floats {
  using Item = float;
  Affine real;

  void put(Item* r, uint32_t z) const { _mm_store_ss(r, _mm_cvtpd_ps(real.one(z))); }
  void put2(Item* r, Item* s, __m128i z) const {
    const __m128 v = _mm_cvtpd_ps(real(z));
    _mm_store_ss(r, v);
    _mm_store_ss(s, _mm_shuffle_ps(v, v, 1));
  }
};

template <class Output>
int32_t generate(RuaStream* stream, int32_t n, typename Output::Item* r, Output out) {
  Mrg32k3a s = state<Mrg32k3a>(stream);
  while (n >= 60) {
    const int32_t length = std::min(n / 12 * 3, kStretch);
    const Mrg32k3a s1 = jump(s, length), s2 = jump(s1, length), s3 = jump(s2, length);
    Lanes low = pair(s, s1), high = pair(s2, s3);
    auto *r1 = r + length, *r2 = r1 + length, *r3 = r2 + length;
    for (int32_t i = 0; i < length; i += 3) {
      out.put2(r + i, r1 + i, low.step<0>());
      out.put2(r2 + i, r3 + i, high.step<0>());
      out.put2(r + i + 1, r1 + i + 1, low.step<1>());
      out.put2(r2 + i + 1, r3 + i + 1, high.step<1>());
      out.put2(r + i + 2, r1 + i + 2, low.step<2>());
      out.put2(r2 + i + 2, r3 + i + 2, high.step<2>());
    }
    s = second(high);
    r = r3 + length;
    n -= 4 * length;
  }
  for (; n > 0; --n) out.put(r++, step(s));
  state<Mrg32k3a>(stream) = s;
  return RUA_STATUS_OK;
}

}  // namespace

ORK_EXPORT void __ruaiVect3PowMod(uint32_t* vector, const uint32_t* row, uint32_t modulus,
                                  uint32_t low, uint32_t high) {
  companion_power(vector, row, modulus, join(low, high));
}

ORK_EXPORT int32_t __ruaBRngMRG32K3AInitStream(int32_t method, RuaStream* stream, int32_t n,
                                               const uint32_t* params) {
  Mrg32k3a& s = state<Mrg32k3a>(stream);
  switch (method) {
    case kSeed:
      seed(s, n, params);
      return RUA_STATUS_OK;
    case kLeapfrog:
      return RUA_STATUS_NO_LEAPFROG;
    case kSkipAhead:
      companion_power(s.x, kRowX.data(), kM1, join(params[0], params[1]));
      companion_power(s.y, kRowY.data(), kM2, join(params[0], params[1]));
      return RUA_STATUS_OK;
    default:
      return RUA_STATUS_BAD_METHOD;
  }
}

ORK_GENERATE(MRG32K3A, generate(stream, n, r, Floats{Affine(a, b, kStep)}),
             generate(stream, n, r, Doubles{Affine(a, b, kStep)}),
             generate(stream, n, r, Integers{}))
