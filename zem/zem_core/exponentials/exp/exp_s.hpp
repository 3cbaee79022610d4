#pragma once
// Exp, single, W7: e^x = 2^k 2^(j/128) e^r with n = round(x 128/ln 2), r = x - n ln 2/128,
// j = n mod 128, k = n div 128. A level combines r, j and the scale 2^k.
// Fast range: |x| below 87.3365479; beyond it exp_rare. The parts of ln 2/128
// are frozen: n times their error, 1.3e-14, is below 2^-32.
#include "base/image.hpp"
#include "base/round.hpp"
#include "common/exp_tables.hpp"
#include "frame/block.hpp"
#include "ork/zem_kernels.h"

namespace ork {

// HA: v = T_hi + T_hi ((T_lo + r) + r^2/2) with T_hi (1 + T_lo) = 2^(j/128); the cubic term
// left out is below r^3/6 = 2^-28.2.
struct ExpHaS {
  static constexpr const void* table = exp_split128_s;
  static f32x4 combine(f32x4 r, f32x4 first, f32x4 second, u32x4 scale) {
    const f32x4 v = first + first * ((second + r) + 0.5f * (r * r));
    return v * as<f32x4>(scale);
  }
};

// LA: S (1 + r (1 + r/2)) with S = 2^(n/128) of one OR.
struct ExpLaS {
  static constexpr const void* table = exp_mantissa128_s;
  static f32x4 combine(f32x4 r, f32x4 first, f32x4, u32x4 scale) {
    return or_bits(first, scale) * (1.0f + r * (1.0f + 0.5f * r));
  }
};

template <class Level>
int exp_rare(const float* a, float* out);

template <class Level>
struct ExpS : Core<float> {
  static constexpr char name[] = "vsExp";

  // e^x / 2^down; for down = 0 with n held within -126 * 128 and 128 * 128 - 1 by its low 16 bits,
  // so that no lane's scale is a NaN, which would raise a flag.
  template <uint32_t down>
  ORK_INLINE f32x4 value(f32x4 x) {
    const f32x4 t = x * 184.664963f + 11534336.0f;  // 1.375 * 2^23: n in the low bits of t
    const f32x4 n = t - 11534336.0f;
    const f32x4 r = x - n * 0.00541687012f - n * -1.65776908e-06f;
    __m128i image = as<__m128i>(t);
    if constexpr (down == 0)
      image = _mm_min_epi16(_mm_max_epi16(image, _mm_set1_epi32(int(0x8000C100))),
                            _mm_set1_epi32(0x7FFF3FFF));
    const u32x4 scale = ((as<u32x4>(image) >> 7) + (127 - down)) << 23;
    const u32x4 j = as<u32x4>(t) & 127;
    const auto row = [](int i) { return (const float*)Level::table + 2 * i; };
    f32x4 first, second;
    gather_pairs(row(j[0]), row(word<2>(j)), row(word<4>(j)), row(word<6>(j)), first, second);
    return Level::combine(r, first, second, scale);
  }
  static f32x4 eval(f32x4 x, u32x4& rare) {
    rare |= 0x42AEAC4F - as<u32x4>(abs(x));
    return value<0>(x);
  }
  static int special(const float* a, float* out) { return exp_rare<Level>(a, out); }
};

// One element beyond the fast range.
template <class Level>
int exp_rare(const float* a, float* out) {
  const float x = *a;
  const uint32_t magnitude = ork::magnitude(a);
  if (magnitude >= infinity_bits<float>) {
    *out = magnitude > infinity_bits<float> ? x + x : sign(a) ? 0.0f : x;
    return 0;
  }
  if (x >= 88.72283935546875f) {
    volatile float huge = 0x1p127f;
    *out = huge * huge;
    return ZEM_STATUS_OVERFLOW;
  }
  if (x >= 87.3365479f) {
    *out = ExpS<Level>::template value<1>(splat(x))[0] * 2.0f;
    return 0;
  }
  if (x <= -103.27893829345703f) {
    volatile float tiny = 0x1p-126f;
    *out = tiny * tiny;
    return ZEM_STATUS_UNDERFLOW;
  }
  // 2^n 2^f in double, |f| <= 1/2, rounded once to a denormal.
  constexpr double c[] = {
#include "exponentials/exp/tiny_s.inc"
  };
  const double u = (double)x * 1.4426950408889634, t = u + integer_shifter<double>;
  const double f = u - (t - integer_shifter<double>), g = f * f;
  const double even = 1.0 + g * (c[1] + g * (c[3] + g * c[5])), odd = c[0] + g * (c[2] + g * c[4]);
  const uint64_t n = (uint32_t)as<uint64_t>(t);
  *out = (float)((even + f * odd) * as<double>((n + 1023) << 52));
  return ZEM_STATUS_UNDERFLOW;
}

}  // namespace ork
