#pragma once
// e^a and e^-a for a >= 0 in one reduction, shared by Cosh and Sinh:
// n = round(a N/ln 2), r = a - n ln 2/N, e^(+-a) = 2^(+-n/N) e^(+-r). With E+- = 2^(+-n/N),
// sum = E+ + E-, diff = E+ - E-, and even = cosh r - 1, odd = sinh r:
//   2 cosh a = sum + (sum even + diff odd),   2 sinh a = diff + (diff even + sum odd).
// A level gives reduce(), even() and odd(); at HA E+- have low words.
// Frozen: the parts of ln 2/N, those of Exp, and the coefficients of even and odd, in r^2.
#include "base/round.hpp"
#include "frame/kernel.hpp"

namespace ork {

alignas(16) inline constexpr double pair_split64_d[64][2] = {
#include "exponentials/pair_split64_d.inc"
};
alignas(16) inline constexpr double pair_power128_d[128] = {
#include "common/exp_power128_d.inc"
};
alignas(16) inline constexpr float pair_split128_s[128][2] = {
#include "exponentials/pair_split128_s.inc"
};

// The lanes of a >= 0 within the fast range, all bits set (of a double: in its high word). The
// scales of the others are made 0: infinite ones would raise flags.
ORK_INLINE u32x4 pair_lanes(f64x2 a, uint32_t limit) {
  const int high = (int)limit;
  return ~as<u32x4>(as<i32x4>(a) > i32x4{0x7FFFFFFF, high, 0x7FFFFFFF, high});
}
ORK_INLINE u32x4 pair_lanes(f32x4 a, uint32_t limit) {
  const int image = (int)limit;
  return ~as<u32x4>(as<i32x4>(a) > i32x4{image, image, image, image});
}

template <class T>
struct ExpPair {
  vec_of<T> up, down, up_low, down_low, r;
};

// 2^(m/64) of the low words of m, in high and low; 2^(m/128) in one word.
ORK_INLINE f64x2 power64(u32x4 m, u32x4 kept, f64x2& low) {
  const __m128i row = (__m128i)((m & 63) << 4);
  const char* const table = (const char*)pair_split64_d;
  const f64x2 row0 = *(const f64x2*)(table + _mm_cvtsi128_si32(row));
  const f64x2 row1 = *(const f64x2*)(table + _mm_extract_epi16(row, 4));
  const u64x2 field = as<u64x2>(m + u32x4{1023 << 6, 0, 1023 << 6, 0}) << 46;
  const f64x2 scale = as<f64x2>(field & (splat_u64(0x7FF0000000000000) & as<u64x2>(kept)));
  low = (f64x2)_mm_unpackhi_pd(row0, row1) * scale;
  return (f64x2)_mm_unpacklo_pd(row0, row1) * scale;
}
ORK_INLINE f64x2 power128(u32x4 m, u32x4 kept) {
  const __m128i j = (__m128i)(m & 127);
  const f64x2 low = _mm_load_sd(pair_power128_d + _mm_cvtsi128_si32(j));
  const f64x2 t = _mm_loadh_pd(low, pair_power128_d + _mm_extract_epi16(j, 4));
  const u64x2 field = as<u64x2>(m + u32x4{1023 << 7, 0, 1023 << 7, 0}) << 45;
  return t * as<f64x2>(field & (splat_u64(0x7FF0000000000000) & as<u64x2>(kept)));
}
ORK_INLINE f32x4 power128_s(u32x4 m, u32x4 kept, f32x4& low) {
  const __m128i j = (__m128i)(m & 127);
  const __m64* const rows = (const __m64*)pair_split128_s;
  const f32x4 none = {};
  const f32x4 row01 =
      _mm_loadh_pi(_mm_loadl_pi(none, rows + _mm_cvtsi128_si32(j)), rows + _mm_extract_epi16(j, 2));
  const f32x4 row23 = _mm_loadh_pi(_mm_loadl_pi(none, rows + _mm_extract_epi16(j, 4)),
                                   rows + _mm_extract_epi16(j, 6));
  const f32x4 scale = as<f32x4>(((m >> 7) + 127) << 23 & kept);
  low = (f32x4)_mm_shuffle_ps(row01, row23, 0xDD) * scale;
  return (f32x4)_mm_shuffle_ps(row01, row23, 0x88) * scale;
}

struct PairHa {
  using type = double;
  static constexpr bool long_sum = true;
  static constexpr uint32_t limit = 0x40862335;  // the highest high word of the fast range
  ORK_INLINE ExpPair<double> reduce(f64x2 a, u32x4 kept) {
    const f64x2 t = a * 92.33248261689366 + integer_shifter<double>,
                n = t - integer_shifter<double>;
    ExpPair<double> e;
    e.r = a - n * 0x1.62e42fefp-7 - n * 1.162596423439437e-12;
    e.up = power64(as<u32x4>(t), kept, e.up_low);
    e.down = power64(-as<u32x4>(t), kept, e.down_low);
    return e;
  }
  // |r| <= ln 2/128: 2^-59.2 of cosh r, 2^-60.8 of sinh r.
  ORK_INLINE f64x2 even(f64x2 q) { return q * (0.49999999999945266 + q * 0.041666725157316162); }
  ORK_INLINE f64x2 odd(f64x2 r, f64x2 q) {
    return r + r * (q * (0.16666666666653376 + q * 0.0083333437288058629));
  }
};

struct PairLa {
  using type = double;
  static constexpr bool long_sum = false;
  static constexpr uint32_t limit = 0x40861D98;  // 707.6998
  ORK_INLINE ExpPair<double> reduce(f64x2 a, u32x4 kept) {
    constexpr double shifter = 52776558133248.0;  // 1.5 * 2^45: 128ths in the low word
    const f64x2 t = a * 1.4426950408889634 + shifter, n = t - shifter;
    ExpPair<double> e;
    e.r = a - n * 0.69314718057285063 - n * -1.2905320270077144e-11;
    e.up = power128(as<u32x4>(t), kept);
    e.down = power128(-as<u32x4>(t), kept);
    return e;
  }
  // Taylor: |r| <= ln 2/256 leaves r^6/720 = 2^-61.
  ORK_INLINE f64x2 even(f64x2 q) { return q * (0.5 + q * (1.0 / 24)); }
  ORK_INLINE f64x2 odd(f64x2 r, f64x2 q) { return r + r * (q * (1.0 / 6 + q * (1.0 / 120))); }
};

struct PairLaS {
  using type = float;
  static constexpr bool long_sum = false;
  static constexpr uint32_t limit = 0x42AEAC4F;
  ORK_INLINE ExpPair<float> reduce(f32x4 a, u32x4 kept) {
    const f32x4 t = a * 184.664963f + 11534336.0f, n = t - 11534336.0f;
    const u32x4 m = as<u32x4>(t) - 0x4B300000;
    ExpPair<float> e;
    e.r = a - n * 0.00541687012f - n * -1.65776908e-06f;
    e.up = power128_s(m, kept, e.up_low);
    e.down = power128_s(-m, kept, e.down_low);
    return e;
  }
  // |r| <= ln 2/256: 2^-38.7 of cosh r, 2^-41.1 of sinh r.
  ORK_INLINE f32x4 even(f32x4 q) { return q * 0.5f; }
  ORK_INLINE f32x4 odd(f32x4 r, f32x4 q) { return r + r * (q * 0.166666672f); }
};
struct PairHaS : PairLaS {
  static constexpr bool long_sum = true;
};
struct PairEpS : PairLaS {  // cosh r = 1, sinh r = r to 2^-18
  ORK_INLINE ExpPair<float> reduce(f32x4 a, u32x4 kept) {
    const f32x4 t = a * 184.664963f + 11534336.0f, n = t - 11534336.0f;
    const u32x4 m = as<u32x4>(t) - 0x4B300000;
    ExpPair<float> e;
    e.r = a - n * 0.00541521236f;
    e.up = power128_s(m, kept, e.up_low);
    e.down = power128_s(-m, kept, e.down_low);
    return e;
  }
  ORK_INLINE f32x4 even(f32x4) { return f32x4{}; }
  ORK_INLINE f32x4 odd(f32x4 r, f32x4) { return r; }
};

template <class Level, bool sinh>
ORK_INLINE vec_of<typename Level::type> from_pair(vec_of<typename Level::type> a, u32x4& rare) {
  using T = typename Level::type;
  using vec = vec_of<T>;
  const u32x4 kept = pair_lanes(a, Level::limit);
  rare |= ~kept;
  const ExpPair<T> e = Level::reduce(a, kept);
  vec sum = e.up + e.down, diff = e.up - e.down;
  const vec head = sinh ? diff : sum;
  vec low{};
  if constexpr (Level::long_sum) {
    // The low words and what the head's rounding lost, exact as E+ >= E-.
    low = (sinh ? e.up_low - e.down_low : e.up_low + e.down_low) +
          (sinh ? (e.up - head) - e.down : (e.up - head) + e.down);
    if constexpr (sizeof(T) == 8) sum += e.up_low + e.down_low, diff += e.up_low - e.down_low;
  }
  const vec q = e.r * e.r, odd = Level::odd(e.r, q);
  vec body = (sinh ? sum : diff) * odd;
  if constexpr (!__is_same(Level, PairEpS)) body = (sinh ? diff : sum) * Level::even(q) + body;
  if constexpr (Level::long_sum) body += low;
  return T(0.5) * (head + body);
}

// e^a/2 for 21.5 < a < 710.48: the other term has vanished. The scale goes in two steps.
inline double half_exp(double a) {
  const f64x2 t = splat(a) * 92.33248261689366 + integer_shifter<double>;
  const double n = t[0] - integer_shifter<double>;
  const double r = a - n * 0x1.62e42fefp-7 - n * 1.162596423439437e-12, q = r * r;
  const uint32_t m = as<u32x4>(t)[0], k = m >> 6 & 0xFFFF;
  const double high = pair_split64_d[m & 63][0], low = pair_split64_d[m & 63][1];
  const double p =
      r + q * (0.49999999999945266 +
               r * (0.16666666666653376 + r * (0.041666725157316162 + r * 0.0083333437288058629)));
  return (high + (low + (high + low) * p)) * as<double>((uint64_t)(k + 1021) << 52) * 2.0;
}

// Lanes beyond the fast range.
template <class T, bool sinh>
int pair_special(const T* x, T* r) {
  constexpr T limit = sizeof(T) == 8 ? T(710.475860073944) : T(89.4159927368164);
  volatile T huge = sizeof(T) == 8 ? T(__DBL_MAX__) : T(__FLT_MAX__);
  const T a = *x < 0 ? -*x : *x;
  if (!(a <= huge)) {  // NaN, infinity
    *r = sinh ? *x + *x : *x * *x;
    return 0;
  }
  if (a >= limit) {
    *r = sinh && *x < 0 ? huge * -huge : huge * huge;
    return ZEM_STATUS_OVERFLOW;
  }
  const T y = (T)half_exp(a);
  *r = sinh && *x < 0 ? -y : y;
  return 0;
}

}  // namespace ork
